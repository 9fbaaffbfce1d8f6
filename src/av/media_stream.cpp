#include "av/media_stream.h"

#include "av/media_reader.h"

#include <QThreadPool>

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <utility>

namespace torvik {

namespace {

constexpr std::size_t picturesAhead = 8;
constexpr qint64 picturesLimit =
    64LL * 1024 * 1024;                           // bytes, for files that keep sound far behind the pictures
constexpr qint64 soundLimit = 16LL * 1024 * 1024; // bytes, for the other way round

/// Readers whose stream is gone may still wait for a disc; the program's end waits for them.
QThreadPool& Readers()
{
    static QThreadPool pool;
    constexpr int many = 64;
    pool.setMaxThreadCount(many);
    return pool;
}

} // namespace

/// What the stream and its reader share; each keeps it alive.
struct MediaStream::Shared {
    Opener OpenSource;
    SoundFormat Sound;

    mutable std::mutex Mutex;
    std::condition_variable Changed;
    bool Over = false; // the stream is gone
    State Progress = State::Opening;
    MediaInfo Info;
    std::optional<qint64> SeekTo;
    bool Ended = false;
    std::deque<MediaPicture> Pictures;
    std::deque<MediaSamples> Samples;
    qint64 PictureBytes = 0;
    qint64 SoundBytes = 0;
    qint64 EndOfRead = 0;

    void Forget()
    {
        Pictures.clear();
        Samples.clear();
        PictureBytes = 0;
        SoundBytes = 0;
        EndOfRead = 0;
        Ended = false;
    }

    qint64 DurationOf(qint64 bytes) const { return bytes * 1'000'000 / Sound.BytesPerSecond(); }

    bool HasEnough() const
    {
        const bool enoughPictures = !Info.HasPictures || Pictures.size() >= picturesAhead;
        const bool enoughSound = !Info.HasSound || SoundBytes >= Sound.BytesPerSecond();
        return (enoughPictures && enoughSound) || PictureBytes >= picturesLimit;
    }

    void Keep(MediaPicture&& picture)
    {
        EndOfRead = std::max(EndOfRead, picture.Time + Info.FrameDuration);
        PictureBytes += picture.Image.sizeInBytes();
        Pictures.push_back(std::move(picture));
    }
    void Keep(MediaSamples&& piece)
    {
        EndOfRead = std::max(EndOfRead, piece.Time + DurationOf(piece.Bytes.size()));
        if (SoundBytes >= soundLimit)
            return;
        SoundBytes += piece.Bytes.size();
        Samples.push_back(std::move(piece));
    }
    void Keep(MediaReader::End&& /*end*/) { Ended = true; }

    MediaPicture TakePicture()
    {
        MediaPicture picture = std::move(Pictures.front());
        Pictures.pop_front();
        PictureBytes -= picture.Image.sizeInBytes();
        Changed.notify_all();
        return picture;
    }

    void Read();
};

/// The reader's whole life, in the background.
void MediaStream::Shared::Read()
{
    std::unique_ptr<MediaReader> reader = MediaReader::Open(OpenSource(), Sound);
    std::unique_lock lock(Mutex);
    Progress = reader != nullptr ? State::Ready : State::Failed;
    if (reader == nullptr)
        return;
    Info = reader->Info();
    for (;;) {
        Changed.wait(lock, [this] { return Over || SeekTo || (!Ended && !HasEnough()); });
        if (Over)
            return;
        if (const auto target = std::exchange(SeekTo, std::nullopt)) {
            lock.unlock();
            reader->Seek(*target);
            lock.lock();
            continue;
        }
        lock.unlock();
        MediaReader::Piece piece = reader->Next();
        lock.lock();
        if (!SeekTo)
            std::visit([this](auto&& some) { Keep(std::forward<decltype(some)>(some)); }, std::move(piece));
    }
}

MediaStream::MediaStream(Opener open, const SoundFormat& sound) : shared_(std::make_shared<Shared>())
{
    shared_->OpenSource = std::move(open);
    shared_->Sound = sound;
    Readers().start([shared = shared_] { shared->Read(); });
}

MediaStream::~MediaStream()
{
    const std::lock_guard lock(shared_->Mutex);
    shared_->Over = true;
    shared_->Forget();
    shared_->Changed.notify_all();
}

MediaStream::State MediaStream::Progress() const
{
    const std::lock_guard lock(shared_->Mutex);
    return shared_->Progress;
}

MediaInfo MediaStream::Info() const
{
    const std::lock_guard lock(shared_->Mutex);
    return shared_->Info;
}

void MediaStream::Seek(qint64 time)
{
    const std::lock_guard lock(shared_->Mutex);
    shared_->Forget();
    shared_->SeekTo = time;
    shared_->Changed.notify_all();
}

std::optional<MediaPicture> MediaStream::TakePicture(qint64 time)
{
    const std::lock_guard lock(shared_->Mutex);
    std::optional<MediaPicture> latest;
    while (!shared_->Pictures.empty() && shared_->Pictures.front().Time <= time)
        latest = shared_->TakePicture();
    return latest;
}

std::optional<MediaPicture> MediaStream::TakeNextPicture()
{
    const std::lock_guard lock(shared_->Mutex);
    if (shared_->Pictures.empty())
        return std::nullopt;
    return shared_->TakePicture();
}

bool MediaStream::HasPicture() const
{
    const std::lock_guard lock(shared_->Mutex);
    return !shared_->Pictures.empty();
}

QByteArray MediaStream::TakeSound(qsizetype bytes, qint64 time)
{
    const std::lock_guard lock(shared_->Mutex);
    auto& waiting = shared_->Samples;
    QByteArray taken;
    while (!waiting.empty()) {
        MediaSamples& first = waiting.front();
        const qint64 end = first.Time + shared_->DurationOf(first.Bytes.size());
        const qsizetype part = end < time ? 0 : std::min(bytes - taken.size(), first.Bytes.size());
        if (end >= time && part <= 0)
            break;
        taken.append(first.Bytes.constData(), part);
        if (end < time || part == first.Bytes.size()) {
            shared_->SoundBytes -= first.Bytes.size();
            waiting.pop_front();
            continue;
        }
        first.Time += shared_->DurationOf(part);
        first.Bytes.remove(0, part);
        shared_->SoundBytes -= part;
    }
    shared_->Changed.notify_all();
    return taken;
}

bool MediaStream::AtEnd() const
{
    const std::lock_guard lock(shared_->Mutex);
    return shared_->Ended && shared_->Pictures.empty() && shared_->Samples.empty() && !shared_->SeekTo;
}

qint64 MediaStream::EndOfRead() const
{
    const std::lock_guard lock(shared_->Mutex);
    return shared_->EndOfRead;
}

} // namespace torvik
