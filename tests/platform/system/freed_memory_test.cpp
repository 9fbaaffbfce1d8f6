#include "platform/system/freed_memory.h"
#include "support/test_class.h"

#include <memory>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif

using namespace torvik;

namespace {

constexpr std::size_t mebibyte = 1'048'576;

/// The free memory that the C library keeps, in bytes. The sanitizers bring an allocator of their own, and it
/// keeps none.
std::size_t KeptByTheLibrary()
{
#ifdef __GLIBC__
    return mallinfo2().fordblks;
#else
    return 0; // others do not tell
#endif
}

} // namespace

/// What becomes of the memory of pictures that are gone.
class FreedMemoryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void what_pictures_leave_between_small_blocks_goes_back_to_the_system()
    {
        GiveFreedMemoryBack();
        std::make_unique<char[]>(16 * mebibyte).reset(); // a picture at its natural size
        const std::size_t before = KeptByTheLibrary();
        std::vector<std::unique_ptr<char[]>> pictures;
        std::vector<std::unique_ptr<char[]>> small;
        for (int number = 0; number < 40; ++number) {
            pictures.push_back(std::make_unique<char[]>(mebibyte));
            small.push_back(std::make_unique<char[]>(100));
        }
        pictures.clear();
        const std::size_t after = KeptByTheLibrary();
        QVERIFY2(after < before + mebibyte, QByteArray::number(static_cast<qulonglong>(after)).constData());
    }
};

TORVIK_TEST(FreedMemoryTest)
#include "freed_memory_test.moc"
