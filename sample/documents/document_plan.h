#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace torvik::sample {

/// The help as rich text: its chapters are headings with bookmarks, and links lead from one to the other.
QByteArray HelpText();

/// "Torvik2001.HLP" in the program folder.
void MakeHelpFile(const QString& program);

/// A document of the disc: its file in the folder "RichText", and its whole text.
struct PlannedDocument {
    QString file;
    QByteArray text;
};

/// Every document of the disc but the captions and notes of single photos, in the order of their file names.
std::vector<PlannedDocument> PlanDocuments();
/// Writes them into the folder "RichText" of the disc. Throws std::runtime_error where it cannot.
void MakeDocuments(const QString& disc);

} // namespace torvik::sample
