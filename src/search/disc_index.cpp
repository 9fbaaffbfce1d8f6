#include "search/disc_index.h"

#include "rtf/rtf_reader.h"
#include "runtime/failure.h"
#include "search/text_index.h"

#include <QCoreApplication>
#include <QThreadPool>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <new>
#include <utility>
#include <vector>

namespace torvik {

namespace {

using Time = std::chrono::steady_clock;

constexpr qsizetype mostHits = 100;                ///< that are given with their lines
constexpr qsizetype lineLength = 110;              ///< as much as the form has room for
constexpr std::chrono::milliseconds freshFor{120}; ///< an answer, while more is read

/// Threads of an index that is gone may still wait for a disc. The program's end waits for them while there
/// is still an application: later the toolkit's list of databases, which they leave, is gone as well.
QThreadPool& Threads()
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
        return rtf::PlainText(entry.read());
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

/// What the index and its thread share; each keeps it alive.
struct DiscIndex::Shared {
    QList<IndexedText> entries;
    std::function<void()> news;

    mutable std::mutex mutex;
    std::condition_variable changed;
    bool over = false; ///< the index is gone
    std::optional<QString> question;
    std::optional<IndexAnswer> answer;
    IndexProgress progress;

    void Work();

private:
    bool ReadAll(TextIndex& index);
    void AnswerQuestions(TextIndex& index);
    std::optional<QString> NextQuestion(bool readMore);
    IndexAnswer AnswerTo(const QString& words, TextIndex& index) const;
    void Give(IndexAnswer given);
    /// Calls `change` with the lock held, then tells of it; false once the index is gone.
    template <typename Change>
    bool Tell(Change&& change);

    std::vector<QString> texts_; ///< of the entries that are read; on the thread alone
    QString asked_;
    Time::time_point answeredAt_;
};

template <typename Change>
bool DiscIndex::Shared::Tell(Change&& change)
{
    const std::lock_guard lock(mutex);
    if (over)
        return false;
    change();
    news();
    return true;
}

/// The thread's whole life.
void DiscIndex::Shared::Work()
{
    TextIndex index;
    if (!index.IsUsable()) {
        Tell([this] {
            progress.isUsable = false;
            progress.isDone = true;
        });
        return;
    }
    if (ReadAll(index))
        AnswerQuestions(index);
}

bool DiscIndex::Shared::ReadAll(TextIndex& index)
{
    for (const IndexedText& entry : std::as_const(entries)) {
        const QString text = entry.read ? TextOf(entry) : QString();
        const bool isLeftOut = entry.read && IsEmpty(text);
        texts_.push_back(text);
        if (!isLeftOut)
            index.Add(static_cast<int>(texts_.size()), entry.title, text);
        if (!Tell([&] {
                ++progress.read;
                progress.leftOut += isLeftOut ? 1 : 0;
            }))
            return false;
        if (const auto next = NextQuestion(true))
            Give(AnswerTo(*next, index));
    }
    index.Commit();
    if (!asked_.isEmpty())
        Give(AnswerTo(asked_, index));
    return Tell([this] { progress.isDone = true; });
}

void DiscIndex::Shared::AnswerQuestions(TextIndex& index)
{
    while (const auto next = NextQuestion(false))
        Give(AnswerTo(*next, index));
}

/// While more is read: a new question, or the last one once its answer has grown old; nothing when there is
/// neither. Afterwards waits for a new one; nothing when the index is gone.
std::optional<QString> DiscIndex::Shared::NextQuestion(bool readMore)
{
    std::unique_lock lock(mutex);
    if (!readMore)
        changed.wait(lock, [this] { return over || question; });
    if (over)
        return std::nullopt;
    if (question)
        return asked_ = *std::exchange(question, std::nullopt);
    const bool isOld = !asked_.isEmpty() && Time::now() - answeredAt_ >= freshFor;
    return isOld ? std::optional(asked_) : std::nullopt;
}

IndexAnswer DiscIndex::Shared::AnswerTo(const QString& words, TextIndex& index) const
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
    return found;
}

void DiscIndex::Shared::Give(IndexAnswer given)
{
    answeredAt_ = Time::now();
    Tell([&] { answer = std::move(given); });
}

DiscIndex::DiscIndex(QList<IndexedText> texts, std::function<void()> news)
    : shared_(std::make_shared<Shared>())
{
    shared_->entries = std::move(texts);
    shared_->news = std::move(news);
    shared_->progress.total = shared_->entries.size();
    Threads().start([shared = shared_] { shared->Work(); });
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
