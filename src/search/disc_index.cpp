#include "search/disc_index.h"

#include "rtf/rtf_reader.h"
#include "runtime/failure.h"
#include "search/text_index.h"

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QThreadPool>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <new>
#include <stop_token>
#include <thread>
#include <utility>
#include <vector>

namespace torvik {

namespace {

using Time = std::chrono::steady_clock;

constexpr qsizetype mostHits = 100;                ///< that are given with their lines
constexpr qsizetype lineLength = 110;              ///< as much as the form has room for
constexpr std::chrono::milliseconds freshFor{120}; ///< an answer, while more is read

/// Held while an article is taken apart: that needs tables of the program and of Qt, which go at the
/// program's end. The end breaks it off, however long the article is.
std::mutex takingApart;
std::stop_source endOfProgram;

/// The threads that use a database. None of them ever waits for a disc, so the program's end can wait for
/// them while there is still an application and Qt's list of databases, which they leave. A thread that reads
/// may wait for a disc, so the end waits only until it lets go of the article in hand, and keeps the lock:
/// the next one is never begun.
QThreadPool& IndexThreads()
{
    static QThreadPool pool;
    static const bool isAwaited = [] {
        constexpr int many = 16;
        pool.setMaxThreadCount(many);
        QSqlDatabase::drivers(); // the list's own end is set by this, and what was set last is called first
        qAddPostRoutine([] {
            endOfProgram.request_stop();
            takingApart.lock();
            pool.waitForDone();
        });
        return true;
    }();
    Q_UNUSED(isAwaited)
    return pool;
}

/// The text of an article; nothing when it cannot be read or there is nothing in it.
QString TextOf(const IndexedText& entry)
{
    try {
        const QByteArray bytes = entry.read();
        const std::lock_guard lock(takingApart);
        return rtf::PlainText(bytes, endOfProgram.get_token());
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
    QList<IndexedText> entries;
    std::function<void()> news;

    mutable std::mutex mutex;
    std::condition_variable changed;
    bool over = false;            ///< the index is gone
    std::deque<QString> wereRead; ///< and are not in the table yet
    std::optional<QString> question;
    std::optional<IndexAnswer> answer;
    IndexProgress progress;

    /// The lives of the two threads.
    void ReadEntries();
    void FillAndAnswer();

private:
    enum class Task { End, Answer, Fill };

    Task WaitForTask();
    void Fill(TextIndex& index);
    void AddNext(const QString& text, TextIndex& index);
    void AnswerTo(const QString& words, TextIndex& index);
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
    const std::lock_guard lock(mutex);
    if (over)
        return;
    change();
    news();
}

void DiscIndex::Shared::ReadEntries()
{
    for (const IndexedText& entry : std::as_const(entries)) {
        QString text = entry.read ? TextOf(entry) : QString();
        const std::lock_guard lock(mutex);
        if (over)
            return;
        wereRead.push_back(std::move(text));
        changed.notify_all();
    }
}

void DiscIndex::Shared::FillAndAnswer()
{
    TextIndex index;
    if (!index.IsUsable()) {
        Tell([this] {
            progress.isUsable = false;
            progress.isDone = true;
        });
        return;
    }
    if (entries.isEmpty())
        Tell([this] { progress.isDone = true; });
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
    std::unique_lock lock(mutex);
    changed.wait(lock, [this] { return over || question || !wereRead.empty(); });
    if (over)
        return Task::End;
    if (!question)
        return Task::Fill;
    asked_ = *std::exchange(question, std::nullopt);
    return Task::Answer;
}

/// Takes one text; when it was the last, or the last answer has grown old, that question is answered again.
void DiscIndex::Shared::Fill(TextIndex& index)
{
    QString text;
    {
        const std::lock_guard lock(mutex);
        text = std::move(wereRead.front());
        wereRead.pop_front();
    }
    AddNext(text, index);
    const bool isLast = static_cast<qsizetype>(texts_.size()) == entries.size();
    if (isLast)
        index.Commit();
    if (!asked_.isEmpty() && (isLast || Time::now() - answeredAt_ >= freshFor))
        AnswerTo(asked_, index);
    if (isLast)
        Tell([this] { progress.isDone = true; });
}

void DiscIndex::Shared::AddNext(const QString& text, TextIndex& index)
{
    const IndexedText& entry = entries[static_cast<qsizetype>(texts_.size())];
    const bool isLeftOut = entry.read && IsEmpty(text);
    texts_.push_back(text);
    if (!isLeftOut)
        index.Add(static_cast<int>(texts_.size()), entry.title, text);
    Tell([&] {
        ++progress.read;
        progress.leftOut += isLeftOut ? 1 : 0;
    });
}

void DiscIndex::Shared::AnswerTo(const QString& words, TextIndex& index)
{
    const QList<SearchTerm> terms = SearchTermsOf(words);
    const QList<int> numbers = index.Find(terms);
    IndexAnswer found;
    found.question = words;
    found.count = numbers.size();
    for (const int number : numbers.mid(0, mostHits)) {
        const auto entry = static_cast<std::size_t>(number) - 1;
        found.best.append(
            {static_cast<qsizetype>(entry), LineAroundFirstHit(texts_[entry], terms, lineLength)});
    }
    answeredAt_ = Time::now();
    Tell([&] { answer = std::move(found); });
}

DiscIndex::DiscIndex(QList<IndexedText> texts, std::function<void()> news)
    : shared_(std::make_shared<Shared>())
{
    shared_->entries = std::move(texts);
    shared_->news = std::move(news);
    shared_->progress.total = shared_->entries.size();
    // Apart from all pools, since a pool's end waits for its threads.
    std::thread([shared = shared_] { shared->ReadEntries(); }).detach();
    IndexThreads().start([shared = shared_] { shared->FillAndAnswer(); });
}

DiscIndex::~DiscIndex()
{
    const std::lock_guard lock(shared_->mutex);
    shared_->over = true;
    shared_->changed.notify_all();
}

void DiscIndex::Ask(const QString& question)
{
    const std::lock_guard lock(shared_->mutex);
    shared_->question = question;
    shared_->changed.notify_all();
}

std::optional<IndexAnswer> DiscIndex::TakeAnswer()
{
    const std::lock_guard lock(shared_->mutex);
    return std::exchange(shared_->answer, std::nullopt);
}

IndexProgress DiscIndex::Progress() const
{
    const std::lock_guard lock(shared_->mutex);
    return shared_->progress;
}

} // namespace torvik
