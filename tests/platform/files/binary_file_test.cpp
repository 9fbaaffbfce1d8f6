#include "platform/files/binary_file.h"
#include "platform/files/files.h"
#include "support/discs/disc_folder.h"
#include "support/failure_of.h"
#include "support/ordinary_user.h"
#include "support/test_class.h"

#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace torvik;

class BinaryFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pieces_are_read_one_after_the_other()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("a.jpg", "abcdefgh"));
        BinaryInput input(On("A.JPG"));
        QByteArray buffer(5, '-');
        input.Read(buffer, 5);
        QCOMPARE(buffer, QByteArray("abcde"));
        input.Read(buffer, 3);
        QCOMPARE(buffer.left(3), QByteArray("fgh"));
    }

    void reading_past_the_end_is_a_failure()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("a.jpg", "abc"));
        BinaryInput input(On("a.jpg"));
        QByteArray buffer(4, '-');
        QCOMPARE(FailureOf([&] { input.Read(buffer, 4); }), failure::inputPastEnd);
    }

    void what_cannot_be_read_has_its_number()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("folder") && disc.File("secret"));
        QCOMPARE(FailureOf([] { BinaryInput file(On("none")); }), failure::fileNotFound);
        QCOMPARE(FailureOf([] { BinaryInput file(On("none\\none")); }), failure::pathNotFound);
        QCOMPARE(FailureOf([] { BinaryInput file(On("folder")); }), failure::pathFileAccess);
        QCOMPARE(FailureOf([] { BinaryInput file(u"F:\\a"_s); }), failure::deviceUnavailable);
        QCOMPARE(chmod(disc.Host("secret").c_str(), 0), 0);
        const OrdinaryUser user;
        QVERIFY2(OrdinaryUser::IsOne(), OrdinaryUser::isNeeded);
        QCOMPARE(FailureOf([] { BinaryInput file(On("secret")); }), failure::permissionDenied);
    }

    void an_error_of_the_device_is_told()
    {
        // The memory of a process has nothing at its address zero.
        BinaryInput input(u"C:\\proc\\self\\mem"_s);
        QByteArray buffer(4, '-');
        QCOMPARE(FailureOf([&] { input.Read(buffer, 4); }), failure::deviceIo);
    }

    void pieces_are_written_one_after_the_other()
    {
        const DiscFolder disc;
        BinaryOutput output(On("New.jpg"));
        output.Write("abcdef", 4);
        output.Write("xyz", 3);
        output.Close();
        output.Close();
        QCOMPARE(ReadFile(On("NEW.JPG")), QByteArray("abcdxyz"));
    }

    void an_existing_file_is_emptied_first()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("a.jpg", "long content"));
        {
            BinaryOutput output(On("A.JPG"));
            output.Write("x", 1);
        }
        QCOMPARE(ReadFile(On("a.jpg")), QByteArray("x"));
        QVERIFY(!QFile::exists(disc.Path() + u"/A.JPG"_s));
    }

    void what_cannot_be_written_has_its_number()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("folder") && disc.Folder("closed"));
        QCOMPARE(mkfifo(disc.Host("pipe").c_str(), 0600), 0);
        QCOMPARE(FailureOf([] { BinaryOutput file(On("none\\a")); }), failure::pathNotFound);
        QCOMPARE(FailureOf([] { BinaryOutput file(On("folder")); }), failure::pathFileAccess);
        QCOMPARE(FailureOf([] { BinaryOutput file(On("pipe")); }), failure::pathFileAccess);
        QCOMPARE(FailureOf([] { BinaryOutput file(u"F:\\a"_s); }), failure::deviceUnavailable);
        QCOMPARE(chmod(disc.Host("closed").c_str(), 0555), 0);
        const OrdinaryUser user;
        QVERIFY2(OrdinaryUser::IsOne(), OrdinaryUser::isNeeded);
        QCOMPARE(FailureOf([] { BinaryOutput file(On("closed\\a")); }), failure::permissionDenied);
    }

    void a_full_disk_is_told()
    {
        const DiscFolder disc;
        BinaryOutput output(On("a"));
        rlimit before{};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
        const rlimit small{1000, before.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
        const int within = FailureOf([&] { output.Write(QByteArray(1000, 'x'), 1000); });
        const int beyond = FailureOf([&] { output.Write("x", 1); });
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);
        QCOMPARE(within, 0);
        QCOMPARE(beyond, failure::diskFull);
    }
};

TORVIK_TEST(BinaryFileTest)
#include "binary_file_test.moc"
