#include "platform/system/freed_memory.h"
#include "support/test_class.h"

#include <memory>
#include <vector>

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
#include <malloc.h>
#endif

using namespace torvik;

/// What becomes of the memory of pictures that are gone.
class FreedMemoryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
// The sanitizers bring an allocator of their own, which neither takes the setting nor answers the question.
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
    void what_pictures_leave_between_small_blocks_goes_back_to_the_system()
    {
        GiveFreedMemoryBack();
        std::make_unique<char[]>(16 * mebibyte).reset(); // a picture at its natural size
        const std::size_t before = mallinfo2().fordblks;
        std::vector<std::unique_ptr<char[]>> pictures;
        std::vector<std::unique_ptr<char[]>> small;
        for (int number = 0; number < 40; ++number) {
            pictures.push_back(std::make_unique<char[]>(mebibyte));
            small.push_back(std::make_unique<char[]>(100));
        }
        pictures.clear();
        const std::size_t kept = mallinfo2().fordblks - before;
        QVERIFY2(kept < mebibyte, QByteArray::number(static_cast<qulonglong>(kept)).constData());
    }

private:
    static constexpr std::size_t mebibyte = 1'048'576;
#endif
};

TORVIK_TEST(FreedMemoryTest)
#include "freed_memory_test.moc"
