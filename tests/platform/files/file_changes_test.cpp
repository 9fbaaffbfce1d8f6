#include "platform/files/file_changes.h"
#include "platform/files/files.h"
#include "support/discs/disc_folder.h"
#include "support/failure_of.h"
#include "support/ordinary_user.h"
#include "support/test_class.h"

#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace torvik;

class FileChangesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_file_is_deleted_in_any_letter_case()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("Torviks") && disc.File("Torviks/67a.jpg") && disc.File("Torviks/67b.jpg"));
        DeleteFile(On("TORVIKS\\67A.JPG"));
        QCOMPARE(FilesMatching(On("Torviks\\*.jpg")), QStringList{u"67b.jpg"_s});
    }

    void a_deleted_file_is_gone_at_once_in_every_spelling()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("67a.jpg"));
        QVERIFY(FileExists(On("67A.JPG")));
        DeleteFile(On("67A.JPG"));
        QVERIFY(!FileExists(On("67A.JPG")));
        QVERIFY(!FileExists(On("67a.jpg")));
        QCOMPARE(FailureOf([] { DeleteFile(On("67A.JPG")); }), failure::fileNotFound);
    }

    void what_is_no_file_is_not_deleted()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("folder"));
        QCOMPARE(FailureOf([] { DeleteFile(On("folder")); }), failure::fileNotFound);
        QCOMPARE(FailureOf([] { DeleteFile(On("none\\a")); }), failure::pathNotFound);
        QCOMPARE(FailureOf([] { DeleteFile(u"F:\\a"_s); }), failure::deviceUnavailable);
        QVERIFY(QFileInfo(disc.Path() + u"/folder"_s).isDir());
    }

    void a_file_in_a_closed_folder_stays()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("closed") && disc.File("closed/a.jpg") && disc.File("closed/b.jpg"));
        QCOMPARE(chmod(disc.Host("closed").c_str(), 0555), 0);
        const OrdinaryUser user;
        QVERIFY2(OrdinaryUser::IsOne(), OrdinaryUser::isNeeded);
        QCOMPARE(FailureOf([] { DeleteFile(On("closed\\a.jpg")); }), failure::permissionDenied);
        QCOMPARE(FailureOf([] { DeleteFilesMatching(On("closed\\*.jpg")); }), failure::permissionDenied);
        QCOMPARE(FilesMatching(On("closed\\*.jpg")).size(), 2);
    }

    void a_link_is_deleted_and_not_what_it_leads_to()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("original", "x") && disc.Link("original", "a.jpg") &&
                disc.Link("original", "b.jpg"));
        DeleteFile(On("a.jpg"));
        DeleteFilesMatching(On("*.jpg"));
        QCOMPARE(ReadFile(On("original")), QByteArray("x"));
        QVERIFY(!FileExists(On("a.jpg")));
        QVERIFY(!FileExists(On("b.jpg")));
    }

    void all_files_of_a_pattern_are_deleted_and_no_other()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("Torviks") && disc.Folder("Torviks/folder.jpg"));
        for (const char* name : {"a.jpg", "A.JPG", "b.Jpg", "note.rtf", ".hidden.jpg"})
            QVERIFY(disc.File(std::string("Torviks/") + name));
        DeleteFilesMatching(On("torviks\\*.jpg"));
        const QStringList left =
            QDir(disc.Path() + u"/Torviks"_s)
                .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
        QCOMPARE(left, (QStringList{u".hidden.jpg"_s, u"folder.jpg"_s, u"note.rtf"_s}));
    }

    void a_pattern_without_files_finds_none_to_delete()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("a.rtf"));
        QCOMPARE(FailureOf([] { DeleteFilesMatching(On("*.jpg")); }), failure::fileNotFound);
        QCOMPARE(FailureOf([] { DeleteFilesMatching(On("none\\*.jpg")); }), failure::fileNotFound);
        QCOMPARE(FailureOf([] { DeleteFilesMatching(u"F:\\*.jpg"_s); }), failure::deviceUnavailable);
    }

    void an_empty_folder_is_removed()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("Torviks"));
        RemoveFolder(On("TORVIKS\\"));
        QVERIFY(!QFileInfo::exists(disc.Path() + u"/Torviks"_s));
        QCOMPARE(FailureOf([] { RemoveFolder(On("Torviks")); }), failure::pathNotFound);
        MakeFolder(On("TORVIKS"));
        QVERIFY(QFileInfo(disc.Path() + u"/TORVIKS"_s).isDir());
    }

    void a_folder_with_something_in_it_stays()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("Torviks") && disc.File("Torviks/note.rtf") && disc.File("file"));
        QCOMPARE(FailureOf([] { RemoveFolder(On("Torviks")); }), failure::pathFileAccess);
        QCOMPARE(FailureOf([] { RemoveFolder(On("file")); }), failure::pathFileAccess);
        QCOMPARE(FailureOf([] { RemoveFolder(On("none\\none")); }), failure::pathNotFound);
        QVERIFY(FileExists(On("Torviks\\note.rtf")));
    }

    void a_folder_in_a_closed_one_is_not_removed()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("closed") && disc.Folder("closed/inner"));
        QCOMPARE(chmod(disc.Host("closed").c_str(), 0555), 0);
        const OrdinaryUser user;
        QVERIFY2(OrdinaryUser::IsOne(), OrdinaryUser::isNeeded);
        QCOMPARE(FailureOf([] { RemoveFolder(On("closed\\inner")); }), failure::permissionDenied);
    }

    void a_copy_takes_the_place_of_what_is_there()
    {
        const DiscFolder disc;
        const std::string content(3'000'000, 'x');
        QVERIFY(disc.File("saver", content) && disc.File("Target.scr", "before"));
        QCOMPARE(chmod(disc.Host("saver").c_str(), 0755), 0);
        ReplaceByCopy(On("SAVER"), On("TARGET.SCR"));
        QCOMPARE(ReadFile(On("target.scr")).toStdString(), content);
        QVERIFY(QFileInfo(disc.Path() + u"/Target.scr"_s).isExecutable());
        QCOMPARE(FilesMatching(On("*")).size(), 2);
        QCOMPARE(ReadFile(On("saver")).toStdString(), content);
    }

    void a_copy_is_made_where_nothing_is()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("saver"));
        ReplaceByCopy(On("saver"), On("New.scr"));
        QCOMPARE(ReadFile(On("NEW.SCR")), QByteArray());
    }

    void a_copy_that_fails_leaves_what_was_there()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("saver", std::string(5000, 'x')) && disc.File("target", "before") &&
                disc.Folder("folder"));
        QCOMPARE(FailureOf([] { ReplaceByCopy(On("none"), On("target")); }), failure::fileNotFound);
        QCOMPARE(FailureOf([] { ReplaceByCopy(On("folder"), On("target")); }), failure::pathFileAccess);
        QCOMPARE(FailureOf([] { ReplaceByCopy(On("saver"), On("folder")); }), failure::pathFileAccess);
        QCOMPARE(FailureOf([] { ReplaceByCopy(On("saver"), On("none\\a")); }), failure::pathNotFound);
        rlimit before{};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
        const rlimit small{1000, before.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
        const int full = FailureOf([] { ReplaceByCopy(On("saver"), On("target")); });
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);
        QCOMPARE(full, failure::diskFull);
        QCOMPARE(ReadFile(On("target")), QByteArray("before"));
        QCOMPARE(FilesMatching(On("*")).size(), 2);
    }

    void a_file_is_not_copied_onto_itself()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("saver", "content") && disc.Link("saver", "other"));
        QCOMPARE(FailureOf([] { ReplaceByCopy(On("saver"), On("SAVER")); }), failure::pathFileAccess);
        QCOMPARE(FailureOf([] { ReplaceByCopy(On("saver"), On("other")); }), failure::pathFileAccess);
        QCOMPARE(ReadFile(On("saver")), QByteArray("content"));
    }

    void one_file_by_two_ways_is_the_same()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("a") && disc.File("a/x") && disc.File("a/y") && disc.Link("a", "b"));
        QVERIFY(IsSameFile(On("a\\x"), On("A\\X")));
        QVERIFY(IsSameFile(On("a\\x"), On("b\\x")));
        QVERIFY(IsSameFile(On("a\\"), On("b")));
        QVERIFY(!IsSameFile(On("a\\x"), On("a\\y")));
        QVERIFY(!IsSameFile(On("none"), On("none")));
        QVERIFY(!IsSameFile(u"F:\\a"_s, u"F:\\a"_s));
    }
};

TORVIK_TEST(FileChangesTest)
#include "file_changes_test.moc"
