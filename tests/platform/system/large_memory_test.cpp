#include "platform/system/large_memory.h"
#include "support/test_class.h"

#include <algorithm>
#include <limits>
#include <span>

using namespace torvik;

/// Memory that is made ready in one go.
class LargeMemoryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void all_of_it_can_be_written_and_read_data()
    {
        QTest::addColumn<int>("size");
        QTest::newRow("a byte") << 1;
        QTest::newRow("some whole pages") << 16 * 4096;
        QTest::newRow("an odd number of bytes") << 20'000'001;
    }
    void all_of_it_can_be_written_and_read()
    {
        QFETCH(int, size);
        auto* memory = static_cast<unsigned char*>(TakeLargeMemory(static_cast<std::size_t>(size)));
        QVERIFY(memory != nullptr);
        const std::span bytes(memory, static_cast<std::size_t>(size));
        std::fill(bytes.begin(), bytes.end(), static_cast<unsigned char>(0xA5));
        QCOMPARE(std::count(bytes.begin(), bytes.end(), 0xA5), size);
        FreeLargeMemory(memory);
    }

    void more_than_there_can_be_is_none()
    {
        QVERIFY(TakeLargeMemory(std::numeric_limits<std::size_t>::max()) == nullptr);
        QVERIFY(TakeLargeMemory(std::numeric_limits<std::size_t>::max() / 4) == nullptr);
    }
};

TORVIK_APPLESS_TEST(LargeMemoryTest)
#include "large_memory_test.moc"
