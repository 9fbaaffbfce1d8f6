#include "search/disc_index.h"

#include "rtf/rtf_reader.h"
#include "runtime/failure.h"
#include "search/text_index.h"

#include <QCoreApplication>
#include <QThreadPool>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <new>
#include <thread>
#include <utility>
#include <vector>

namespace torvik {

namespace {

using Time = std::chrono::steady_clock;

constexpr qsizetype mostHits = 100;                ///< that are given with their lines
constexpr qsizetype lineLength = 110;              ///< as much as the form has room for
constexpr std::chrono::milliseconds freshFor{120}; ///< an answer, while more is read

/// The threads that use a database. None of them ever waits for a disc, so the program's end can wait for
/// them while there is still an application: later the toolkit's list of databases, which they leave, is gone
/// as well.
QThreadPool& IndexThreads()
{
    static QThreadPool pool;
    static const bool isAwaited = [] {
        constexpr int many = 16;
        pool.setMaxThreadCount(many);
        qAddPostRoutine([] { pool.waitForDone(); });
        return true;
    }();
    Q_UNUSED(isAwaited)
    return pool;
}

/// The text of an article; nothing when it cannot be read or there is nothing in it.
QString TextOf(const IndexedText& entry)
{
    try {
        return rtf::PlainText(entry.Read());
    } catch (const RunTimeError&) {
        return {};
    } catch (const std::bad_alloc&) {
        return {};
    }
}

bool IsEmpty(const QString& text)
{
    bool isEmpty = true;
    EachWord(text, [&isEmpty](const QString&, const TextRange&) { return isEmpty = false; });
    return isEmpty;
}

} // namespace

/// What the index and its two threads share; each keeps it alive. One reads, and may wait for a disc as long
/// as that takes. The other one has the table of words; it takes what was read, and answers.
struct DiscIndex::Shared {
    QList<IndexedText> Entries;
    std::function<void()> News;

    mutable std::mutex Mutex;
    std::condition_variable Changed;
    bool Over = false;            ///< the index is gone
    std::deque<QString> WereRead; ///< and are not in the table yet
    std::optional<QString> Question;
    std::optional<IndexAnswer> Answer;
    IndexProgress Progress;

    /// The lives of the two threads.
    void ReadEntries();
    void FillAndAnswer();

private:
    enum class Task { End, Answer, Fill };

    Task WaitForTask();
    void Fill(TextIndex& index);
    void AddNext(const QString& text, TextIndex& index);
    void AnswerTo(const QString& question, TextIndex& index);
    /// Calls `change` with the lock held, then tells of it.
    template <typename Change>
    void Tell(Change&& change);

    // On the second thread alone.
    std::vector<QString> texts_; ///< of the entries that are in the table
    QString asked_;
    Time::time_point answeredAt_;
};

template <typename Change>
void DiscIndex::Shared::Tell(Change&& change)
{
    const std::lock_guard lock(Mutex);
    if (Over)
        return;
    change();
    News();
}

void DiscIndex::Shared::ReadEntries()
{
    for (const IndexedText& entry : std::as_const(Entries)) {
        QString text = entry.Read ? TextOf(entry) : QString();
        const std::lock_guard lock(Mutex);
        if (Over)
            return;
        WereRead.push_back(std::move(text));
        Changed.notify_all();
    }
}

void DiscIndex::Shared::FillAndAnswer()
{
    TextIndex index;
    if (!index.IsUsable()) {
        Tell([this] {
            Progress.IsUsable = false;
            Progress.IsDone = true;
        });
        return;
    }
    if (Entries.isEmpty())
        Tell([this] { Progress.IsDone = true; });
    for (;;) {
        switch (WaitForTask()) {
        case Task::Answer:
            AnswerTo(asked_, index);
            break;
        case Task::Fill:
            Fill(index);
            break;
        case Task::End:
            return;
        }
    }
}

/// A question comes before what was read, so that nobody waits for an answer.
DiscIndex::Shared::Task DiscIndex::Shared::WaitForTask()
{
    std::unique_lock lock(Mutex);
    Changed.wait(lock, [this] { return Over || Question || !WereRead.empty(); });
    if (Over)
        return Task::End;
    if (!Question)
        return Task::Fill;
    asked_ = *std::exchange(Question, std::nullopt);
    return Task::Answer;
}

/// Takes one text; when it was the last, or the last answer has grown old, that question is answered again.
void DiscIndex::Shared::Fill(TextIndex& index)
{
    QString text;
    {
        const std::lock_guard lock(Mutex);
        text = std::move(WereRead.front());
        WereRead.pop_front();
    }
    AddNext(text, index);
    const bool isLast = static_cast<qsizetype>(texts_.size()) == Entries.size();
    if (isLast)
        index.Commit();
    if (!asked_.isEmpty() && (isLast || Time::now() - answeredAt_ >= freshFor))
        AnswerTo(asked_, index);
    if (isLast)
        Tell([this] { Progress.IsDone = true; });
}

void DiscIndex::Shared::AddNext(const QString& text, TextIndex& index)
{
    const IndexedText& entry = Entries[static_cast<qsizetype>(texts_.size())];
    const bool isLeftOut = entry.Read && IsEmpty(text);
    texts_.push_back(text);
    if (!isLeftOut)
        index.Add(static_cast<int>(texts_.size()), entry.Title, text);
    Tell([&] {
        ++Progress.Read;
        Progress.LeftOut += isLeftOut ? 1 : 0;
    });
}

void DiscIndex::Shared::AnswerTo(const QString& question, TextIndex& index)
{
    const QList<SearchTerm> terms = SearchTermsOf(question);
    const QList<int> numbers = index.Find(terms);
    IndexAnswer answer;
    answer.Question = question;
    answer.Count = numbers.size();
    for (const int number : numbers.mid(0, mostHits)) {
        const auto entry = static_cast<std::size_t>(number) - 1;
        answer.Best.append(
            {static_cast<qsizetype>(entry), LineAroundFirstHit(texts_[entry], terms, lineLength)});
    }
    answeredAt_ = Time::now();
    Tell([&] { Answer = std::move(answer); });
}

DiscIndex::DiscIndex(QList<IndexedText> texts, std::function<void()> news)
    : shared_(std::make_shared<Shared>())
{
    shared_->Entries = std::move(texts);
    shared_->News = std::move(news);
    shared_->Progress.Total = shared_->Entries.size();
    // Apart from all pools, since a pool's end waits for its threads.
    std::thread([shared = shared_] { shared->ReadEntries(); }).detach();
    IndexThreads().start([shared = shared_] { shared->FillAndAnswer(); });
}

DiscIndex::~DiscIndex()
{
    const std::lock_guard lock(shared_->Mutex);
    shared_->Over = true;
    shared_->Changed.notify_all();
}

void DiscIndex::Ask(const QString& question)
{
    const std::lock_guard lock(shared_->Mutex);
    shared_->Question = question;
    shared_->Changed.notify_all();
}

std::optional<IndexAnswer> DiscIndex::TakeAnswer()
{
    const std::lock_guard lock(shared_->Mutex);
    return std::exchange(shared_->Answer, std::nullopt);
}

IndexProgress DiscIndex::Progress() const
{
    const std::lock_guard lock(shared_->Mutex);
    return shared_->Progress;
}

} // namespace torvik
