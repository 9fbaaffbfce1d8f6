#pragma once

#include <QString>
#include <QStringList>

namespace torvik {

// What the printed booklet asks the disc for after its cover (catalogue/pictures), under its root.

QString BookletIntroduction();

/// How the files of a year begin; 67 to 99 for the years of the old century, 100 and 101 for 2000 and 2001.
QString BookletPrefix(int year);

QString BookletDescription(const QString& prefix);
/// Options, statistics and colours, in the order in which they are printed.
QStringList BookletDetails(const QString& prefix);

} // namespace torvik
