#pragma once

#include <QString>

namespace torvik {

/// How one button names the articles of the model years. The two centuries differ in file and title.
struct YearRule {
    const char* Code;   ///< for ReportError
    const char* File20; ///< what follows "\RichText\a" and the last digit
    const char* Folder19;
    const char* File19; ///< what follows the last two digits
    const char* Ending; ///< of the title
};

/// The article of the title in panYear: looks its file up for `state.DocumentFile`, which becomes the bare
/// file name, empty when there is none, and returns the window title that belongs to it. A topic goes by its
/// third and fourth character, which name no file.
QString FindArticleOfYear(const YearRule& rule);

/// Looks a file of the disc ("\richtext\stamps.rtf") up for `state.DocumentFile`, in the same way.
void FindArticle(const QString& file);

/// Puts the disc and its `folder` in front of the bare name in `state.DocumentFile`.
void CompleteArticlePath(const QString& folder);

} // namespace torvik
