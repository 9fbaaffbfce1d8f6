#include "hard_drive/free_space.h"

#include "platform/files/disk_space.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "ui/forms/message_box.h"

using namespace Qt::StringLiterals;

namespace torvik {

void GetDiskSpace(qint64& total, qint64& free, QString& drive)
{
    constexpr int rootLength = 3;
    constexpr int clustersInUnit = 1024;
    drive = QString(rootLength, u' ');
    const auto measure = [&] {
        const QString folder = CurrentFolder();
        drive = Left(DropLastCharacter(folder + u' '), rootLength);
        // On this host one drive is many file systems: that of the folder itself is meant.
        const DiskClusters clusters = DiskClustersOf(folder);
        const qint64 clusterSize = clusters.sectorsPerCluster * clusters.bytesPerSector;
        total = clusters.total / clustersInUnit * clusterSize;
        free = clusters.free / clustersInUnit * clusterSize;
    };
    OnError(measure, [] { MsgBox(u"Internal GetDisk error!"_s); });
}

QString DropLastCharacter(const QString& text)
{
    return Left(text, static_cast<int>(text.size()) - 1);
}

QString GroupedDigits(qint64 number)
{
    if (number == 0)
        return {};
    QString digits = QString::number(number);
    for (qsizetype place = digits.size() - 3; place > 0; place -= 3)
        digits.insert(place, u',');
    return digits;
}

} // namespace torvik
