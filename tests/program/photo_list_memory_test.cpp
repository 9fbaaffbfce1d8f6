#include "program/photo_list.h"
#include "program/program_state.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/program_end.h"

#include <cstdlib>
#include <new>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// Requests of this many bytes and more are refused; 0 grants all.
std::size_t refusedFrom = 0;

} // namespace

void* operator new(std::size_t size)
{
    if (refusedFrom != 0 && size >= refusedFrom)
        throw std::bad_alloc();
    if (void* memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

/// The list of photos where memory is short.
class PhotoListMemoryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddFile(u"Torviks/67A.JPG"_s, "x");
        for (int number = 1; number < count; ++number)
            program_->disc.AddFile(u"Torviks/68%1.JPG"_s.arg(number, 3, 10, QLatin1Char('0')), "x");
        state.PhotoRoot = u"G:"_s;
    }
    void cleanup()
    {
        refusedFrom = 0;
        program_.reset();
    }

    void lack_of_memory_is_asked_about_and_retry_builds_the_whole_list()
    {
        program_->messages.Answer(msgbox::answerRetry);
        program_->messages.Answer(msgbox::answerRetry);
        program_->messages.WhenAsked([this] { // still none at the first Retry
            program_->messages.WhenAsked([] { refusedFrom = 0; });
        });
        refusedFrom = sizeof(QString) * count;
        BuildPhotoSet();
        QCOMPARE(program_->messages.Count(), 2);
        QVERIFY(program_->messages.Last().text.startsWith(
            u"Error number: ER037\r\n\r\n Unable to load the photo array."_s));
        QCOMPARE(program_->messages.Last().style, 5);
        QCOMPARE(int(state.PhotoCount), count);
        QCOMPARE(state.PhotoFiles(1), u"G:\\Torviks\\67A.JPG"_s);
        QCOMPARE(state.PhotoFiles(count), u"G:\\Torviks\\68199.JPG"_s);
        QCOMPARE(state.PhotoNumbers(count), u"199"_s);
        QCOMPARE(state.PhotoFiles.Count(), state.PhotoNumbers.Count());
    }

    void cancel_ends_the_program_at_once()
    {
        refusedFrom = sizeof(QString) * count;
        program_->messages.WhenAsked([] { refusedFrom = 0; });
        bool ended = false;
        try {
            BuildPhotoSet();
        } catch (const ProgramEnd&) {
            ended = true;
        }
        QVERIFY(ended);
        QCOMPARE(program_->messages.Count(), 1);
    }

private:
    static constexpr int count = 200;

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(PhotoListMemoryTest)
#include "photo_list_memory_test.moc"
