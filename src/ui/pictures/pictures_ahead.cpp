#include "ui/pictures/pictures_ahead.h"

#include "platform/files/file_mark.h"
#include "runtime/failure.h"

#include <QCoreApplication>

#include <algorithm>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <new>
#include <thread>
#include <utility>
#include <vector>

namespace torvik {

namespace {

constexpr qint64 mostBytesAhead = 64LL * 1024 * 1024;
constexpr qint64 mostPixelsAhead =
    100'000'000;           // of a picture that is decoded ahead: the program's end waits for it
constexpr int readers = 2; // one alone falls behind a key that is held down

enum class Stage {
    Waiting,
    Reading,
    Decoding,
    Ready,
    Left, ///< out, since there is no room
    Bad   ///< not to be shown whole
};

struct Entry {
    QString path;
    std::function<MarkedContent()> read; ///< until it is read; it keeps an image of a disc open
    Stage at = Stage::Waiting;
    FileMark mark;
    ReadyPicture result;

    qint64 Bytes() const { return result.file.Bytes() + result.drawn.sizeInBytes(); }
};
using EntryPointer = std::shared_ptr<Entry>;

/// What the user interface and the readers share; each keeps it alive. A reader that waits for a disc may
/// outlive all else.
struct Shared {
    std::mutex mutex;
    std::condition_variable changed;
    bool over = false;
    int decodingNow = 0; ///< readers that use the picture loader at this moment
    QSize paneArea;
    std::vector<EntryPointer> entryList; ///< the most urgent first

