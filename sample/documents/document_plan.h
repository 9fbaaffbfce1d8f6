#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace torvik::sample {

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
