#include "av/media_reader.h"
#include "bytes_in_memory.h"
#include "support/discs/test_movie.h"
#include "support/logged_messages.h"
#include "support/test_class.h"

#include <QRandomGenerator>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// Everything that a file holds, read from where the reader stands.
struct Contents {
    QList<MediaPicture> pictures;
    QByteArray sound;
    qint64 soundFrom = -1;
    int pieces = 0;
};

Contents ReadAll(MediaReader& reader)
{
    constexpr int tooMany = 100'000;
    Contents contents;
    for (; contents.pieces < tooMany; ++contents.pieces) {
        MediaReader::Piece piece = reader.Next();
        if (std::holds_alternative<MediaReader::End>(piece))
            break;
        if (auto* picture = std::get_if<MediaPicture>(&piece)) {
            contents.pictures.append(*picture);
        } else {
            const auto& samples = std::get<MediaSamples>(piece);
            if (contents.soundFrom < 0)
                contents.soundFrom = samples.time;
            contents.sound += samples.bytes;
        }
    }
    return contents;
}

std::unique_ptr<MediaReader> Reader(const QByteArray& bytes)
{
    return MediaReader::Open(std::make_unique<BytesInMemory>(bytes), SoundFormat());
}

/// The sound's left channel: how loud it is (0 to 1) and how often it swings in a second.
struct Heard {
    double loudness = 0;
    double hertz = 0;
    double seconds = 0;
};

Heard Listen(const QByteArray& sound)
{
    const SoundFormat format;
    const auto* samples = reinterpret_cast<const qint16*>(sound.constData());
    const qsizetype count = sound.size() / format.BytesPerFrame();
    Heard heard;
    double sum = 0;
    int swings = 0;
    bool high = false;
    for (qsizetype index = 0; index < count; ++index) {
        constexpr double clear = 0.1; // what codecs add is smaller
        const double value = samples[index * format.channels] / 32768.0;
        sum += value * value;
        if (!high && value > clear)
            ++swings;
        high = high ? value > -clear : value > clear;
    }
    heard.seconds = static_cast<double>(count) / format.rate;
    heard.loudness = count > 0 ? std::sqrt(sum / static_cast<double>(count)) : 0;
    heard.hertz = heard.seconds > 0 ? swings / heard.seconds : 0;
    return heard;
}

void CheckTone(const QByteArray& sound)
{
    const Heard heard = Listen(sound);
    QVERIFY2(std::abs(heard.seconds - 2) < 0.15, qPrintable(QString::number(heard.seconds)));
    QVERIFY2(heard.loudness > 0.1, qPrintable(QString::number(heard.loudness)));
    QVERIFY2(std::abs(heard.hertz - 440) < 15, qPrintable(QString::number(heard.hertz)));
}

void CheckBars(const QImage& image)
{
    QCOMPARE(image.size(), QSize(TestMovie::width, TestMovie::height));
    const int barWidth = TestMovie::width / static_cast<int>(TestMovie::Bars().size());
    for (int bar = 0; bar < TestMovie::Bars().size(); ++bar) {
        const QColor seen = image.pixelColor(bar * barWidth + barWidth / 2, TestMovie::height / 4);
        const QColor wanted = TestMovie::Bars()[bar];
        const bool near = std::abs(seen.red() - wanted.red()) < 24 &&
                          std::abs(seen.green() - wanted.green()) < 24 &&
                          std::abs(seen.blue() - wanted.blue()) < 24;
        QVERIFY2(near, qPrintable(u"bar %1 is %2 and not %3"_s.arg(bar).arg(seen.name(), wanted.name())));
    }
}

QStringList Codecs(const char* picture, const char* sound)
{
    return {u"-c:v"_s, QString::fromLatin1(picture), u"-q:v"_s, u"2"_s,
            u"-c:a"_s, QString::fromLatin1(sound)};
}

} // namespace

