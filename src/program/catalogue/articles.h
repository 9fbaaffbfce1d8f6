#pragma once

#include <QString>

namespace torvik {

struct Topic;

// In front of what a window title tells. Which of the first two it is has always been different from one
// document to the next; the third leads the title of an advertisement.
inline constexpr const char* wideTitle = "The Torvik Vollandry       ";
inline constexpr const char* narrowTitle = "The Torvik Vollandry     ";
inline constexpr const char* pageTitle = "The Torvik Vollandry    ";

/// A document and the window title that belongs to it.
struct Article {
    QString file; ///< under the disc's root, "\richtext\67desc.rtf"
    QString windowTitle;
};

/// The buttons that look an article up before they open it.
enum class ArticleButton { Description, Options, Statistics, Colors };

/// What a button asks the disc for while `title` is in panYear. With nothing chosen the description is the
/// introduction. A topic without an article of its own goes by its third and fourth character, which name no
/// file.
Article ArticleOf(ArticleButton button, const QString& title);

/// The folder that a button puts in front of the name that it has found.
QString ArticleFolder(ArticleButton button);

/// The code under which a button reports an article that is missing.
QString ArticleErrorCode(ArticleButton button);

/// Whether the button works while the topic is the chosen one, so that its article is asked for. Notes come
/// before an article of cmdStats.
bool AsksForArticle(ArticleButton button, const Topic& topic);

/// What cmdNostalgia asks for; for a topic it uses the same two characters, which name no file.
Article NostalgiaOf(const QString& title);

/// What cmdStats shows of the photo with this number in place of an article; empty for a title without notes.
/// Notes exist for every second number: the first photo has note 2.
QString NoteOf(const QString& title, double photo);

} // namespace torvik
