#pragma once

#include <QByteArray>
#include <QString>

#include <map>

namespace torvik::sample {

/// The texts that the articles are made of; they lie in text/ and are carried inside the program.

/// The whole text of a file, by its name without ending. Throws std::runtime_error where there is none.
QString StoredText(const QString& name);

/// The file of a picture in screens/, by its name without ending. Throws std::runtime_error where there is
/// none.
QByteArray StoredScreen(const QString& name);

/// A part of a text that begins with a line "[key] title".
struct TextSection {
    QString title;
    QString body;
};

/// The parts of a stored text by their keys.
std::map<QString, TextSection> StoredSections(const QString& name);

} // namespace torvik::sample
