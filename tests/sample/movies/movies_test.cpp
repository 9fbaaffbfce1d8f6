#include "sample/files/avi_file.h"
#include "sample/movies/movie_plan.h"
#include "sample/sounds/sound.h"
#include "sample/sounds/wave_file.h"
#include "support/discs/number_at.h"
#include "support/test_class.h"

#include <QtTest>

using namespace torvik;
using namespace torvik::sample;

namespace {

struct Chunk {
    QByteArray name; ///< of a list: its kind
    qsizetype at;    ///< of its name
    QByteArray content;
};

/// The chunks in `bytes` from `at` on, one after the other; empty where they do not fill it exactly.
std::vector<Chunk> ChunksOf(const QByteArray& bytes, qsizetype at)
{
    std::vector<Chunk> chunks;
    while (at + 8 <= bytes.size()) {
        const int size = NumberAt(bytes, at + 4);
        if (size < 0 || at + 8 + size > bytes.size())
            return {};
        const QByteArray name = bytes.mid(at, 4);
        const bool list = name == "LIST";
        chunks.push_back({list ? bytes.mid(at + 8, 4) : name, at,
                          list ? bytes.mid(at + 12, size - 4) : bytes.mid(at + 8, size)});
        at += 8 + size + size % 2;
    }
    return at == bytes.size() ? chunks : std::vector<Chunk>{};
}

const Chunk* Find(const std::vector<Chunk>& chunks, const char* name)
{
    for (const Chunk& chunk : chunks) {
        if (chunk.name == name)
            return &chunk;
    }
    return nullptr;
}

/// A movie file read back by the rules of the format.
struct ReadMovie {
    bool whole = false;
    QByteArray mainHeader;
    std::vector<Chunk> picture;
    std::vector<Chunk> sound;
    std::vector<Chunk> pieces;
    QByteArray index;
    qsizetype moviWord = 0;
    QList<QByteArray> frames;
    QByteArray samples;
};

ReadMovie Read(const QByteArray& file)
{
    ReadMovie movie;
    if (!file.startsWith("RIFF") || NumberAt(file, 4) != file.size() - 8 || file.mid(8, 4) != "AVI ")
        return movie;
    const std::vector<Chunk> top = ChunksOf(file, 12);
    if (top.size() != 3 || top[0].name != "hdrl" || top[1].name != "movi" || top[2].name != "idx1")
        return movie;
    const std::vector<Chunk> headers = ChunksOf(top[0].content, 0);
    if (headers.size() != 3 || headers[0].name != "avih" || headers[1].name != "strl" ||
        headers[2].name != "strl")
        return movie;
    movie.mainHeader = headers[0].content;
    movie.picture = ChunksOf(headers[1].content, 0);
    movie.sound = ChunksOf(headers[2].content, 0);
    movie.moviWord = top[1].at + 8;
    movie.pieces = ChunksOf(top[1].content, 0);
    movie.index = top[2].content;
    for (const Chunk& piece : movie.pieces) {
        if (piece.name == "00dc")
            movie.frames << piece.content;
        else
            movie.samples += piece.content;
    }
    movie.whole = true;
    return movie;
}

AviMovie ThreePictures()
{
    AviMovie movie;
    movie.size = QSize(64, 48);
    movie.framesPerSecond = 10;
    movie.frames = {"first", "second", "third picture"};
    movie.soundFormat = PcmFormat(1, {11025, 16});
    movie.bytesPerSample = 2;
    movie.bytesPerSecond = 22050;
    movie.sound = QByteArray(6616, 's');
    return movie;
}

/// A movie of the plan with a single short shot.
MoviePlan Shortened(std::size_t which)
{
    MoviePlan plan = Movies()[which];
    plan.shots.resize(1);
    plan.shots[0].seconds = 0.75;
    plan.sound = [](double seconds) { return PureTone(seconds, Always(440.0)); };
    return plan;
}

} // namespace

class MoviesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_headers_tell_size_rate_length_and_kind_of_pictures_and_sound()
    {
        const ReadMovie movie = Read(AviFile(ThreePictures()));
        QVERIFY(movie.whole);
        QCOMPARE(movie.mainHeader.size(), 56);
        QCOMPARE(NumberAt(movie.mainHeader, 0), 100000);
        QCOMPARE(NumberAt(movie.mainHeader, 12) & 0x10, 0x10);
        QCOMPARE(NumberAt(movie.mainHeader, 16), 3);
        QCOMPARE(NumberAt(movie.mainHeader, 24), 2);
        QCOMPARE(NumberAt(movie.mainHeader, 32), 64);
        QCOMPARE(NumberAt(movie.mainHeader, 36), 48);
        const Chunk* picture = Find(movie.picture, "strh");
        QVERIFY(picture);
        QCOMPARE(picture->content.size(), 56);
        QCOMPARE(picture->content.left(8), QByteArray("vidsMJPG"));
        QCOMPARE(NumberAt(picture->content, 20), 1);
        QCOMPARE(NumberAt(picture->content, 24), 10);
        QCOMPARE(NumberAt(picture->content, 32), 3);
        const Chunk* bitmap = Find(movie.picture, "strf");
        QVERIFY(bitmap);
        QCOMPARE(bitmap->content.size(), 40);
        QCOMPARE(NumberAt(bitmap->content, 4), 64);
        QCOMPARE(NumberAt(bitmap->content, 8), 48);
        QCOMPARE(bitmap->content.mid(16, 4), QByteArray("MJPG"));
        const Chunk* sound = Find(movie.sound, "strh");
        QVERIFY(sound);
        QCOMPARE(sound->content.size(), 56);
        QCOMPARE(sound->content.left(4), QByteArray("auds"));
        QCOMPARE(NumberAt(sound->content, 20), 2);
        QCOMPARE(NumberAt(sound->content, 24), 22050);
        QCOMPARE(NumberAt(sound->content, 32), 3308);
        const Chunk* wave = Find(movie.sound, "strf");
        QVERIFY(wave);
        QCOMPARE(NumberAt(wave->content, 0, 2), 1);
        QCOMPARE(NumberAt(wave->content, 4), 11025);
    }

    void pictures_and_sound_lie_by_turns_and_nothing_of_them_is_lost()
    {
        const AviMovie given = ThreePictures();
        const ReadMovie movie = Read(AviFile(given));
        QStringList names;
        for (const Chunk& piece : movie.pieces)
            names << QString::fromLatin1(piece.name);
        QCOMPARE(names, QStringList({"00dc", "01wb", "00dc", "01wb", "00dc", "01wb"}));
        QCOMPARE(movie.frames, QList<QByteArray>({"first", "second", "third picture"}));
        QCOMPARE(movie.samples, given.sound);
        // A tenth of a second of sound with each picture, in whole samples.
        QCOMPARE(movie.pieces[1].content.size(), 2204);
    }

    void the_index_names_the_place_and_size_of_every_piece()
    {
        const QByteArray file = AviFile(ThreePictures());
        const ReadMovie movie = Read(file);
        QCOMPARE(static_cast<std::size_t>(movie.index.size()), movie.pieces.size() * 16);
        for (std::size_t i = 0; i < movie.pieces.size(); ++i) {
            const auto entry = static_cast<qsizetype>(i) * 16;
            const qsizetype at = movie.moviWord + NumberAt(movie.index, entry + 8);
            QCOMPARE(movie.index.mid(entry, 4), movie.pieces[i].name);
            QCOMPARE(NumberAt(movie.index, entry + 4), 0x10);
            QCOMPARE(file.mid(at, 4), movie.pieces[i].name);
            QCOMPARE(NumberAt(movie.index, entry + 12), movie.pieces[i].content.size());
            QCOMPARE(NumberAt(file, at + 4), movie.pieces[i].content.size());
        }
    }

    void the_five_movies_are_planned_and_last_10_to_20_seconds()
    {
        QStringList files;
        for (const MoviePlan& plan : Movies()) {
            files << QString::fromLatin1(plan.file);
            QVERIFY2(plan.Seconds() >= 10 && plan.Seconds() <= 20, plan.file);
        }
        QCOMPARE(files, QStringList({"Torvik67.avi", "Torvik69.avi", "TheSuperGlider.avi", "Q44.avi",
                                     "RocknRoll.avi"}));
    }

    void every_movie_has_a_sound_track_of_its_own_that_is_never_still_for_long()
    {
        QList<Sound> tracks;
        for (const MoviePlan& plan : Movies()) {
            const double seconds = plan.Seconds();
            const Sound track = plan.sound(seconds);
            QVERIFY2(SecondsOf(track) >= seconds - 0.001, plan.file);
            for (double from = 0.5; from < seconds - 1.5; from += 1) {
                double loudest = 0;
                for (std::size_t i = SamplesIn(from); i < SamplesIn(from + 1); ++i)
                    loudest = std::max(loudest, std::abs(track[i]));
                QVERIFY2(loudest > Loudest(track) * 0.01, plan.file);
            }
            QVERIFY(!tracks.contains(track));
            tracks << track;
        }
    }

    void a_movie_is_a_card_then_the_car_in_motion_then_a_card_and_the_same_bytes_every_time()
    {
        const MoviePlan plan = Shortened(0);
        const QByteArray file = MakeMovie(plan);
        QCOMPARE(MakeMovie(plan), file);
        const ReadMovie movie = Read(file);
        QVERIFY(movie.whole);
        QCOMPARE(movie.frames.size(), 48); // 1.75, 0.75 and 1.5 seconds of 12 pictures each
        QCOMPARE(movie.samples.size(), 88200);
        QList<QImage> pictures;
        for (const QByteArray& frame : movie.frames) {
            pictures << QImage::fromData(frame, "JPG");
            QCOMPARE(pictures.last().size(), QSize(320, 240));
        }
        // The frame line of the cards, and the moving road between them.
        const auto isCard = [](const QImage& picture) {
            const QColor line = picture.pixelColor(160, 10);
            const QColor beside = picture.pixelColor(160, 15);
            return line.lightness() > beside.lightness() + 40;
        };
        QVERIFY(isCard(pictures[10]));
        QVERIFY(!isCard(pictures[25]));
        QVERIFY(isCard(pictures[38]));
        for (int i = 22; i < 29; ++i)
            QVERIFY(pictures[i] != pictures[i + 1]);
    }

    void the_opening_picture_of_the_movie_window_fits_its_box_and_shows_film_and_car()
    {
        const QImage picture = PaintMovieOpening({320, 217});
        QCOMPARE(picture.size(), QSize(320, 217));
        int red = 0;
        for (int y = 90; y < 160; ++y) {
            for (int x = 100; x < 220; ++x) {
                const QColor colour = picture.pixelColor(x, y);
                red += colour.red() > 150 && colour.green() < 90 ? 1 : 0;
            }
        }
        QVERIFY2(red > 600, qPrintable(QString::number(red)));
    }
};

TORVIK_TEST(MoviesTest)
#include "movies_test.moc"
