#include "platform/paths/mounted_volumes.h"
#include "support/test_class.h"

#include <QSemaphore>
#include <QStorageInfo>

using namespace Qt::StringLiterals;
using namespace torvik;
using namespace std::chrono_literals;

namespace {

QSemaphore answers;
QSemaphore asked;
QSemaphore answered;

/// A volume that does not answer until it is let.
QList<MountedVolume> ReadSlowly()
{
    asked.release();
    answers.acquire();
    answered.release();
    return {{u"/late"_s, "iso9660", "/dev/sr0"}};
}

QList<MountedVolume> ReadAtOnce()
{
    return {{u"/media/disc"_s, "iso9660", "/dev/sr0"}, {u"/media/b"_s, "vfat", "/dev/sdb1"}};
}

} // namespace

/// The list of mounted volumes, and volumes that do not answer.
class MountedVolumesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_machine_lists_its_root()
    {
        const QList<MountedVolume> volumes = MountedVolumes();
        const auto root = std::find_if(volumes.begin(), volumes.end(), [](const MountedVolume& volume) {
            return volume.mountPoint == u"/"_s;
        });
        QVERIFY(root != volumes.end());
        QCOMPARE(root->fileSystem, QStorageInfo::root().fileSystemType());
        QCOMPARE(root->device, QStorageInfo::root().device());
    }

    void a_list_that_comes_in_time_is_given()
    {
        const auto volumes = ReadInTime(ReadAtOnce, 30s);
        QVERIFY(volumes.has_value());
        QCOMPARE(volumes->size(), 2);
        QCOMPARE(volumes->first().mountPoint, u"/media/disc"_s);
        QCOMPARE(volumes->last().device, QByteArray("/dev/sdb1"));
    }

    void a_volume_that_does_not_answer_is_not_waited_for_and_not_asked_twice()
    {
        QVERIFY(!ReadInTime(ReadSlowly, 1ms));
        QVERIFY(asked.tryAcquire(1, 30'000));
        QVERIFY(!ReadInTime(ReadSlowly, 1ms));
        QVERIFY(!ReadInTime(ReadAtOnce, 1ms));
        QCOMPARE(asked.available(), 0);

        answers.release();
        QVERIFY(answered.tryAcquire(1, 30'000));
        const auto volumes = ReadInTime(ReadAtOnce, 30s);
        QVERIFY(volumes.has_value());
        QCOMPARE(volumes->first().mountPoint, u"/media/disc"_s); // not what came too late
    }
};

TORVIK_TEST(MountedVolumesTest)
#include "mounted_volumes_test.moc"
