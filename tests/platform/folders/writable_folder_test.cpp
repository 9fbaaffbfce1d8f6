#include "platform/folders/writable_folder.h"
#include "support/discs/disc_folder.h"
#include "support/ordinary_user.h"
#include "support/test_class.h"

#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// While it lives no file can be opened: so a folder's permissions allow what fails all the same, as on a
/// file system that is read-only to the administrator as well.
class NoFreeDescriptors {
public:
    NoFreeDescriptors()
    {
        getrlimit(RLIMIT_NOFILE, &before_);
        const rlimit none{0, before_.rlim_max};
        setrlimit(RLIMIT_NOFILE, &none);
    }
    ~NoFreeDescriptors() { setrlimit(RLIMIT_NOFILE, &before_); }
    NoFreeDescriptors(const NoFreeDescriptors&) = delete;
    NoFreeDescriptors& operator=(const NoFreeDescriptors&) = delete;

private:
    rlimit before_{};
};

} // namespace

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

    void a_folder_that_takes_no_files_is_not_writable_for_anybody()
    {
        const DiscFolder disc;
        const NoFreeDescriptors none;
        QCOMPARE(access(qPrintable(disc.Path()), W_OK | X_OK), 0);
        QVERIFY(!IsWritableFolder(disc.Path()));
    }

    void a_folder_without_permission_is_not_writable()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("closed"));
        QCOMPARE(chmod(disc.Host("closed").c_str(), 0555), 0);
        const OrdinaryUser user;
        QVERIFY2(OrdinaryUser::IsOne(), OrdinaryUser::isNeeded);
        QVERIFY(!IsWritableFolder(disc.Path() + u"/closed"_s));
    }
};

TORVIK_TEST(WritableFolderTest)
#include "writable_folder_test.moc"
