#include "av/media_stream.h"
#include "bytes_in_memory.h"
#include "support/discs/test_movie.h"
#include "support/test_class.h"

#include <QElapsedTimer>

#include <atomic>
#include <semaphore>

using namespace torvik;

namespace {

MediaStream::Opener Opening(const QByteArray& bytes)
{
    return [bytes] { return std::make_unique<BytesInMemory>(bytes); };
}

} // namespace

/// Reading ahead in the background.
class MediaStreamTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void it_is_ready_when_the_file_is_known()
    {
        MediaStream stream(Opening(TestMovie::Avi()), SoundFormat());
        QTRY_COMPARE(stream.Progress(), MediaStream::State::Ready);
        QVERIFY(stream.Info().hasPictures);
        QVERIFY(stream.Info().hasSound);
        QTRY_VERIFY(stream.HasPicture());
        QVERIFY(!stream.AtEnd());
    }

    void a_file_that_cannot_be_opened_fails()
    {
        MediaStream missing([] { return std::unique_ptr<ByteSource>(); }, SoundFormat());
        QTRY_COMPARE(missing.Progress(), MediaStream::State::Failed);
        MediaStream text(Opening("no movie"), SoundFormat());
        QTRY_COMPARE(text.Progress(), MediaStream::State::Failed);
        QVERIFY(!text.HasPicture());
        QVERIFY(!text.TakePicture(0));
        QVERIFY(text.TakeSound(100, 0).isEmpty());
        text.Seek(1000);
    }

    void all_pictures_come_in_their_order_however_slowly_they_are_taken()
    {
        MediaStream stream(Opening(TestMovie::Avi()), SoundFormat());
        int count = 0;
        qint64 last = -1;
        while (count < TestMovie::pictures) {
            QTRY_VERIFY(stream.HasPicture());
            const auto picture = stream.TakeNextPicture();
            QVERIFY(picture->time > last);
            last = picture->time;
            stream.TakeSound(1'000'000, 0);
            ++count;
        }
        QTRY_VERIFY((stream.TakeSound(1'000'000, 0), stream.AtEnd()));
        QVERIFY(!stream.TakeNextPicture());
        QVERIFY(std::abs(stream.EndOfRead() - 2'000'000) < 100'000);
    }

    void the_picture_of_a_time_is_the_latest_that_has_begun()
    {
        MediaStream stream(Opening(TestMovie::Avi()), SoundFormat());
        QTRY_VERIFY(stream.HasPicture());
        QVERIFY(!stream.TakePicture(-1));
        QCOMPARE(stream.TakePicture(TestMovie::pictureDuration / 2)->time, 0);
        QVERIFY(!stream.TakePicture(TestMovie::pictureDuration / 2));
    }

    void after_a_seek_nothing_of_the_place_before_comes()
    {
        MediaStream stream(Opening(TestMovie::Avi()), SoundFormat());
        QTRY_VERIFY(stream.HasPicture());
        for (const int picture : {20, 3, 25, 0}) {
            stream.Seek(picture * TestMovie::pictureDuration + 1000);
            QVERIFY(!stream.AtEnd());
            QTRY_VERIFY(stream.HasPicture()); // the reader may have been quick enough to have it at once
            QVERIFY(std::abs(stream.TakeNextPicture()->time - picture * TestMovie::pictureDuration) < 1000);
        }
    }

    void sound_that_is_too_late_is_dropped()
    {
        MediaStream stream(Opening(TestMovie::Wav()), SoundFormat());
        QTRY_VERIFY(!stream.TakeSound(4, 0).isEmpty());
        QTRY_VERIFY((stream.TakeSound(0, 3'000'000), stream.AtEnd()));
    }

    void sound_comes_without_gaps()
    {
        const SoundFormat format;
        MediaStream stream(Opening(TestMovie::Wav()), format);
        QByteArray sound;
        QTRY_VERIFY((sound += stream.TakeSound(30'000, 0), stream.AtEnd()));
        QVERIFY(std::abs(static_cast<double>(sound.size()) / format.BytesPerSecond() - 2) < 0.1);
    }

    void letting_go_does_not_wait_for_a_disc_that_hangs()
    {
        auto hangs = std::make_shared<std::binary_semaphore>(0);
        auto finished = std::make_shared<std::atomic<bool>>(false);
        QElapsedTimer taken;
        taken.start();
        {
            MediaStream stream(
                [hangs, finished]() -> std::unique_ptr<ByteSource> {
                    hangs->acquire();
                    *finished = true;
                    return nullptr;
                },
                SoundFormat());
            stream.Seek(5);
            QCOMPARE(stream.Progress(), MediaStream::State::Opening);
        }
        QVERIFY(taken.elapsed() < 1000);
        QVERIFY(!*finished);
        hangs->release();
        QTRY_VERIFY(*finished);
    }
};

TORVIK_GUILESS_TEST(MediaStreamTest)
#include "media_stream_test.moc"
