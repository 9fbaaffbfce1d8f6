#include "platform/paths/writable_folder.h"
#include "support/disc_folder.h"
#include "support/ordinary_user.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

class WritableFolderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_folder_of_ones_own_is_writable_and_stays_empty()
    {
        const DiscFolder disc;
        QVERIFY(IsWritableFolder(disc.Path()));
        QVERIFY(QDir(disc.Path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    }

    void a_folder_with_an_odd_name_is_writable()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("Größe XXXXXX %1"));
        QVERIFY(IsWritableFolder(disc.Path() + u"/Größe XXXXXX %1"_s));
    }

    void what_is_no_folder_is_not_writable()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("file"));
        QVERIFY(!IsWritableFolder(disc.Path() + u"/file"_s));
        QVERIFY(!IsWritableFolder(disc.Path() + u"/none"_s));
        QVERIFY(!IsWritableFolder(QString()));
    }

    void a_file_system_that_takes_no_files_is_not_writable_for_anybody()
    {
        QVERIFY(!IsWritableFolder(u"/proc"_s));
        QVERIFY(!IsWritableFolder(u"/sys"_s));
    }

    void a_folder_without_permission_is_not_writable()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("closed"));
        QCOMPARE(chmod(disc.Host("closed").c_str(), 0555), 0);
        const OrdinaryUser user;
        QVERIFY(OrdinaryUser::IsOne());
        QVERIFY(!IsWritableFolder(disc.Path() + u"/closed"_s));
    }
};

TORVIK_TEST(WritableFolderTest)
#include "writable_folder_test.moc"
