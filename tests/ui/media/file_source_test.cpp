#include "av/media_reader.h"
#include "platform/paths/drives.h"
#include "support/discs/file_bytes.h"
#include "support/discs/image_drive.h"
#include "support/discs/image_maker.h"
#include "support/discs/test_movie.h"
#include "support/test_class.h"
#include "ui/media/file_source.h"

#include <variant>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// When each picture of the movie is on show, read from the beginning and again from a second on.
QList<qint64> PictureTimes(const Place& place)
{
    QList<qint64> times;
    const auto reader = MediaReader::Open(FileSource::Open(place), SoundFormat());
    if (reader == nullptr)
        return times;
    for (const qint64 from : {0, 1'000'000}) {
        reader->Seek(from);
        for (;;) {
            const MediaReader::Piece piece = reader->Next();
            if (std::holds_alternative<MediaReader::End>(piece))
                break;
            if (const auto* const picture = std::get_if<MediaPicture>(&piece))
                times.append(picture->time);
        }
    }
    return times;
}

QByteArray DiscWith(const QByteArray& movie)
{
    ImageMaker maker;
    maker.AddFile("TORVIK69.AVI;1", movie, maker.AddFolder("MOVIES"));
    return maker.Iso();
}

} // namespace

class FileSourceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_movie_runs_and_seeks_in_an_image_as_in_a_folder()
    {
        const QByteArray movie = TestMovie::Avi();
        const ImageDrive drive;
        QVERIFY(drive.Write(u"torvik69.avi"_s, movie));
        QVERIFY(drive.Write(u"disc.iso"_s, DiscWith(movie)));
        QVERIFY(drive.Write(u"disc.bin"_s, ImageMaker::Raw(DiscWith(movie), 2, 2352)));
        const QList<qint64> expected = PictureTimes(PlaceOf(DrivePath(drive.PathOf(u"torvik69.avi"_s))));
        QCOMPARE(expected.size(), qsizetype{TestMovie::pictures + TestMovie::pictures / 2});
        for (const QString& image : {u"disc.iso"_s, u"disc.bin"_s}) {
            drive.Stand(image);
            QCOMPARE(PictureTimes(PlaceOf(u"E:\\movies\\torvik69.avi"_s)), expected);
        }
    }

    void a_movie_that_a_cut_image_does_not_hold_ends_where_the_image_does()
    {
        const QByteArray movie = TestMovie::Avi();
        const ImageDrive drive(DiscWith(movie).chopped(movie.size() / 2));
        const QList<qint64> times = PictureTimes(PlaceOf(u"E:\\movies\\torvik69.avi"_s));
        QVERIFY(times.size() > 5 && times.size() < TestMovie::pictures);
    }

    void a_place_without_a_volume_is_no_source()
    {
        QVERIFY(FileSource::Open(Place()) == nullptr);
        const ImageDrive drive(DiscWith("movie"));
        QVERIFY(FileSource::Open(PlaceOf(u"E:\\movies\\other.avi"_s)) == nullptr);
        QVERIFY(FileSource::Open(PlaceOf(u"E:\\movies"_s)) == nullptr);
    }
};

TORVIK_TEST(FileSourceTest)
#include "file_source_test.moc"
