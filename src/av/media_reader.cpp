#include "av/media_reader.h"

#include "av/picture_decoder.h"
#include "av/sound_decoder.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace torvik {

namespace {

/// Only containers that hold their content themselves: a play list under the name of a movie opens nothing.
constexpr const char* containers = "avi,wav,w64,mov,mpeg,mpegvideo,asf,mp3,aiff,au";

constexpr int bufferSize = 32 * 1024;

int ReadBytes(void* source, std::uint8_t* target, int room)
{
    const qsizetype got =
        static_cast<ByteSource*>(source)->Read(reinterpret_cast<char*>(target), static_cast<qsizetype>(room));
    if (got < 0)
        return AVERROR(EIO);
    return got == 0 ? AVERROR_EOF : static_cast<int>(got);
}

std::int64_t SeekBytes(void* opaque, std::int64_t offset, int whence)
{
    auto* source = static_cast<ByteSource*>(opaque);
    if (whence == AVSEEK_SIZE)
        return source->Length();
    if (whence != SEEK_SET || offset < 0 || !source->SeekTo(offset))
        return AVERROR(EIO); // the library counts the other ways from the beginning by itself
    return offset;
}

} // namespace

std::unique_ptr<MediaReader> MediaReader::Open(std::unique_ptr<ByteSource> source, const SoundFormat& sound)
{
    if (source == nullptr || !libav::IsThere())
        return nullptr;
    std::unique_ptr<MediaReader> reader(new MediaReader(std::move(source), sound));
    if (!reader->OpenFile())
        return nullptr;
    reader->OpenStreams();
    return reader->info_.hasPictures || reader->info_.hasSound ? std::move(reader) : nullptr;
}

MediaReader::MediaReader(std::unique_ptr<ByteSource> source, const SoundFormat& sound)
    : source_(std::move(source)), packet_(libav::Call().avPacketAlloc()), wanted_(sound)
{}

MediaReader::~MediaReader() = default;

bool MediaReader::OpenFile()
{
    auto* buffer = static_cast<std::uint8_t*>(libav::Call().avMalloc(bufferSize));
    bytes_.reset(
        libav::Call().avioAllocContext(buffer, bufferSize, 0, source_.get(), ReadBytes, nullptr, SeekBytes));
    AVFormatContext* file = libav::Call().avformatAllocContext();
    if (bytes_ == nullptr || file == nullptr || packet_ == nullptr)
        return false;
    file->pb = bytes_.get();
    AVDictionary* options = nullptr;
    libav::Call().avDictSet(&options, "format_whitelist", containers, 0);
    const int opened =
        libav::Call().avformatOpenInput(&file, "", nullptr, &options); // frees the file when it fails
    libav::Call().avDictFree(&options);
    if (opened < 0)
        return false;
    file_.reset(file);
    return libav::Call().avformatFindStreamInfo(file, nullptr) >= 0;
}

void MediaReader::OpenStreams()
{
    startTime_ = file_->start_time == AV_NOPTS_VALUE ? 0 : file_->start_time;
    pictureStream_ = libav::Call().avFindBestStream(file_.get(), AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
    if (pictureStream_ >= 0)
        pictures_ = PictureDecoder::Open(*file_->streams[pictureStream_], startTime_);
    soundStream_ =
        libav::Call().avFindBestStream(file_.get(), AVMEDIA_TYPE_AUDIO, -1, pictureStream_, nullptr, 0);
    if (soundStream_ >= 0)
        sound_ = SoundDecoder::Open(*file_->streams[soundStream_], wanted_, startTime_);
    info_.hasPictures = pictures_ != nullptr;
    info_.hasSound = sound_ != nullptr;
    info_.duration = file_->duration == AV_NOPTS_VALUE ? 0 : std::max<qint64>(0, file_->duration);
    info_.frameDuration = pictures_ != nullptr ? pictures_->FrameDuration() : 0;
    for (unsigned index = 0; index < file_->nb_streams; ++index) {
        const int stream = static_cast<int>(index);
        if (!(stream == pictureStream_ && pictures_) && !(stream == soundStream_ && sound_))
            file_->streams[index]->discard = AVDISCARD_ALL;
    }
}

/// Gives a packet to its decoder. False when there is nothing more to give.
bool MediaReader::FeedDecoders()
{
    if (drained_)
        return false;
    if (libav::Call().avReadFrame(file_.get(), packet_.get()) < 0) {
        drained_ = true;
        if (pictures_)
            pictures_->Send(nullptr);
        if (sound_)
            sound_->Send(nullptr);
        return true;
    }
    if (pictures_ && packet_->stream_index == pictureStream_)
        pictures_->Send(packet_.get());
    else if (sound_ && packet_->stream_index == soundStream_)
        sound_->Send(packet_.get());
    libav::Call().avPacketUnref(packet_.get());
    return true;
}

MediaReader::Piece MediaReader::Next()
{
    do {
        if (auto picture = NextPicture())
            return std::move(*picture);
        if (auto samples = NextSamples())
            return std::move(*samples);
    } while (FeedDecoders());
    if (passedOver_)
        return *std::exchange(passedOver_, std::nullopt);
    return End();
}

std::optional<MediaPicture> MediaReader::NextPicture()
{
    while (pictures_) {
        auto picture = pictures_->Receive();
        if (!picture)
            return std::nullopt;
        const qint64 tolerance = info_.frameDuration / 4; // times of pictures are rounded
        if (picture->time + info_.frameDuration - tolerance > from_) {
            passedOver_.reset();
            return picture;
        }
        passedOver_ = std::move(picture);
    }
    return std::nullopt;
}

std::optional<MediaSamples> MediaReader::NextSamples()
{
    while (sound_) {
        auto samples = sound_->Receive();
        if (!samples)
            return std::nullopt;
        const qint64 early = (from_ - samples->time) * wanted_.rate / 1'000'000 * wanted_.BytesPerFrame();
        if (early <= 0)
            return samples;
        if (early < samples->bytes.size()) {
            samples->bytes.remove(0, static_cast<qsizetype>(early));
            samples->time = from_;
            return samples;
        }
    }
    return std::nullopt;
}

void MediaReader::Seek(qint64 time)
{
    from_ = std::max<qint64>(0, time);
    passedOver_.reset();
    drained_ = false;
    // A picture back, since the library rounds to its own nearest one; what is early is passed over.
    const qint64 target = std::max<qint64>(0, from_ - info_.frameDuration) + startTime_;
    if (libav::Call().avformatSeekFile(file_.get(), -1, INT64_MIN, target, target, 0) < 0)
        libav::Call().avSeekFrame(file_.get(), -1, startTime_, AVSEEK_FLAG_BACKWARD | AVSEEK_FLAG_ANY);
    if (pictures_)
        pictures_->Flush();
    if (sound_)
        sound_->Flush();
}

} // namespace torvik
