#pragma once

#include <QString>

namespace torvik {

/// The folder of the host for this user's documents.
QString DocumentsFolder();

/// The host path for the next print job of a folder of the host: "job-1.pdf", or the next number that is
/// not taken. The folder is made when it is missing. Failure 76, Path not found, when it cannot be
/// made.
QString NextJobFile(const QString& hostFolder);

/// Where a job's file is written until it is whole, so that none that is cut off bears the job's name.
QString UnfinishedJobFile(const QString& hostPath);

/// Gives the unfinished file of a job the job's name. False when it is not whole or the name is taken.
bool KeepJobFile(const QString& hostPath);

/// Removes the unfinished file of a job.
void DropJobFile(const QString& hostPath);

/// Whether a job's file on the host is complete. A full disk cuts it short without a word.
bool IsWholeJobFile(const QString& hostPath);

} // namespace torvik
