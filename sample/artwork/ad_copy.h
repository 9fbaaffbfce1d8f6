#pragma once

#include <QString>
#include <QStringList>

namespace torvik::sample {

/// The words of an advertisement.
struct AdCopy {
    QString headline;
    QString lead; ///< one or two sentences that stand by themselves
    QStringList paragraphs;
};

/// The words for a year, with its figures put in. Throws std::out_of_range for a year without an
/// advertisement and std::runtime_error for a figure that the year does not have.
AdCopy AdCopyOf(int year);

} // namespace torvik::sample
