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
    Opener openSource;
    SoundFormat sound;

    mutable std::mutex mutex;
    std::condition_variable changed;
    bool over = false; // the stream is gone
    State progress = State::Opening;
    MediaInfo info;
    std::optional<qint64> seekTo;
    bool ended = false;
    std::deque<MediaPicture> pictures;
    std::deque<MediaSamples> samples;
    qint64 pictureBytes = 0;
    qint64 soundBytes = 0;
    qint64 endOfRead = 0;

    void Forget()
    {
        pictures.clear();
        samples.clear();
        pictureBytes = 0;
        soundBytes = 0;
        endOfRead = 0;
        ended = false;
    }

    qint64 DurationOf(qint64 bytes) const { return bytes * 1'000'000 / sound.BytesPerSecond(); }

    bool HasEnough() const
    {
        const bool enoughPictures = !info.hasPictures || pictures.size() >= picturesAhead;
        const bool enoughSound = !info.hasSound || soundBytes >= sound.BytesPerSecond();
        return (enoughPictures && enoughSound) || pictureBytes >= picturesLimit;
    }

    void Keep(MediaPicture&& picture)
    {
        endOfRead = std::max(endOfRead, picture.time + info.frameDuration);
        pictureBytes += picture.image.sizeInBytes();
        pictures.push_back(std::move(picture));
    }
    void Keep(MediaSamples&& piece)
    {
        endOfRead = std::max(endOfRead, piece.time + DurationOf(piece.bytes.size()));
        if (soundBytes >= soundLimit)
            return;
        soundBytes += piece.bytes.size();
        samples.push_back(std::move(piece));
    }
    void Keep(MediaReader::End&& /*end*/) { ended = true; }

    MediaPicture TakePicture()
    {
        MediaPicture picture = std::move(pictures.front());
        pictures.pop_front();
        pictureBytes -= picture.image.sizeInBytes();
        changed.notify_all();
        return picture;
    }

    void Read();
};

/// The reader's whole life, in the background.
void MediaStream::Shared::Read()
{
    std::unique_ptr<MediaReader> reader = MediaReader::Open(openSource(), sound);
    std::unique_lock lock(mutex);
    progress = reader != nullptr ? State::Ready : State::Failed;
    if (reader == nullptr)
        return;
    info = reader->Info();
    for (;;) {
        changed.wait(lock, [this] { return over || seekTo || (!ended && !HasEnough()); });
        if (over)
            return;
        if (const auto target = std::exchange(seekTo, std::nullopt)) {
            lock.unlock();
            reader->Seek(*target);
            lock.lock();
            continue;
        }
        lock.unlock();
        MediaReader::Piece piece = reader->Next();
        lock.lock();
        if (!seekTo)
            std::visit([this](auto&& some) { Keep(std::forward<decltype(some)>(some)); }, std::move(piece));
    }
}

MediaStream::MediaStream(Opener open, const SoundFormat& sound) : shared_(std::make_shared<Shared>())
{
    shared_->openSource = std::move(open);
    shared_->sound = sound;
    Readers().start([shared = shared_] { shared->Read(); });
}

MediaStream::~MediaStream()
{
    const std::lock_guard lock(shared_->mutex);
    shared_->over = true;
    shared_->Forget();
    shared_->changed.notify_all();
}

MediaStream::State MediaStream::Progress() const
{
    const std::lock_guard lock(shared_->mutex);
    return shared_->progress;
}

MediaInfo MediaStream::Info() const
{
    const std::lock_guard lock(shared_->mutex);
    return shared_->info;
}

void MediaStream::Seek(qint64 time)
{
    const std::lock_guard lock(shared_->mutex);
    shared_->Forget();
    shared_->seekTo = time;
    shared_->changed.notify_all();
}

std::optional<MediaPicture> MediaStream::TakePicture(qint64 time)
{
    const std::lock_guard lock(shared_->mutex);
    std::optional<MediaPicture> latest;
    while (!shared_->pictures.empty() && shared_->pictures.front().time <= time)
        latest = shared_->TakePicture();
    return latest;
}

std::optional<MediaPicture> MediaStream::TakeNextPicture()
{
    const std::lock_guard lock(shared_->mutex);
    if (shared_->pictures.empty())
        return std::nullopt;
    return shared_->TakePicture();
}

bool MediaStream::HasPicture() const
{
    const std::lock_guard lock(shared_->mutex);
    return !shared_->pictures.empty();
}

QByteArray MediaStream::TakeSound(qsizetype bytes, qint64 time)
{
    const std::lock_guard lock(shared_->mutex);
    auto& waiting = shared_->samples;
    QByteArray taken;
    while (!waiting.empty()) {
        MediaSamples& first = waiting.front();
        const qint64 end = first.time + shared_->DurationOf(first.bytes.size());
        const qsizetype part = end < time ? 0 : std::min(bytes - taken.size(), first.bytes.size());
        if (end >= time && part <= 0)
            break;
        taken.append(first.bytes.constData(), part);
        if (end < time || part == first.bytes.size()) {
            shared_->soundBytes -= first.bytes.size();
            waiting.pop_front();
            continue;
        }
        first.time += shared_->DurationOf(part);
        first.bytes.remove(0, part);
        shared_->soundBytes -= part;
    }
    shared_->changed.notify_all();
    return taken;
}

bool MediaStream::AtEnd() const
{
    const std::lock_guard lock(shared_->mutex);
    return shared_->ended && shared_->pictures.empty() && shared_->samples.empty() && !shared_->seekTo;
}

qint64 MediaStream::EndOfRead() const
{
    const std::lock_guard lock(shared_->mutex);
    return shared_->endOfRead;
}

} // namespace torvik
