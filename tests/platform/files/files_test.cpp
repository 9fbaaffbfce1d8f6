#include "platform/files/files.h"
#include "support/discs/disc_folder.h"
#include "support/failure_of.h"
#include "support/logged_messages.h"
#include "support/ordinary_user.h"
#include "support/test_class.h"

#include <sys/resource.h>
#include <thread>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

QStringList Sorted(QStringList names)
{
    names.sort();
    return names;
}

} // namespace

class FilesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void names_that_match_are_listed_without_their_folder()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("Torviks"));
        for (const char* name : {"Torviks/67A.jpg", "Torviks/68B.JPG", "Torviks/note.rtf", "outside.jpg"})
            QVERIFY(disc.File(name));
        QCOMPARE(Sorted(FilesMatching(On("TORVIKS\\*.Jpg"))), (QStringList{u"67A.jpg"_s, u"68B.JPG"_s}));
        QCOMPARE(FilesMatching(On("*.jpg")), QStringList{u"outside.jpg"_s});
    }

    void folders_and_special_files_are_no_files()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("a.jpg") && disc.File("b.jpg"));
        QCOMPARE(mkfifo(disc.Host("c.jpg").c_str(), 0600), 0);
        QCOMPARE(FilesMatching(On("*.jpg")), QStringList{u"b.jpg"_s});
        QVERIFY(!FileExists(On("a.jpg")));
        QVERIFY(!FileExists(On("c.jpg")));
    }

    void links_to_files_are_files_and_dangling_ones_are_not()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("target") && disc.Folder("folder"));
        QVERIFY(disc.Link("target", "a.jpg") && disc.Link("folder", "b.jpg") && disc.Link("gone", "c.jpg") &&
                disc.Link("d.jpg", "d.jpg"));
        QCOMPARE(FilesMatching(On("*.jpg")), QStringList{u"a.jpg"_s});
        QVERIFY(FileExists(On("A.JPG")));
        QVERIFY(!FileExists(On("b.jpg")));
        QVERIFY(!FileExists(On("c.jpg")));
        QVERIFY(!FileExists(On("d.jpg")));
    }

    void what_was_looked_for_is_logged_with_what_was_found()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("TORVIKS") && disc.File("TORVIKS/67a.Jpg"));
        const QString host = QString::fromStdString(disc.Host("TORVIKS"));
        LoggedMessages log(u"torvik.files"_s);
        FindFile(On("Torviks\\*.jpg"));
        FindFile(On("Torviks\\*.avi"));
        FileExists(On("Torviks\\67A.JPG"));
        FileExists(On("Torviks\\68A.JPG"));
        const QString folder = u"torvik.files: "_s + On("Torviks\\");
        QCOMPARE(log.Texts(),
                 (QStringList{folder + u" is "_s + host, folder + u"*.jpg: 1 found, the first is 67a.Jpg"_s,
                              folder + u" is "_s + host, folder + u"*.avi: 0 found"_s,
                              folder + u"67A.JPG is "_s + host + u"/67a.Jpg"_s,
                              folder + u"68A.JPG is "_s + host + u"/68A.JPG, which is not there"_s}));
    }

    void wildcards_stand_in_the_last_component_only()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("Torviks") && disc.File("Torviks/a.jpg"));
        QCOMPARE(FilesMatching(On("Tor*\\a.jpg")), QStringList());
        QCOMPARE(FilesMatching(On("Torviks\\?.jpg")), QStringList{u"a.jpg"_s});
    }

    void hidden_files_are_listed_only_when_they_are_asked_for()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("._67A.jpg") && disc.File("67A.jpg"));
        QCOMPARE(FilesMatching(On("*.jpg")), QStringList{u"67A.jpg"_s});
        QCOMPARE(FilesMatching(On(".*")), QStringList{u"._67A.jpg"_s});
        QVERIFY(FileExists(On("._67A.JPG")));
    }

    void names_that_differ_in_letter_case_alone_are_one()
    {
        const DiscFolder disc;
        for (const char* name : {"a.jpg", "A.jpg", "A.JPG", "b.jpg", "größe.jpg", "GRÖßE.jpg", "x.rtf"})
            QVERIFY(disc.File(name));
        QCOMPARE(Sorted(FilesMatching(On("*.jpg"))), (QStringList{u"A.JPG"_s, u"GRÖßE.jpg"_s, u"b.jpg"_s}));
    }

    void the_listed_name_of_a_clash_is_the_one_that_a_look_up_finds()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("a.jpg", "small") && disc.File("A.jpg", "capital"));
        const QStringList names = FilesMatching(On("*.jpg"));
        QCOMPARE(names.size(), 1);
        QCOMPARE(ReadFile(u"E:\\"_s + names.first().toUpper()), QByteArray("capital"));
    }

    void a_missing_folder_gives_no_names()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("file"));
        QCOMPARE(FilesMatching(On("Nothing\\*.jpg")), QStringList());
        QCOMPARE(FilesMatching(On("file\\*.jpg")), QStringList());
        QCOMPARE(FindFile(On("Nothing\\*.jpg")), QString());
    }

    void a_drive_that_stands_for_nothing_is_unavailable()
    {
        const QString path = u"F:\\Torviks\\*.jpg"_s;
        QCOMPARE(FailureOf([&] { FilesMatching(path); }), failure::deviceUnavailable);
        QCOMPARE(FailureOf([&] { FindFile(path); }), failure::deviceUnavailable);
        QCOMPARE(FailureOf([&] { FindFile(u"F:\\a.jpg"_s); }), failure::deviceUnavailable);
        QCOMPARE(FailureOf([&] { FileLength(u"F:\\a"_s); }), failure::deviceUnavailable);
        QCOMPARE(FailureOf([&] { ReadFile(u"F:\\a"_s); }), failure::deviceUnavailable);
        QCOMPARE(FailureOf([&] { MakeFolder(u"F:\\a"_s); }), failure::deviceUnavailable);
        QVERIFY(!FileExists(u"F:\\a"_s));
    }

    void a_drive_that_vanishes_between_two_calls_is_unavailable()
    {
        DiscFolder disc;
        QVERIFY(disc.Folder("Torviks") && disc.File("Torviks/a.jpg"));
        QCOMPARE(FilesMatching(On("Torviks\\*.jpg")).size(), 1);
        disc.Vanish();
        QCOMPARE(FailureOf([&] { FilesMatching(On("Torviks\\*.jpg")); }), failure::deviceUnavailable);
        QCOMPARE(FailureOf([&] { ReadFile(On("Torviks\\a.jpg")); }), failure::deviceUnavailable);
        QVERIFY(!FileExists(On("Torviks\\a.jpg")));
    }

    void what_is_no_drive_path_is_a_bad_file_name()
    {
        const QString path = u"/etc/passwd"_s;
        QCOMPARE(FailureOf([&] { FilesMatching(path); }), failure::badFileName);
        QCOMPARE(FailureOf([&] { FindFile(path); }), failure::badFileName);
        QCOMPARE(FailureOf([&] { FileLength(path); }), failure::badFileName);
        QCOMPARE(FailureOf([&] { ReadFile(path); }), failure::badFileName);
        QCOMPARE(FailureOf([&] { MakeFolder(path); }), failure::badFileName);
        QVERIFY(!FileExists(path));
    }

    void a_folder_that_may_not_be_read_is_an_access_error()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("closed") && disc.File("closed/a.jpg"));
        QCOMPARE(chmod(disc.Host("closed").c_str(), 0), 0);
        {
            const OrdinaryUser user;
            QVERIFY2(OrdinaryUser::IsOne(), OrdinaryUser::isNeeded);
            QCOMPARE(FailureOf([&] { FilesMatching(On("closed\\*.jpg")); }), failure::pathFileAccess);
            QVERIFY(!FileExists(On("closed\\a.jpg")));
            QCOMPARE(FailureOf([&] { FileLength(On("closed\\a.jpg")); }), failure::permissionDenied);
            QCOMPARE(FailureOf([&] { ReadFile(On("closed\\a.jpg")); }), failure::permissionDenied);
            QCOMPARE(FailureOf([&] { MakeFolder(On("closed\\b")); }), failure::pathFileAccess);
        }
        QCOMPARE(chmod(disc.Host("closed").c_str(), 0755), 0);
    }

    void a_folder_that_cannot_be_opened_is_an_access_error_for_anybody()
    {
        const DiscFolder disc;
        QVERIFY(disc.Link("loop", "loop"));
        QCOMPARE(FailureOf([&] { FilesMatching(On("loop\\*.jpg")); }), failure::pathFileAccess);
    }

    void too_many_open_files_are_an_access_error_of_the_folder()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("a.jpg"));
        rlimit before{};
        QCOMPARE(getrlimit(RLIMIT_NOFILE, &before), 0);
        const rlimit none{0, before.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_NOFILE, &none), 0);
        const int listing = FailureOf([&] { FilesMatching(On("*.jpg")); });
        const int reading = FailureOf([&] { ReadFile(On("a.jpg")); });
        QCOMPARE(setrlimit(RLIMIT_NOFILE, &before), 0);
        QCOMPARE(listing, failure::pathFileAccess);
        QCOMPARE(reading, 67);
    }

    void the_first_file_of_a_pattern_is_the_first_listed()
    {
        const DiscFolder disc;
        for (const char* name : {"b.jpg", "a.jpg", "A.jpg", "c.rtf"})
            QVERIFY(disc.File(name));
        QCOMPARE(FindFile(On("*.jpg")), FilesMatching(On("*.jpg")).first());
        QCOMPARE(FindFile(On("*.bmp")), QString());
    }

    void a_path_without_wildcards_gives_the_files_own_name()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("Torviks") && disc.File("Torviks/67a.Jpg") && disc.Folder("Torviks/folder"));
        QCOMPARE(FindFile(On("TORVIKS\\67A.JPG")), u"67a.Jpg"_s);
        QCOMPARE(FindFile(On("Torviks\\68A.JPG")), QString());
        QCOMPARE(FindFile(On("Torviks\\folder")), QString());
        QCOMPARE(FindFile(On("Torviks\\")), QString());
        QCOMPARE(FindFile(On("")), QString());
    }

    void hostile_names_are_listed_and_read_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("blanks") << QByteArray("  my photo  .jpg");
        QTest::newRow("umlauts") << QByteArray("Größe Öl.jpg");
        QTest::newRow("Cyrillic") << QByteArray("Ёлка.jpg");
        QTest::newRow("beyond the first plane") << QByteArray("\xF0\x9F\x9A\x97.jpg");
        QTest::newRow("255 bytes") << QByteArray(251, 'a') + ".jpg";
        QTest::newRow("no UTF-8") << QByteArray("f\xFC\x80r\xC3.jpg");
        QTest::newRow("backslash") << QByteArray("a\\b.jpg");
        QTest::newRow("line end") << QByteArray("a\nb.jpg");
        QTest::newRow("quotes") << QByteArray("'a\"b.jpg");
        QTest::newRow("colon") << QByteArray("E:a.jpg");
    }
    void hostile_names_are_listed_and_read()
    {
        QFETCH(QByteArray, name);
        const DiscFolder disc;
        QVERIFY(disc.File(name.toStdString(), "content"));
        const QStringList names = FilesMatching(On("*.JPG"));
        QCOMPARE(names.size(), 1);
        // As the photo set writes it.
        const QString path = u"E:\\"_s + names.first().toUpper();
        QVERIFY(FileExists(path));
        QCOMPARE(FindFile(path), names.first());
        QCOMPARE(FileLength(path), 7);
        QCOMPARE(ReadFile(path), QByteArray("content"));
    }

    void thirty_thousand_files_are_listed_whole()
    {
        const DiscFolder disc;
        for (int i = 0; i < 30000; ++i)
            QVERIFY(disc.File(std::to_string(i) + ".jpg"));
        QStringList names = FilesMatching(On("*.JPG"));
        QCOMPARE(names.size(), 30000);
        names.removeDuplicates();
        QCOMPARE(names.size(), 30000);
    }

    void the_length_is_that_of_the_content()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("empty") && disc.File("a.jpg", std::string(1234, 'x')));
        QCOMPARE(FileLength(On("empty")), 0);
        QCOMPARE(FileLength(On("A.JPG")), 1234);
    }

    void a_missing_file_and_a_missing_path_are_told_apart()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("file"));
        QCOMPARE(FailureOf([] { FileLength(On("a.jpg")); }), failure::fileNotFound);
        QCOMPARE(FailureOf([] { ReadFile(On("a.jpg")); }), failure::fileNotFound);
        QCOMPARE(FailureOf([] { FileLength(On("none\\a.jpg")); }), failure::pathNotFound);
        QCOMPARE(FailureOf([] { ReadFile(On("none\\a.jpg")); }), failure::pathNotFound);
        QCOMPARE(FailureOf([] { ReadFile(On("file\\a.jpg")); }), failure::pathNotFound);
        QVERIFY(!FileExists(On("none\\a.jpg")));
    }

    void a_folder_is_neither_read_nor_measured()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("folder"));
        QCOMPARE(FailureOf([] { ReadFile(On("folder")); }), failure::pathFileAccess);
        QCOMPARE(FailureOf([] { FileLength(On("folder")); }), failure::fileNotFound);
    }

    void a_pipe_without_writer_does_not_hold_the_reader_up()
    {
        const DiscFolder disc;
        QCOMPARE(mkfifo(disc.Host("pipe").c_str(), 0600), 0);
        QCOMPARE(FailureOf([] { ReadFile(On("pipe")); }), failure::pathFileAccess);
    }

    void the_whole_content_is_read()
    {
        const DiscFolder disc;
        std::string content;
        for (int i = 0; i < 300000; ++i)
            content.push_back(static_cast<char>(i * 7));
        QVERIFY(disc.File("a", content) && disc.File("empty"));
        QCOMPARE(ReadFile(On("A")).toStdString(), content);
        QCOMPARE(ReadFile(On("empty")), QByteArray());
    }

    void a_file_that_holds_more_than_it_says_is_read_whole()
    {
        const QByteArray content = ReadFile(u"C:\\proc\\self\\status"_s);
        QCOMPARE(FileLength(u"C:\\proc\\self\\status"_s), 0);
        QVERIFY(content.startsWith("Name:"));
        QVERIFY(content.endsWith('\n'));
        QVERIFY(content.size() > 200);
    }

    void an_error_of_the_device_while_reading_is_told()
    {
        // The memory of a process has nothing at its address zero.
        QCOMPARE(FailureOf([] { ReadFile(u"C:\\proc\\self\\mem"_s); }), failure::deviceIo);
    }

    void a_file_that_may_not_be_read_is_denied()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("secret", "x"));
        QCOMPARE(chmod(disc.Host("secret").c_str(), 0), 0);
        const OrdinaryUser user;
        QVERIFY2(OrdinaryUser::IsOne(), OrdinaryUser::isNeeded);
        QCOMPARE(FailureOf([] { ReadFile(On("secret")); }), failure::permissionDenied);
        QVERIFY(FileExists(On("secret")));
    }

    void a_file_beyond_all_memory_is_out_of_memory()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("huge"));
        constexpr qint64 length = qint64{3} << 30;
        QCOMPARE(truncate(disc.Host("huge").c_str(), length), 0);
        QCOMPARE(FileLength(On("huge")), length);
        QCOMPARE(FailureOf([] { ReadFile(On("huge")); }), failure::outOfMemory);
    }

    void a_file_is_looked_up_now_and_read_later_on_another_thread()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("Words.rtf", "some words"));
        const auto read = FileToRead(On("WORDS.RTF"));
        QByteArray content;
        std::thread([&] { content = read(); }).join();
        QCOMPARE(content, QByteArray("some words"));
        QVERIFY(disc.Remove("Words.rtf"));
        QCOMPARE(FailureOf([&] { read(); }), failure::fileNotFound);
        QCOMPARE(FailureOf([] { FileToRead(u"Q:\\a"_s); }), failure::deviceUnavailable);
    }

    void the_mark_of_a_folder_changes_with_its_names_and_its_medium()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("RichText") && disc.Folder("Other"));
        const QString before = FolderMark(On("richtext"));
        QVERIFY(!before.isEmpty());
        QCOMPARE(FolderMark(On("RichText")), before);
        QVERIFY(FolderMark(On("Other")) != before);
        QVERIFY(disc.File("RichText/new"));
        QVERIFY(FolderMark(On("RichText")) != before);
        QCOMPARE(FolderMark(On("None")), QString());
        QCOMPARE(FolderMark(u"Q:\\RichText"_s), QString());
    }

    void a_folder_is_made_in_an_existing_one()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("Parent"));
        MakeFolder(On("PARENT\\New"));
        QVERIFY(QDir(disc.Path() + u"/Parent/New"_s).exists());
    }

    void what_exists_in_any_letter_case_is_not_made_again()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("Torviks") && disc.File("file"));
        QCOMPARE(FailureOf([] { MakeFolder(On("TORVIKS")); }), failure::pathFileAccess);
        QCOMPARE(FailureOf([] { MakeFolder(On("FILE")); }), failure::pathFileAccess);
        QCOMPARE(FailureOf([] { MakeFolder(On("")); }), failure::pathFileAccess);
    }

    void a_folder_without_parent_is_not_made()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("file"));
        QCOMPARE(FailureOf([] { MakeFolder(On("none\\New")); }), failure::pathNotFound);
        QCOMPARE(FailureOf([] { MakeFolder(On("file\\New")); }), failure::pathNotFound);
    }

    void a_folder_whose_name_is_too_long_is_not_made()
    {
        const DiscFolder disc;
        QCOMPARE(FailureOf([] { MakeFolder(On("") + QString(300, u'a')); }), failure::pathFileAccess);
    }

    void a_folder_that_was_made_is_found_at_once()
    {
        const DiscFolder disc;
        QVERIFY(!FileExists(On("NEW\\a")));
        MakeFolder(On("New"));
        QVERIFY(disc.File("New/a"));
        QVERIFY(FileExists(On("NEW\\A")));
    }
};

TORVIK_TEST(FilesTest)
#include "files_test.moc"
