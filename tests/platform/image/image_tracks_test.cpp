#include "platform/image/disc_image.h"
#include "platform/image/image_tracks.h"
#include "support/discs/image_drive.h"
#include "support/discs/image_maker.h"
#include "support/failure_of.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

QByteArray SheetOf(const QByteArray& file, const QByteArray& mode)
{
    return "FILE \"" + file + "\" BINARY\r\n  TRACK 01 " + mode + "\r\n    INDEX 01 00:00:00\r\n";
}

QByteArray DiscWithFile()
{
    ImageMaker maker;
    maker.AddFile("FILE;1", "content");
    return maker.Iso();
}

/// Whether the image opens and holds the file of DiscWithFile.
bool IsRead(const ImageDrive& drive, const QString& name)
{
    return FailureOf([&] {
               const DiscImage image(drive.PathOf(name).toStdString());
               char bytes[8] = {};
               const ImageEntry& file = image.Folders()[0].at(0);
               if (image.Read(file, 0, bytes, 7) != 7 || QByteArray(bytes) != "content")
                   Fail(failure::deviceIo);
           }) == 0;
}

QList<qint64> BeginningsOf(const ImageDrive& drive, const QString& name)
{
    QList<qint64> beginnings;
    for (const ImageTrack& track : TracksOf(drive.PathOf(name).toStdString()))
        beginnings.append(track.firstByte);
    return beginnings;
}

} // namespace

class ImageTracksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_cue_sheet_leads_to_its_file_whatever_the_sectors()
    {
        const QByteArray iso = DiscWithFile();
        const ImageDrive drive;
        const QList<std::tuple<QByteArray, QByteArray>> kinds{
            {"MODE1/2048", iso},
            {"MODE1/2352", ImageMaker::Raw(iso, 1, 2352)},
            {"MODE2/2352", ImageMaker::Raw(iso, 2, 2352)},
            {"MODE2/2336", ImageMaker::Raw(iso, 2, 2336)},
        };
        for (const auto& [mode, bytes] : kinds) {
            QVERIFY(drive.Write(u"disc.bin"_s, bytes));
            QVERIFY(drive.Write(u"disc.cue"_s, SheetOf("disc.bin", mode)));
            QVERIFY2(IsRead(drive, u"disc.cue"_s), mode.constData());
            QVERIFY2(IsRead(drive, u"disc.bin"_s), mode.constData()); // also without its sheet
        }
    }

    void a_cue_sheet_of_another_machine_finds_its_file_beside_itself()
    {
        const ImageDrive drive;
        QVERIFY(drive.Write(u"Disc.BIN"_s, DiscWithFile()));
        for (const QByteArray& name : QList<QByteArray>{"disc.bin", "DISC.bin", "C:\\\\dumps\\\\disc.bin",
                                                        "/home/me/disc.bin", "other.img"}) {
            QVERIFY(drive.Write(u"disc.CUE"_s, SheetOf(name, "MODE1/2048")));
            QVERIFY2(IsRead(drive, u"disc.CUE"_s), name.constData());
        }
        QVERIFY(drive.Write(u"bare.cue"_s, "file disc.bin binary\ntrack 1 mode1/2048\nindex 01 00:00:00"));
        QVERIFY(IsRead(drive, u"bare.cue"_s));
    }

    void the_data_track_is_found_after_others()
    {
        const ImageDrive drive;
        const QByteArray audio(2352LL * 150, 'a');
        QVERIFY(drive.Write(u"disc.bin"_s, audio + DiscWithFile()));
        QVERIFY(drive.Write(u"disc.cue"_s, "REM a remark\n"
                                           "CATALOG 0000000000000\n"
                                           "FILE \"disc.bin\" BINARY\n"
                                           "  TRACK 01 AUDIO\n"
                                           "    INDEX 01 00:00:00\n"
                                           "  TRACK 02 MODE1/2048\n"
                                           "    INDEX 00 00:01:00\n"
                                           "    INDEX 01 00:02:00\n"));
        QCOMPARE(BeginningsOf(drive, u"disc.cue"_s), QList<qint64>{2352LL * 150});
        QVERIFY(IsRead(drive, u"disc.cue"_s));
    }

    void a_sheet_that_makes_no_sense_is_no_disc()
    {
        const ImageDrive drive;
        QVERIFY(drive.Write(u"disc.bin"_s, DiscWithFile()));
        for (const QByteArray& sheet :
             {QByteArray(), QByteArray("FILE"), QByteArray("FILE \""),
              QByteArray("TRACK 01 MODE1/2048\nINDEX 01 00:00:00"), SheetOf("disc.bin", "AUDIO"),
              QByteArray(300'000, 'F'),
              QByteArray("FILE \"disc.bin\" BINARY\nTRACK 01 MODE1/2048\nINDEX 01 a:b:c\nINDEX 01 "
                         "00:00\nINDEX 01 -1:0:0"),
              QByteArray("FILE \"disc.bin\" BINARY\nTRACK 01 MODE1/99999\nINDEX 01 99:59:74")}) {
            QVERIFY(drive.Write(u"disc.cue"_s, sheet));
            QVERIFY(!IsRead(drive, u"disc.cue"_s));
        }
    }

    void an_nrg_of_each_kind_is_read()
    {
        const QByteArray pause(150LL * 2048, '\0');
        const QByteArray iso = DiscWithFile();
        const QByteArray entry32 = ImageMaker::Big(0, 4) + ImageMaker::Big(1, 4) + QByteArray(12, '\0');
        const QByteArray entry64 = ImageMaker::Big(0, 8) + ImageMaker::Big(1, 8) + QByteArray(16, '\0');
        const auto place = static_cast<quint64>(pause.size());
        const QByteArray head(22, '\0');
        const QByteArray atOnce32 = head + QByteArray(18, '\0') + ImageMaker::Big(0, 4) +
                                    ImageMaker::Big(place, 4) + ImageMaker::Big(0, 4);
        const QByteArray atOnce64 = head + QByteArray(18, '\0') + ImageMaker::Big(0, 8) +
                                    ImageMaker::Big(place, 8) + ImageMaker::Big(0, 8);
        const ImageDrive drive;
        for (const QByteArray& image :
             {ImageMaker::Nero(iso, ImageMaker::Chunk("ETNF", entry32), false),
              ImageMaker::Nero(iso, ImageMaker::Chunk("ETN2", entry64), true),
              ImageMaker::Nero(ImageMaker::Raw(iso, 2, 2336), ImageMaker::Chunk("ETN2", entry64), true),
              ImageMaker::Nero(pause + iso, ImageMaker::Chunk("DAOI", atOnce32), false),
              ImageMaker::Nero(pause + ImageMaker::Raw(iso, 1, 2352), ImageMaker::Chunk("DAOX", atOnce64),
                               true)}) {
            QVERIFY(drive.Write(u"disc.nrg"_s, image));
            QVERIFY(IsRead(drive, u"disc.nrg"_s));
        }
    }

    void the_tracks_of_an_nrg_are_where_its_table_tells()
    {
        const QByteArray other = ImageMaker::Chunk("SINF", ImageMaker::Big(1, 4));
        const QByteArray entries =
            ImageMaker::Big(77, 4) + QByteArray(16, '\0') + ImageMaker::Big(99, 4) + QByteArray(16, '\0');
        const ImageDrive drive;
        QVERIFY(drive.Write(
            u"disc.nrg"_s,
            ImageMaker::Nero("content", other + ImageMaker::Chunk("ETNF", entries + "rest"), true)));
        QCOMPARE(BeginningsOf(drive, u"disc.nrg"_s), (QList<qint64>{77, 99}));
    }

    void a_table_of_an_nrg_that_lies_is_none()
    {
        const ImageDrive drive;
        for (const QByteArray& table : QList<QByteArray>{
                 QByteArray("NER5") + ImageMaker::Big(1'000'000, 8),
                 QByteArray("NER5") + ImageMaker::Big(~quint64{0}, 8),
                 QByteArray("NERO") + ImageMaker::Big(~quint64{0}, 4),
                 QByteArray("ETNF\xFF\xFF\xFF\xFFNER5") + ImageMaker::Big(0, 8),
                 QByteArray("ETNF") + ImageMaker::Big(19, 4) + QByteArray(19, '\0') + "NER5" +
                     ImageMaker::Big(0, 8),
                 ImageMaker::Chunk("DAOX", QByteArray(22, '\0')) + "NER5" + ImageMaker::Big(0, 8),
                 ImageMaker::Chunk("ETN2", ImageMaker::Big(~quint64{0}, 8) + QByteArray(24, '\0')) + "NER5" +
                     ImageMaker::Big(0, 8)}) {
            QVERIFY(drive.Write(u"disc.nrg"_s, table));
            QCOMPARE(BeginningsOf(drive, u"disc.nrg"_s), QList<qint64>{0});
            QVERIFY(!IsRead(drive, u"disc.nrg"_s));
        }
    }
};

TORVIK_TEST(ImageTracksTest)
#include "image_tracks_test.moc"
