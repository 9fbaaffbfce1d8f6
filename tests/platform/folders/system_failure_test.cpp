#include "platform/folders/system_failure.h"
#include "runtime/failure.h"
#include "support/discs/disc_folder.h"
#include "support/test_class.h"

#include <cerrno>
#include <utility>

using namespace torvik;

class SystemFailureTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void each_kind_of_error_has_its_number()
    {
        const std::pair<int, int> rows[] = {
            {EACCES, 70},    {EPERM, 70},  {ENOSPC, 61}, {EDQUOT, 61}, {EFBIG, 61}, {EIO, 57},
            {EEXIST, 58},    {EMFILE, 67}, {ENFILE, 67}, {ENODEV, 68}, {ENXIO, 68}, {ESTALE, 68},
            {ENOMEDIUM, 68}, {ENOMEM, 7},  {EROFS, 75},  {EISDIR, 75}, {EBUSY, 75}, {EINVAL, 75},
        };
        for (const auto& [error, number] : rows)
            QCOMPARE(FailureOfSystem(error, "/usr/a"), number);
    }

    void what_is_missing_in_an_existing_folder_is_a_file()
    {
        const DiscFolder disc;
        QCOMPARE(FailureOfSystem(ENOENT, disc.Host("a")), failure::fileNotFound);
        QCOMPARE(FailureOfSystem(ELOOP, disc.Host("a")), failure::fileNotFound);
        QCOMPARE(FailureOfSystem(ENAMETOOLONG, disc.Host(std::string(300, 'a'))), failure::fileNotFound);
        QCOMPARE(FailureOfSystem(ENOENT, "/nothing"), failure::fileNotFound);
    }

    void what_is_missing_with_its_folder_is_a_path()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("file"));
        QCOMPARE(FailureOfSystem(ENOENT, disc.Host("none/a")), failure::pathNotFound);
        QCOMPARE(FailureOfSystem(ENOTDIR, disc.Host("file/a")), failure::pathNotFound);
    }
};

TORVIK_TEST(SystemFailureTest)
#include "system_failure_test.moc"
