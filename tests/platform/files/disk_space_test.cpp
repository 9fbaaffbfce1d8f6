#include "platform/files/disk_space.h"
#include "platform/paths/drives.h"
#include "support/discs/disc_folder.h"
#include "support/failure_of.h"
#include "support/test_class.h"

#include <QStorageInfo>

using namespace Qt::StringLiterals;
using namespace torvik;

class DiskSpaceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void clusters_make_up_the_size_of_the_file_system()
    {
        const DiscFolder disc;
        const DiskClusters clusters = DiskClustersOf(u"E:\\"_s);
        const QStorageInfo expected(disc.Path());
        const qint64 clusterSize = clusters.sectorsPerCluster * clusters.bytesPerSector;
        QCOMPARE(clusters.bytesPerSector, 512);
        QVERIFY(clusterSize >= 512);
        QCOMPARE(clusters.total * clusterSize, expected.bytesTotal());
        QVERIFY(clusters.free > 0);
        QVERIFY(clusters.free < clusters.total);
    }

    void a_folder_that_is_missing_is_told()
    {
        const DiscFolder disc;
        QCOMPARE(FailureOf([] { DiskClustersOf(u"E:\\none"_s); }), failure::pathNotFound);
        QCOMPARE(FailureOf([] { DiskClustersOf(u"F:\\"_s); }), failure::deviceUnavailable);
    }

    void a_test_measures_in_place_of_the_machine()
    {
        SetDiskMeter([](const QString& folder) { return DiskClusters{8, 512, folder.size(), 100}; });
        QCOMPARE(DiskClustersOf(u"C:\\abc"_s).free, 6);
        SetDiskMeter({});
        QVERIFY(DiskClustersOf(u"C:\\"_s).total > 100);
    }

    void the_current_folder_is_a_path_of_drive_c()
    {
        const QString before = QDir::currentPath();
        const DiscFolder disc;
        QVERIFY(disc.Folder("Größe"));
        QVERIFY(QDir::setCurrent(disc.Path() + u"/Größe"_s));
        const QString current = CurrentFolder();
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(current, DrivePath(disc.Path()) + u"\\Größe"_s);
        QVERIFY(current.startsWith(u"C:\\"_s));
    }

    void a_current_folder_that_is_gone_is_told()
    {
        const QString before = QDir::currentPath();
        const DiscFolder disc;
        QVERIFY(disc.Folder("gone") && QDir::setCurrent(disc.Path() + u"/gone"_s));
        QVERIFY(disc.Remove("gone"));
        const int number = FailureOf([] { CurrentFolder(); });
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(number, failure::pathNotFound);
    }
};

TORVIK_TEST(DiskSpaceTest)
#include "disk_space_test.moc"
