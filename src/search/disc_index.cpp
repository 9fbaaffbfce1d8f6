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

/// What the index and its thread share; each keeps it alive.
struct DiscIndex::Shared {
    QList<IndexedText> Entries;
    std::function<void()> News;

    mutable std::mutex Mutex;
    std::condition_variable Changed;
    bool Over = false; ///< the index is gone
    std::optional<QString> Question;
    std::optional<IndexAnswer> Answer;
    IndexProgress Progress;

    void Work();

private:
    bool ReadAll(TextIndex& index);
    void AnswerQuestions(TextIndex& index);
    std::optional<QString> NextQuestion(bool readMore);
    IndexAnswer AnswerTo(const QString& question, TextIndex& index) const;
    void Give(IndexAnswer answer);
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
    const std::lock_guard lock(Mutex);
    if (Over)
        return false;
    change();
    News();
    return true;
}

/// The thread's whole life.
void DiscIndex::Shared::Work()
{
    TextIndex index;
    if (!index.IsUsable()) {
        Tell([this] {
            Progress.IsUsable = false;
            Progress.IsDone = true;
        });
        return;
    }
    if (ReadAll(index))
        AnswerQuestions(index);
}

bool DiscIndex::Shared::ReadAll(TextIndex& index)
{
    for (const IndexedText& entry : std::as_const(Entries)) {
        const QString text = entry.Read ? TextOf(entry) : QString();
        const bool isLeftOut = entry.Read && IsEmpty(text);
        texts_.push_back(text);
        if (!isLeftOut)
            index.Add(static_cast<int>(texts_.size()), entry.Title, text);
        if (!Tell([&] {
                ++Progress.Read;
                Progress.LeftOut += isLeftOut ? 1 : 0;
            }))
            return false;
        if (const auto question = NextQuestion(true))
            Give(AnswerTo(*question, index));
    }
    index.Commit();
    if (!asked_.isEmpty())
        Give(AnswerTo(asked_, index));
    return Tell([this] { Progress.IsDone = true; });
}

void DiscIndex::Shared::AnswerQuestions(TextIndex& index)
{
    while (const auto question = NextQuestion(false))
        Give(AnswerTo(*question, index));
}

/// While more is read: a new question, or the last one once its answer has grown old; nothing when there is
/// neither. Afterwards waits for a new one; nothing when the index is gone.
std::optional<QString> DiscIndex::Shared::NextQuestion(bool readMore)
{
    std::unique_lock lock(Mutex);
    if (!readMore)
        Changed.wait(lock, [this] { return Over || Question; });
    if (Over)
        return std::nullopt;
    if (Question)
        return asked_ = *std::exchange(Question, std::nullopt);
    const bool isOld = !asked_.isEmpty() && Time::now() - answeredAt_ >= freshFor;
    return isOld ? std::optional(asked_) : std::nullopt;
}

IndexAnswer DiscIndex::Shared::AnswerTo(const QString& question, TextIndex& index) const
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
    return answer;
}

void DiscIndex::Shared::Give(IndexAnswer answer)
{
    answeredAt_ = Time::now();
    Tell([&] { Answer = std::move(answer); });
}

DiscIndex::DiscIndex(QList<IndexedText> texts, std::function<void()> news)
    : shared_(std::make_shared<Shared>())
{
    shared_->Entries = std::move(texts);
    shared_->News = std::move(news);
    shared_->Progress.Total = shared_->Entries.size();
    Threads().start([shared = shared_] { shared->Work(); });
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
