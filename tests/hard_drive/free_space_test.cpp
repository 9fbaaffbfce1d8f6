#include "hard_drive/free_space.h"
#include "platform/files/disk_space.h"
#include "support/failure_of.h"
#include "support/message_script.h"
#include "support/test_class.h"
#include "ui/forms/program_title.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace torvik;

class FreeSpaceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { SetDiskMeter({}); }

    void the_drive_of_the_current_directory_is_measured_and_not_the_one_given()
    {
        QString asked;
        SetDiskMeter([&](const QString& folder) {
            asked = folder;
            return DiskClusters{8, 512, 3LL * 1024, 9LL * 1024};
        });
        const QTemporaryDir folder;
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder.path()));
        qint64 total = 0;
        qint64 free = 0;
        QString drive = u"E"_s;
        GetDiskSpace(total, free, drive);
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(drive, u"C:\\"_s);
        QCOMPARE(asked, u"C:"_s + folder.path().replace(u'/', u'\\'));
        QCOMPARE(total, 9 * 8 * 512);
        QCOMPARE(free, 3 * 8 * 512);
    }

    void clusters_below_the_next_1024_do_not_count()
    {
        SetDiskMeter([](const QString&) { return DiskClusters{8, 512, 2047, 1023}; });
        qint64 total = 1;
        qint64 free = 1;
        QString drive;
        GetDiskSpace(total, free, drive);
        QCOMPARE(total, 0);
        QCOMPARE(free, 4096);
    }

    void a_disk_beyond_32_bits_is_measured_whole()
    {
        SetDiskMeter([](const QString&) { return DiskClusters{8, 512, qint64{1} << 40, qint64{1} << 41}; });
        qint64 total = 0;
        qint64 free = 0;
        QString drive;
        GetDiskSpace(total, free, drive);
        QCOMPARE(free, qint64{1} << 42);
        QCOMPARE(total, qint64{1} << 43);
    }

    void a_drive_that_cannot_be_measured_is_told_and_leaves_both_numbers()
    {
        const MessageScript messages;
        SetDiskMeter([](const QString&) -> DiskClusters { Fail(failure::deviceIo); });
        qint64 total = 5;
        qint64 free = 6;
        QString drive = u"E"_s;
        GetDiskSpace(total, free, drive);
        QCOMPARE(messages.Count(), 1);
        QCOMPARE(messages.Last().text, u"Internal GetDisk error!"_s);
        QCOMPARE(messages.Last().style, msgbox::ok);
        QCOMPARE(messages.Last().title, applicationTitle);
        QCOMPARE(total, 5);
        QCOMPARE(free, 6);
        QCOMPARE(drive, u"C:\\"_s);
    }

    void a_current_directory_that_is_gone_cannot_be_measured()
    {
        const MessageScript messages;
        const QString before = QDir::currentPath();
        QTemporaryDir folder;
        QVERIFY(QDir::setCurrent(folder.path()) && folder.remove());
        qint64 total = 5;
        qint64 free = 6;
        QString drive = u"E"_s;
        GetDiskSpace(total, free, drive);
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(messages.Last().text, u"Internal GetDisk error!"_s);
        QCOMPARE(free, 6);
        QCOMPARE(drive, u"   "_s);
    }

    void the_last_character_is_dropped()
    {
        QCOMPARE(DropLastCharacter(u"C:\\a "_s), u"C:\\a"_s);
        QCOMPARE(DropLastCharacter(u"x"_s), QString());
        QCOMPARE(FailureOf([] { DropLastCharacter({}); }), failure::invalidCall);
    }

    void digits_stand_in_groups_of_three_and_nothing_for_zero()
    {
        QCOMPARE(GroupedDigits(0), QString());
        QCOMPARE(GroupedDigits(7), u"7"_s);
        QCOMPARE(GroupedDigits(999), u"999"_s);
        QCOMPARE(GroupedDigits(1000), u"1,000"_s);
        QCOMPARE(GroupedDigits(38'000'000), u"38,000,000"_s);
        QCOMPARE(GroupedDigits(123'456'789), u"123,456,789"_s);
        QCOMPARE(GroupedDigits(1'234'567'890'123), u"1,234,567,890,123"_s);
    }
};

TORVIK_TEST(FreeSpaceTest)
#include "free_space_test.moc"