/// Movies and sounds in the formats that discs of the time hold.
class MediaReaderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_decoders_are_logged()
    {
        const QByteArray movie = TestMovie::Avi(Codecs("cinepak", "adpcm_ima_wav"));
        LoggedMessages log(u"torvik.media"_s);
        QVERIFY(Reader(movie) != nullptr);
        QCOMPARE(log.Texts(), (QStringList{u"torvik.media: pictures: the decoder is cinepak"_s,
                                           u"torvik.media: sound: the decoder is adpcm_ima_wav"_s}));
    }

    void a_movie_gives_all_its_pictures_in_their_colours_and_its_sound_data()
    {
        QTest::addColumn<QStringList>("codecs");
        QTest::newRow("Motion JPEG, PCM of 16 bits") << Codecs("mjpeg", "pcm_s16le");
        QTest::newRow("Motion JPEG, PCM of 8 bits") << Codecs("mjpeg", "pcm_u8");
        QTest::newRow("Cinepak, IMA ADPCM") << Codecs("cinepak", "adpcm_ima_wav");
        QTest::newRow("Microsoft Video 1, Microsoft ADPCM") << Codecs("msvideo1", "adpcm_ms");
        QTest::newRow("plain pictures of 24 bits")
            << Codecs("rawvideo", "pcm_s16le") + QStringList{u"-pix_fmt"_s, u"bgr24"_s};
        QTest::newRow("plain pictures with a palette")
            << Codecs("rawvideo", "pcm_s16le") + QStringList{u"-pix_fmt"_s, u"pal8"_s};
    }
    void a_movie_gives_all_its_pictures_in_their_colours_and_its_sound()
    {
        QFETCH(const QStringList, codecs);
        const auto reader = Reader(TestMovie::Avi(codecs));
        QVERIFY(reader != nullptr);
        QVERIFY(reader->Info().hasPictures);
        QVERIFY(reader->Info().hasSound);
        QVERIFY(std::abs(reader->Info().duration - 2'000'000) < 100'000);
        QVERIFY(std::abs(reader->Info().frameDuration - TestMovie::pictureDuration) <= 1);
        const Contents contents = ReadAll(*reader);
        QCOMPARE(contents.pictures.size(), TestMovie::pictures);
        for (int index = 0; index < contents.pictures.size(); ++index)
            QVERIFY(std::abs(contents.pictures[index].time - index * 2'000'000LL / TestMovie::pictures) <
                    1000);
        CheckBars(contents.pictures.first().image);
        CheckBars(contents.pictures.last().image);
        QVERIFY(contents.pictures.first().image != contents.pictures.last().image);
        CheckTone(contents.sound);
    }

    void run_length_coded_pictures_have_the_colours_of_their_palette()
    {
        const auto reader = Reader(TestMovie::RunLengthAvi());
        QVERIFY(reader != nullptr);
        QVERIFY(!reader->Info().hasSound);
        const Contents contents = ReadAll(*reader);
        QCOMPARE(contents.pictures.size(), TestMovie::pictures);
        CheckBars(contents.pictures.first().image);
        CheckBars(contents.pictures.last().image);
    }

    void a_sound_is_heard_whole_data()
    {
        QTest::addColumn<QString>("codec");
        QTest::addColumn<int>("rate");
        QTest::addColumn<int>("channels");
        QTest::newRow("8 bits, mono") << u"pcm_u8"_s << 11025 << 1;
        QTest::newRow("8 bits, stereo") << u"pcm_u8"_s << 22050 << 2;
        QTest::newRow("16 bits, mono") << u"pcm_s16le"_s << 22050 << 1;
        QTest::newRow("16 bits, stereo") << u"pcm_s16le"_s << 44100 << 2;
        QTest::newRow("IMA ADPCM, mono") << u"adpcm_ima_wav"_s << 22050 << 1;
        QTest::newRow("IMA ADPCM, stereo") << u"adpcm_ima_wav"_s << 22050 << 2;
        QTest::newRow("Microsoft ADPCM, mono") << u"adpcm_ms"_s << 22050 << 1;
        QTest::newRow("Microsoft ADPCM, stereo") << u"adpcm_ms"_s << 22050 << 2;
        QTest::newRow("GSM") << u"libgsm_ms"_s << 8000 << 1;
    }
    void a_sound_is_heard_whole()
    {
        QFETCH(const QString, codec);
        QFETCH(const int, rate);
        QFETCH(const int, channels);
        const auto reader = Reader(TestMovie::Wav(codec, rate, channels));
        QVERIFY(reader != nullptr);
        QVERIFY(!reader->Info().hasPictures);
        QVERIFY(reader->Info().hasSound);
        CheckTone(ReadAll(*reader).sound);
    }

    void samples_come_in_the_format_that_is_wanted()
    {
        const SoundFormat wanted{8000, 1, SoundFormat::Sample::Float};
        const auto reader = MediaReader::Open(std::make_unique<BytesInMemory>(TestMovie::Wav()), wanted);
        QVERIFY(reader != nullptr);
        const QByteArray sound = ReadAll(*reader).sound;
        QVERIFY(std::abs(static_cast<double>(sound.size()) / wanted.BytesPerSecond() - 2) < 0.1);
        const auto* samples = reinterpret_cast<const float*>(sound.constData());
        const float loudest = *std::max_element(samples, samples + sound.size() / 4);
        QVERIFY(loudest > 0.3F && loudest <= 1.0F);
    }

    void a_place_is_found_to_the_picture_data()
    {
        QTest::addColumn<QStringList>("codecs");
        QTest::newRow("each picture by itself") << Codecs("mjpeg", "pcm_s16le");
        QTest::newRow("pictures that follow from others")
            << Codecs("cinepak", "pcm_s16le") + QStringList{u"-g"_s, u"30"_s};
    }
    void a_place_is_found_to_the_picture()
    {
        QFETCH(const QStringList, codecs);
        const auto reader = Reader(TestMovie::Avi(codecs));
        QVERIFY(reader != nullptr);
        const Contents whole = ReadAll(*reader);
        for (const int picture : {20, 7, 0, 29, 8}) {
            const qint64 begin = whole.pictures[picture].time;
            for (const qint64 within : {0LL, TestMovie::pictureDuration / 2}) {
                reader->Seek(begin + within);
                const Contents rest = ReadAll(*reader);
                QCOMPARE(rest.pictures.size(), TestMovie::pictures - picture);
                QCOMPARE(rest.pictures.first().time, begin);
                QCOMPARE(rest.pictures.first().image, whole.pictures[picture].image);
                QVERIFY(std::abs(rest.soundFrom - (begin + within)) < 3000);
            }
        }
    }

    void after_the_end_comes_the_last_picture()
    {
        const auto reader = Reader(TestMovie::Avi());
        const Contents whole = ReadAll(*reader);
        for (const qint64 place : {2'000'000LL, 90'000'000LL}) {
            reader->Seek(place);
            const Contents rest = ReadAll(*reader);
            QCOMPARE(rest.pictures.size(), 1);
            QCOMPARE(rest.pictures.first().time, whole.pictures.last().time);
            QVERIFY(rest.sound.isEmpty());
        }
        reader->Seek(-5);
        QCOMPARE(ReadAll(*reader).pictures.size(), TestMovie::pictures);
    }

    void what_is_no_movie_is_refused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("There is no movie here.\n").repeated(200);
        QTest::newRow("zeros") << QByteArray(20'000, '\0');
        QTest::newRow("head alone") << TestMovie::Avi().left(300);
        QTest::newRow("a play list") << QByteArray(
            "#EXTM3U\n#EXT-X-TARGETDURATION:9\n#EXTINF:9,\n/etc/passwd\n");
        QTest::newRow("a list of files") << QByteArray("ffconcat version 1.0\nfile /etc/passwd\n");
        QTest::newRow("a picture") << QByteArray::fromHex("ffd8ffe000104a46494600010100000100010000ffd9");
    }
    void what_is_no_movie_is_refused()
    {
        QFETCH(const QByteArray, bytes);
        QVERIFY(Reader(bytes) == nullptr);
        QVERIFY(MediaReader::Open(nullptr, SoundFormat()) == nullptr);
    }

    void a_movie_that_ends_early_gives_what_it_has()
    {
        const QByteArray whole = TestMovie::Avi();
        const auto reader = Reader(whole.left(whole.size() / 2));
        QVERIFY(reader != nullptr);
        const Contents contents = ReadAll(*reader);
        QVERIFY(contents.pictures.size() > 5);
        QVERIFY(contents.pictures.size() < TestMovie::pictures);
    }

    void damage_anywhere_never_keeps_it_from_ending()
    {
        QRandomGenerator random(1967);
        for (const QByteArray& whole :
             {TestMovie::Avi(), TestMovie::Avi(Codecs("cinepak", "adpcm_ima_wav")),
              TestMovie::Avi(Codecs("msvideo1", "adpcm_ms")), TestMovie::RunLengthAvi(), TestMovie::Wav()}) {
            for (int round = 0; round < 12; ++round) {
                QByteArray damaged = whole;
                const int reach = round % 2 == 0 ? 600 : static_cast<int>(damaged.size());
                for (int hit = 0; hit < 20; ++hit)
                    damaged[random.bounded(reach)] = static_cast<char>(random.bounded(256));
                const auto reader = Reader(damaged);
                if (reader == nullptr)
                    continue;
                QVERIFY(ReadAll(*reader).pieces < 100'000);
                reader->Seek(1'000'000);
                QVERIFY(ReadAll(*reader).pieces < 100'000);
            }
        }
    }
};

TORVIK_GUILESS_TEST(MediaReaderTest)
#include "media_reader_test.moc"