    void Work();
    EntryPointer Find(const QString& path, const QSize& area) const;
    qint64 Bytes() const;

private:
    EntryPointer Next() const;
    qint64 BytesOfArea() const;
    qint64 BytesToCome() const;
    bool IsWanted(const EntryPointer& entry) const;
    void Keep(const EntryPointer& entry, ReadyPicture result);
};

std::shared_ptr<Shared> shared; // of the application that runs; for the user-interface thread

/// The most urgent one is read in any case; the others where there is room for a picture of the whole area
/// beside all that is held and all that is just being made.
EntryPointer Shared::Next() const
{
    const auto next = std::find_if(entryList.begin(), entryList.end(),
                                   [](const EntryPointer& entry) { return entry->at == Stage::Waiting; });
    if (next == entryList.end())
        return nullptr;
    const bool hasRoom = Bytes() + BytesToCome() + BytesOfArea() <= mostBytesAhead;
    return next == entryList.begin() || hasRoom ? *next : nullptr;
}

qint64 Shared::BytesOfArea() const
{
    constexpr qint64 bytesPerPixel = 4;
    return qint64{paneArea.width()} * paneArea.height() * bytesPerPixel;
}

/// What is not finished may fill the whole area.
qint64 Shared::BytesToCome() const
{
    const auto unfinished = std::count_if(entryList.begin(), entryList.end(), [](const EntryPointer& entry) {
        return entry->at == Stage::Reading || entry->at == Stage::Decoding;
    });
    return unfinished * BytesOfArea();
}

bool Shared::IsWanted(const EntryPointer& entry) const
{
    return !over && std::find(entryList.begin(), entryList.end(), entry) != entryList.end();
}

EntryPointer Shared::Find(const QString& path, const QSize& area) const
{
    const auto found = std::find_if(entryList.begin(), entryList.end(),
                                    [&](const EntryPointer& entry) { return entry->path == path; });
    return found == entryList.end() || paneArea != area ? nullptr : *found;
}

qint64 Shared::Bytes() const
{
    qint64 bytes = 0;
    for (const EntryPointer& entry : entryList)
        bytes += entry->Bytes();
    return bytes;
}

/// The less urgent ones give way to the more urgent ones.
void Shared::Keep(const EntryPointer& entry, ReadyPicture result)
{
    entry->result = std::move(result);
    entry->at = Stage::Ready;
    for (auto last = entryList.rbegin(); last != entryList.rend() && Bytes() > mostBytesAhead; ++last) {
        if ((*last)->at != Stage::Ready)
            continue;
        (*last)->at = Stage::Left;
        (*last)->result = {};
    }
}

/// Nothing for what cannot be shown whole.
std::optional<MarkedContent> WhatIsRead(const std::function<MarkedContent()>& read)
{
    try {
        return read();
    } catch (const RunTimeError&) {
        return std::nullopt;
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

std::optional<ReadyPicture> PictureIn(QByteArray bytes, const QString& path, const QSize& area)
{
    try {
        ReadyPicture picture{Picture::FromFile(std::move(bytes), path), {}};
        const QSize size = picture.file.NaturalSize();
        if (qint64{size.width()} * size.height() > mostPixelsAhead)
            return std::nullopt;
        picture.drawn = picture.file.Fitted(area);
        return picture;
    } catch (const RunTimeError&) {
        return std::nullopt;
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

/// The whole life of a reader.
void Shared::Work()
{
    std::unique_lock lock(mutex);
    for (;;) {
        changed.wait(lock, [this] { return over || Next() != nullptr; });
        if (over)
            return;
        const EntryPointer entry = Next();
        entry->at = Stage::Reading;
        const QSize area = paneArea;
        auto read = std::exchange(entry->read, nullptr);
        lock.unlock();
        std::optional<MarkedContent> content = WhatIsRead(read);
        read = nullptr;
        lock.lock();
        if (!IsWanted(entry))
            continue;
        std::optional<ReadyPicture> picture;
        if (content && content->bytes.size() < mostBytesAhead) {
            entry->mark = content->mark;
            entry->at = Stage::Decoding;
            ++decodingNow;
            lock.unlock();
            picture = PictureIn(std::move(content->bytes), entry->path, area);
            lock.lock();
            --decodingNow;
        }
        entry->at = Stage::Bad;
        if (picture && IsWanted(entry))
            Keep(entry, *std::exchange(picture, std::nullopt));
        changed.notify_all();
    }
}

/// Before the application goes: the picture loader goes with it. A reader that waits for a disc then is left
/// to itself; it touches nothing but its own when it comes back.
void EndReaders()
{
    const std::shared_ptr<Shared> last = std::exchange(shared, nullptr);
    std::unique_lock lock(last->mutex);
    last->over = true;
    last->entryList.clear();
    last->changed.notify_all();
    last->changed.wait(lock, [&] { return last->decodingNow == 0; });
}

void StartReaders()
{
    shared = std::make_shared<Shared>();
    qAddPostRoutine(EndReaders);
    for (int number = 0; number < readers; ++number)
        std::thread([ours = shared] { ours->Work(); }).detach();
}

/// Nothing for a path that leads nowhere.
EntryPointer Waiting(const QString& path)
{
    auto entry = std::make_shared<Entry>();
    entry->path = path;
    const int error = ResumeNext([&] { entry->read = FileToFindAndRead(path); });
    return error == 0 ? entry : nullptr;
}

} // namespace

void ReadPicturesAhead(const QStringList& paths, const QString& kept, const QSize& area)
{
    if (!shared)
        StartReaders();
    const std::lock_guard lock(shared->mutex);
    std::vector<EntryPointer> entries;
    const auto add = [&](const EntryPointer& entry) {
        if (entry != nullptr)
            entries.push_back(entry);
    };
    for (const QString& path : paths) {
        const EntryPointer known = shared->Find(path, area);
        add(known != nullptr && known->at != Stage::Left ? known : Waiting(path));
    }
    if (!paths.contains(kept))
        add(shared->Find(kept, area));
    shared->entryList = std::move(entries);
    shared->paneArea = area;
    shared->changed.notify_all();
}

std::optional<ReadyPicture> PictureReadAhead(const QString& path, const QSize& area)
{
    if (!shared)
        return std::nullopt;
    std::unique_lock lock(shared->mutex);
    const EntryPointer entry = shared->Find(path, area);
    if (entry == nullptr)
        return std::nullopt;
    shared->changed.wait(lock, [&] { return entry->at != Stage::Decoding; });
    if (entry->at != Stage::Ready)
        return std::nullopt;
    const ReadyPicture result = entry->result;
    const FileMark mark = entry->mark;
    lock.unlock();

    bool isSame = false;
    ResumeNext([&] { isSame = FileMark::Of(path) == mark; });
    if (isSame)
        return result;
    lock.lock();
    std::erase(shared->entryList, entry);
    return std::nullopt;
}

bool IsReadAhead(const QString& path, const QSize& area)
{
    if (!shared)
        return false;
    const std::lock_guard lock(shared->mutex);
    const EntryPointer entry = shared->Find(path, area);
    return entry != nullptr && entry->at == Stage::Ready;
}

qint64 BytesReadAhead()
{
    if (!shared)
        return 0;
    const std::lock_guard lock(shared->mutex);
    return shared->Bytes();
}

void ForgetPicturesAhead()
{
    if (!shared)
        return;
    const std::lock_guard lock(shared->mutex);
    shared->entryList.clear();
}

} // namespace torvik
