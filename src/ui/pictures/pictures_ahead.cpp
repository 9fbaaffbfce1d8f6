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
    QString Path;
    std::function<MarkedContent()> Read; ///< until it is read; it keeps an image of a disc open
    Stage At = Stage::Waiting;
    FileMark Mark;
    ReadyPicture Result;

    qint64 Bytes() const { return Result.File.Bytes() + Result.Drawn.sizeInBytes(); }
};
using EntryPointer = std::shared_ptr<Entry>;

/// What the user interface and the readers share; each keeps it alive. A reader that waits for a disc may
/// outlive all else.
struct Shared {
    std::mutex Mutex;
    std::condition_variable Changed;
    bool Over = false;
    int Decoding = 0; ///< readers that use the picture loader at this moment
    QSize Area;
    std::vector<EntryPointer> Entries; ///< the most urgent first

    void Work();
    EntryPointer Find(const QString& path, const QSize& area) const;
    qint64 Bytes() const;

private:
    EntryPointer Next() const;
    bool IsWanted(const EntryPointer& entry) const;
    void Keep(const EntryPointer& entry, ReadyPicture result);
};

std::shared_ptr<Shared> shared; // of the application that runs; for the user-interface thread

/// The most urgent one is read in any case; the others where there is room for a picture of the whole area.
EntryPointer Shared::Next() const
{
    const auto next = std::find_if(Entries.begin(), Entries.end(),
                                   [](const EntryPointer& entry) { return entry->At == Stage::Waiting; });
    if (next == Entries.end())
        return nullptr;
    constexpr qint64 bytesPerPixel = 4;
    const qint64 picture = qint64{Area.width()} * Area.height() * bytesPerPixel;
    return next == Entries.begin() || Bytes() + picture <= mostBytesAhead ? *next : nullptr;
}

bool Shared::IsWanted(const EntryPointer& entry) const
{
    return !Over && std::find(Entries.begin(), Entries.end(), entry) != Entries.end();
}

EntryPointer Shared::Find(const QString& path, const QSize& area) const
{
    const auto found = std::find_if(Entries.begin(), Entries.end(),
                                    [&](const EntryPointer& entry) { return entry->Path == path; });
    return found == Entries.end() || Area != area ? nullptr : *found;
}

qint64 Shared::Bytes() const
{
    qint64 bytes = 0;
    for (const EntryPointer& entry : Entries)
        bytes += entry->Bytes();
    return bytes;
}

/// The less urgent ones give way to the more urgent ones.
void Shared::Keep(const EntryPointer& entry, ReadyPicture result)
{
    entry->Result = std::move(result);
    entry->At = Stage::Ready;
    for (auto last = Entries.rbegin(); last != Entries.rend() && Bytes() > mostBytesAhead; ++last) {
        if ((*last)->At != Stage::Ready)
            continue;
        (*last)->At = Stage::Left;
        (*last)->Result = {};
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
        const QSize size = picture.File.NaturalSize();
        if (qint64{size.width()} * size.height() > mostPixelsAhead)
            return std::nullopt;
        picture.Drawn = picture.File.Fitted(area);
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
    std::unique_lock lock(Mutex);
    for (;;) {
        Changed.wait(lock, [this] { return Over || Next() != nullptr; });
        if (Over)
            return;
        const EntryPointer entry = Next();
        entry->At = Stage::Reading;
        const QSize area = Area;
        auto read = std::exchange(entry->Read, nullptr);
        lock.unlock();
        std::optional<MarkedContent> content = WhatIsRead(read);
        read = nullptr;
        lock.lock();
        if (!IsWanted(entry))
            continue;
        std::optional<ReadyPicture> picture;
        if (content && content->Bytes.size() < mostBytesAhead) {
            entry->Mark = content->Mark;
            entry->At = Stage::Decoding;
            ++Decoding;
            lock.unlock();
            picture = PictureIn(std::move(content->Bytes), entry->Path, area);
            lock.lock();
            --Decoding;
        }
        entry->At = Stage::Bad;
        if (picture && IsWanted(entry))
            Keep(entry, *std::exchange(picture, std::nullopt));
        Changed.notify_all();
    }
}

/// Before the application goes: the picture loader goes with it. A reader that waits for a disc then is left
/// to itself; it touches nothing but its own when it comes back.
void EndReaders()
{
    const std::shared_ptr<Shared> last = std::exchange(shared, nullptr);
    std::unique_lock lock(last->Mutex);
    last->Over = true;
    last->Entries.clear();
    last->Changed.notify_all();
    last->Changed.wait(lock, [&] { return last->Decoding == 0; });
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
    entry->Path = path;
    const int error = ResumeNext([&] { entry->Read = FileToFindAndRead(path); });
    return error == 0 ? entry : nullptr;
}

} // namespace

void ReadPicturesAhead(const QStringList& paths, const QString& kept, const QSize& area)
{
    if (!shared)
        StartReaders();
    const std::lock_guard lock(shared->Mutex);
    std::vector<EntryPointer> entries;
    const auto add = [&](const EntryPointer& entry) {
        if (entry != nullptr)
            entries.push_back(entry);
    };
    for (const QString& path : paths) {
        const EntryPointer known = shared->Find(path, area);
        add(known != nullptr && known->At != Stage::Left ? known : Waiting(path));
    }
    if (!paths.contains(kept))
        add(shared->Find(kept, area));
    shared->Entries = std::move(entries);
    shared->Area = area;
    shared->Changed.notify_all();
}

std::optional<ReadyPicture> PictureReadAhead(const QString& path, const QSize& area)
{
    if (!shared)
        return std::nullopt;
    std::unique_lock lock(shared->Mutex);
    const EntryPointer entry = shared->Find(path, area);
    if (entry == nullptr)
        return std::nullopt;
    shared->Changed.wait(lock, [&] { return entry->At != Stage::Decoding; });
    if (entry->At != Stage::Ready)
        return std::nullopt;
    const ReadyPicture result = entry->Result;
    const FileMark mark = entry->Mark;
    lock.unlock();

    bool isSame = false;
    ResumeNext([&] { isSame = FileMark::Of(path) == mark; });
    if (isSame)
        return result;
    lock.lock();
    std::erase(shared->Entries, entry);
    return std::nullopt;
}

bool IsReadAhead(const QString& path, const QSize& area)
{
    if (!shared)
        return false;
    const std::lock_guard lock(shared->Mutex);
    const EntryPointer entry = shared->Find(path, area);
    return entry != nullptr && entry->At == Stage::Ready;
}

qint64 BytesReadAhead()
{
    if (!shared)
        return 0;
    const std::lock_guard lock(shared->Mutex);
    return shared->Bytes();
}

void ForgetPicturesAhead()
{
    if (!shared)
        return;
    const std::lock_guard lock(shared->Mutex);
    shared->Entries.clear();
}

} // namespace torvik
