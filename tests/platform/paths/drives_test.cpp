#include "platform/paths/drives.h"
#include "platform/paths/program_folder.h"
#include "support/discs/disc_folder.h"
#include "support/failure_of.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

QList<QString> volumes;

QList<QString> ListedVolumes()
{
    return volumes;
}

} // namespace

class DrivesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        volumes.clear();
        SetVolumeLister(ListedVolumes);
        SetProgramFolder(program_.path());
        SetDriveOptions({});
        RefreshDrives();
    }
    void cleanup()
    {
        QDir(program_.path()).rmdir(u"disc"_s);
        SetVolumeLister(nullptr);
        SetProgramFolder({});
    }

    void letters_without_a_folder_stand_for_nothing()
    {
        for (char letter = 'D'; letter <= 'Z'; ++letter)
            QCOMPARE(DriveFolder(QLatin1Char(letter)), QString());
        QCOMPARE(DriveFolder(u'A'), QString());
        QCOMPARE(DriveFolder(u'1'), QString());
        QCOMPARE(DriveFolder(QChar()), QString());
    }

    void c_is_the_root_of_the_host()
    {
        QCOMPARE(DriveFolder(u'C'), u"/"_s);
        QCOMPARE(DriveFolder(u'c'), u"/"_s);
        QCOMPARE(HostPath(u"C:\\"_s), u"/"_s);
        QCOMPARE(HostPath(u"C:\\usr"_s), u"/usr"_s);
    }

    void an_option_names_the_folder_of_its_letter()
    {
        const QTemporaryDir folder;
        SetDriveOptions({{u'G', folder.path()}, {u'h', folder.path()}});
        QCOMPARE(DriveFolder(u'G'), folder.path());
        QCOMPARE(DriveFolder(u'H'), folder.path());
        QCOMPARE(DriveFolder(u'g'), folder.path());
        RefreshDrives();
        QCOMPARE(DriveFolder(u'G'), folder.path());
    }

    void a_later_option_for_the_same_letter_wins()
    {
        SetDriveOptions({{u'G', u"/usr"_s}, {u'G', u"/etc"_s}});
        QCOMPARE(DriveFolder(u'G'), u"/etc"_s);
    }

    void an_option_without_letter_takes_the_first_that_the_others_leave()
    {
        SetDriveOptions({{QChar(), u"/usr"_s}, {u'D', u"/etc"_s}, {QChar(), u"/var"_s}});
        QCOMPARE(DriveFolder(u'D'), u"/etc"_s);
        QCOMPARE(DriveFolder(u'E'), u"/usr"_s);
        QCOMPARE(DriveFolder(u'F'), u"/var"_s);
    }

    void a_letter_outside_d_to_z_is_a_failure_and_changes_nothing()
    {
        SetDriveOptions({{u'E', u"/etc"_s}});
        for (const QChar letter : {QChar(u'C'), QChar(u'A'), QChar(u'1'), QChar(u'Ä'), QChar(u'[')}) {
            QCOMPARE(FailureOf([&] {
                         SetDriveOptions({{u'E', u"/usr"_s}, {letter, u"/usr"_s}});
                     }),
                     failure::invalidCall);
        }
        QCOMPARE(DriveFolder(u'E'), u"/etc"_s);
    }

    void a_folder_is_taken_from_the_current_one_and_cleaned()
    {
        const QTemporaryDir folder;
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder.path()));
        SetDriveOptions({{u'E', u"disc/../other/"_s}});
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(DriveFolder(u'E'), folder.path() + u"/other"_s);
    }

    void the_root_can_stand_for_a_letter()
    {
        SetDriveOptions({{u'E', u"/"_s}});
        QCOMPARE(DriveFolder(u'E'), u"/"_s);
        QCOMPARE(HostPath(u"E:\\usr"_s), u"/usr"_s);
        QCOMPARE(HostPath(u"E:\\..\\usr"_s), u"/usr"_s);
    }

    void volumes_take_the_letters_that_the_options_leave_in_their_order()
    {
        volumes = {u"/etc"_s, u"/usr"_s};
        SetDriveOptions({{u'E', u"/var"_s}});
        QCOMPARE(DriveFolder(u'D'), QString());
        RefreshDrives();
        QCOMPARE(DriveFolder(u'D'), u"/etc"_s);
        QCOMPARE(DriveFolder(u'E'), u"/var"_s);
        QCOMPARE(DriveFolder(u'F'), u"/usr"_s);
    }

    void more_volumes_than_letters_leave_the_last_without()
    {
        for (int i = 0; i < 40; ++i)
            volumes.append(u"/volume%1"_s.arg(i));
        RefreshDrives();
        QCOMPARE(DriveFolder(u'D'), u"/volume0"_s);
        QCOMPARE(DriveFolder(u'Z'), u"/volume22"_s);
    }

    void a_refresh_sees_the_disc_that_was_put_in_and_the_one_that_was_taken_out()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("a.jpg"));
        SetDriveOptions({});
        QCOMPARE(FailureOf([] { HostPath(u"D:\\a.jpg"_s); }), failure::deviceUnavailable);
        volumes = {disc.Path()};
        RefreshDrives();
        QCOMPARE(HostPath(u"D:\\A.JPG"_s), disc.Path() + u"/a.jpg"_s);
        volumes.clear();
        RefreshDrives();
        QCOMPARE(FailureOf([] { HostPath(u"D:\\A.JPG"_s); }), failure::deviceUnavailable);
    }

    void a_drive_that_vanishes_between_two_calls_is_unavailable()
    {
        DiscFolder disc;
        QVERIFY(disc.Folder("Torviks") && disc.File("Torviks/a.jpg"));
        QCOMPARE(HostPath(u"E:\\TORVIKS\\A.JPG"_s), disc.Path() + u"/Torviks/a.jpg"_s);
        disc.Vanish();
        QCOMPARE(FailureOf([] { HostPath(u"E:\\TORVIKS\\A.JPG"_s); }), failure::deviceUnavailable);
        QCOMPARE(FailureOf([] { HostPath(u"E:\\"_s); }), failure::deviceUnavailable);
    }

    void z_is_the_embedded_disc_where_it_is_free()
    {
        QVERIFY(QDir(program_.path()).mkdir(u"disc"_s));
        RefreshDrives();
        QCOMPARE(DriveFolder(u'Z'), program_.path() + u"/disc"_s);
        SetDriveOptions({{u'Z', u"/usr"_s}});
        RefreshDrives();
        QCOMPARE(DriveFolder(u'Z'), u"/usr"_s);
    }

    void a_file_named_disc_is_no_embedded_disc()
    {
        QFile file(program_.filePath(u"disc"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        RefreshDrives();
        QCOMPARE(DriveFolder(u'Z'), QString());
        QVERIFY(file.remove());
    }

    void the_machines_own_volumes_come_back()
    {
        volumes = {u"/nowhere-at-all"_s};
        SetVolumeLister(nullptr);
        RefreshDrives();
        for (char letter = 'D'; letter <= 'Z'; ++letter)
            QVERIFY(DriveFolder(QLatin1Char(letter)) != volumes.first());
    }

    void host_paths_ignore_letter_case()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("Torviks") && disc.File("Torviks/67a.jpg"));
        QCOMPARE(HostPath(u"E:\\Torviks\\67A.JPG"_s), disc.Path() + u"/Torviks/67a.jpg"_s);
        QCOMPARE(HostPath(u"e:\\TORVIKS\\67a.jpg"_s), disc.Path() + u"/Torviks/67a.jpg"_s);
    }

    void a_file_that_is_yet_to_be_made_has_a_path()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("movies"));
        QCOMPARE(HostPath(u"E:\\Movies\\NEW.AVI"_s), disc.Path() + u"/movies/NEW.AVI"_s);
    }

    void superfluous_separators_and_points_are_cleaned_data()
    {
        QTest::addColumn<QString>("path");
        for (const char* path :
             {"E:\\Torviks\\a.jpg", "E:\\\\Torviks\\\\a.jpg", "E:\\Torviks/a.jpg", "E:\\.\\Torviks\\.\\a.jpg",
              "E:\\x\\..\\Torviks\\a.jpg", "E:\\..\\..\\..\\Torviks\\a.jpg", "E:\\Torviks\\a.jpg\\",
              "E:\\Torviks\\x\\y\\..\\..\\a.jpg"})
            QTest::addRow("%s", path) << QString::fromLatin1(path);
    }
    void superfluous_separators_and_points_are_cleaned()
    {
        QFETCH(QString, path);
        const DiscFolder disc;
        QVERIFY(disc.Folder("Torviks") && disc.File("Torviks/a.jpg"));
        QCOMPARE(HostPath(path), disc.Path() + u"/Torviks/a.jpg"_s);
    }

    void points_never_lead_out_of_the_drive()
    {
        const DiscFolder disc;
        QCOMPARE(HostPath(u"E:\\.."_s), disc.Path());
        QCOMPARE(HostPath(u"E:\\..\\..\\etc\\passwd"_s), disc.Path() + u"/etc/passwd"_s);
        QCOMPARE(HostPath(u"E:\\a/../../../etc"_s), disc.Path() + u"/etc"_s);
        QCOMPARE(HostPath(u"E:\\..."_s), disc.Path() + u"/..."_s);
    }

    void what_is_no_drive_path_is_a_bad_file_name_data()
    {
        QTest::addColumn<QString>("path");
        for (const char* path : {"", "E", "E:", "E:Torviks", "/etc/passwd", "Torviks\\a.jpg",
                                 "\\\\server\\share", "1:\\a", "\u00C4:\\a", "E:/a", " E:\\a"})
            QTest::addRow("'%s'", path) << QString::fromUtf8(path);
        QTest::addRow("zero character") << u"E:\\a"_s + QChar(u'\0') + u"b"_s;
    }
    void what_is_no_drive_path_is_a_bad_file_name()
    {
        QFETCH(QString, path);
        const DiscFolder disc;
        QCOMPARE(FailureOf([&] { HostPath(path); }), failure::badFileName);
        QCOMPARE(FailureOf([&] { HostPathBytes(path); }), failure::badFileName);
    }

    void a_letter_that_stands_for_nothing_is_unavailable()
    {
        for (const char* path : {"A:\\a", "B:\\a", "F:\\a", "z:\\"})
            QCOMPARE(FailureOf([&] { HostPath(QString::fromLatin1(path)); }), failure::deviceUnavailable);
    }

    void names_that_are_no_utf8_are_reached_by_their_bytes()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("f\xFC.jpg"));
        const QString path = u"E:\\F"_s + QChar(0xF7FC) + u".JPG"_s;
        QCOMPARE(HostPathBytes(path), disc.Host("f\xFC.jpg"));
    }

    void drive_paths_of_host_paths()
    {
        QCOMPARE(DrivePath(u"/opt/torvik"_s), u"C:\\opt\\torvik"_s);
        QCOMPARE(DrivePath(u"/opt/torvik/"_s), u"C:\\opt\\torvik"_s);
        QCOMPARE(DrivePath(u"/"_s), u"C:\\"_s);
        QCOMPARE(DrivePath(u"/a//b/./c/../d"_s), u"C:\\a\\b\\d"_s);
        QCOMPARE(DrivePath(u"/Größe/my disc"_s), u"C:\\Größe\\my disc"_s);
    }

    void a_host_path_comes_back_from_its_drive_path()
    {
        const DiscFolder disc;
        for (const char* name : {"plain", "two words", "Größe", "Ёлка", "back\\slash", "a:b", "*?"}) {
            QVERIFY(disc.File(name));
            const QString path = disc.Path() + u'/' + QString::fromUtf8(name);
            QCOMPARE(HostPath(DrivePath(path)), path);
        }
    }

private:
    QTemporaryDir program_;
};

TORVIK_TEST(DrivesTest)
#include "drives_test.moc"
