#include "platform/paths/drives.h"
#include "platform/paths/program_folder.h"
#include "support/disc_folder.h"
#include "support/failure_of.h"

#include <QTest>

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
        QDir(program_.path()).rmdir(QStringLiteral("disc"));
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
        QCOMPARE(DriveFolder(u'C'), QStringLiteral("/"));
        QCOMPARE(DriveFolder(u'c'), QStringLiteral("/"));
        QCOMPARE(HostPath(QStringLiteral("C:\\")), QStringLiteral("/"));
        QCOMPARE(HostPath(QStringLiteral("C:\\usr")), QStringLiteral("/usr"));
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
        SetDriveOptions({{u'G', QStringLiteral("/usr")}, {u'G', QStringLiteral("/etc")}});
        QCOMPARE(DriveFolder(u'G'), QStringLiteral("/etc"));
    }

    void an_option_without_letter_takes_the_first_that_the_others_leave()
    {
        SetDriveOptions({{QChar(), QStringLiteral("/usr")},
                         {u'D', QStringLiteral("/etc")},
                         {QChar(), QStringLiteral("/var")}});
        QCOMPARE(DriveFolder(u'D'), QStringLiteral("/etc"));
        QCOMPARE(DriveFolder(u'E'), QStringLiteral("/usr"));
        QCOMPARE(DriveFolder(u'F'), QStringLiteral("/var"));
    }

    void a_letter_outside_d_to_z_is_a_failure_and_changes_nothing()
    {
        SetDriveOptions({{u'E', QStringLiteral("/etc")}});
        for (const QChar letter : {QChar(u'C'), QChar(u'A'), QChar(u'1'), QChar(u'Ä'), QChar(u'[')}) {
            QCOMPARE(FailureOf([&] {
                         SetDriveOptions({{u'E', QStringLiteral("/usr")}, {letter, QStringLiteral("/usr")}});
                     }),
                     failure::invalidCall);
        }
        QCOMPARE(DriveFolder(u'E'), QStringLiteral("/etc"));
    }

    void a_folder_is_taken_from_the_current_one_and_cleaned()
    {
        const QTemporaryDir folder;
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder.path()));
        SetDriveOptions({{u'E', QStringLiteral("disc/../other/")}});
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(DriveFolder(u'E'), folder.path() + QStringLiteral("/other"));
    }

    void the_root_can_stand_for_a_letter()
    {
        SetDriveOptions({{u'E', QStringLiteral("/")}});
        QCOMPARE(DriveFolder(u'E'), QStringLiteral("/"));
        QCOMPARE(HostPath(QStringLiteral("E:\\usr")), QStringLiteral("/usr"));
        QCOMPARE(HostPath(QStringLiteral("E:\\..\\usr")), QStringLiteral("/usr"));
    }

    void volumes_take_the_letters_that_the_options_leave_in_their_order()
    {
        volumes = {QStringLiteral("/etc"), QStringLiteral("/usr")};
        SetDriveOptions({{u'E', QStringLiteral("/var")}});
        QCOMPARE(DriveFolder(u'D'), QString());
        RefreshDrives();
        QCOMPARE(DriveFolder(u'D'), QStringLiteral("/etc"));
        QCOMPARE(DriveFolder(u'E'), QStringLiteral("/var"));
        QCOMPARE(DriveFolder(u'F'), QStringLiteral("/usr"));
    }

    void more_volumes_than_letters_leave_the_last_without()
    {
        for (int i = 0; i < 40; ++i)
            volumes.append(QStringLiteral("/volume%1").arg(i));
        RefreshDrives();
        QCOMPARE(DriveFolder(u'D'), QStringLiteral("/volume0"));
        QCOMPARE(DriveFolder(u'Z'), QStringLiteral("/volume22"));
    }

    void a_refresh_sees_the_disc_that_was_put_in_and_the_one_that_was_taken_out()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("a.jpg"));
        SetDriveOptions({});
        QCOMPARE(FailureOf([] { HostPath(QStringLiteral("D:\\a.jpg")); }), failure::deviceUnavailable);
        volumes = {disc.Path()};
        RefreshDrives();
        QCOMPARE(HostPath(QStringLiteral("D:\\A.JPG")), disc.Path() + QStringLiteral("/a.jpg"));
        volumes.clear();
        RefreshDrives();
        QCOMPARE(FailureOf([] { HostPath(QStringLiteral("D:\\A.JPG")); }), failure::deviceUnavailable);
    }

    void a_drive_that_vanishes_between_two_calls_is_unavailable()
    {
        DiscFolder disc;
        QVERIFY(disc.Folder("Torviks") && disc.File("Torviks/a.jpg"));
        QCOMPARE(HostPath(QStringLiteral("E:\\TORVIKS\\A.JPG")),
                 disc.Path() + QStringLiteral("/Torviks/a.jpg"));
        disc.Vanish();
        QCOMPARE(FailureOf([] { HostPath(QStringLiteral("E:\\TORVIKS\\A.JPG")); }),
                 failure::deviceUnavailable);
        QCOMPARE(FailureOf([] { HostPath(QStringLiteral("E:\\")); }), failure::deviceUnavailable);
    }

    void z_is_the_embedded_disc_where_it_is_free()
    {
        QVERIFY(QDir(program_.path()).mkdir(QStringLiteral("disc")));
        RefreshDrives();
        QCOMPARE(DriveFolder(u'Z'), program_.path() + QStringLiteral("/disc"));
        SetDriveOptions({{u'Z', QStringLiteral("/usr")}});
        RefreshDrives();
        QCOMPARE(DriveFolder(u'Z'), QStringLiteral("/usr"));
    }

    void a_file_named_disc_is_no_embedded_disc()
    {
        QFile file(program_.filePath(QStringLiteral("disc")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        RefreshDrives();
        QCOMPARE(DriveFolder(u'Z'), QString());
        QVERIFY(file.remove());
    }

    void the_machines_own_volumes_come_back()
    {
        volumes = {QStringLiteral("/nowhere-at-all")};
        SetVolumeLister(nullptr);
        RefreshDrives();
        for (char letter = 'D'; letter <= 'Z'; ++letter)
            QVERIFY(DriveFolder(QLatin1Char(letter)) != volumes.first());
    }

    void host_paths_ignore_letter_case()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("Torviks") && disc.File("Torviks/67a.jpg"));
        QCOMPARE(HostPath(QStringLiteral("E:\\Torviks\\67A.JPG")),
                 disc.Path() + QStringLiteral("/Torviks/67a.jpg"));
        QCOMPARE(HostPath(QStringLiteral("e:\\TORVIKS\\67a.jpg")),
                 disc.Path() + QStringLiteral("/Torviks/67a.jpg"));
    }

    void a_file_that_is_yet_to_be_made_has_a_path()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("movies"));
        QCOMPARE(HostPath(QStringLiteral("E:\\Movies\\NEW.AVI")),
                 disc.Path() + QStringLiteral("/movies/NEW.AVI"));
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
        QCOMPARE(HostPath(path), disc.Path() + QStringLiteral("/Torviks/a.jpg"));
    }

    void points_never_lead_out_of_the_drive()
    {
        const DiscFolder disc;
        QCOMPARE(HostPath(QStringLiteral("E:\\..")), disc.Path());
        QCOMPARE(HostPath(QStringLiteral("E:\\..\\..\\etc\\passwd")),
                 disc.Path() + QStringLiteral("/etc/passwd"));
        QCOMPARE(HostPath(QStringLiteral("E:\\a/../../../etc")), disc.Path() + QStringLiteral("/etc"));
        QCOMPARE(HostPath(QStringLiteral("E:\\...")), disc.Path() + QStringLiteral("/..."));
    }

    void what_is_no_drive_path_is_a_bad_file_name_data()
    {
        QTest::addColumn<QString>("path");
        for (const char* path : {"", "E", "E:", "E:Torviks", "/etc/passwd", "Torviks\\a.jpg",
                                 "\\\\server\\share", "1:\\a", "\u00C4:\\a", "E:/a", " E:\\a"})
            QTest::addRow("'%s'", path) << QString::fromUtf8(path);
        QTest::addRow("zero character") << QStringLiteral("E:\\a") + QChar(u'\0') + QStringLiteral("b");
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
        const QString path = QStringLiteral("E:\\F") + QChar(0xF7FC) + QStringLiteral(".JPG");
        QCOMPARE(HostPathBytes(path), disc.Host("f\xFC.jpg"));
    }

    void drive_paths_of_host_paths()
    {
        QCOMPARE(DrivePath(QStringLiteral("/opt/torvik")), QStringLiteral("C:\\opt\\torvik"));
        QCOMPARE(DrivePath(QStringLiteral("/opt/torvik/")), QStringLiteral("C:\\opt\\torvik"));
        QCOMPARE(DrivePath(QStringLiteral("/")), QStringLiteral("C:\\"));
        QCOMPARE(DrivePath(QStringLiteral("/a//b/./c/../d")), QStringLiteral("C:\\a\\b\\d"));
        QCOMPARE(DrivePath(QStringLiteral("/Größe/my disc")), QStringLiteral("C:\\Größe\\my disc"));
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

QTEST_MAIN(DrivesTest)
#include "drives_test.moc"
