#include "sample/artwork/art_maker.h"
#include "sample/files/jpeg_file.h"
#include "support/test_class.h"

#include <QGuiApplication>
#include <QSet>

using namespace torvik::sample;
using namespace Qt::StringLiterals;

namespace {

QStringList FilesOf(const std::vector<SmallPicture>& pictures)
{
    QStringList files;
    for (const SmallPicture& picture : pictures)
        files.append(picture.file);
    return files;
}

/// "67" to "99", "00", "01", one after the other.
QStringList YearsOnFiles()
{
    QStringList digits;
    for (int year = 67; year <= 101; ++year)
        digits.append(QString::number(year % 100).rightJustified(2, u'0'));
    return digits;
}

} // namespace

class ArtPlanTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void every_year_has_an_emblem_and_so_have_the_harwell_and_the_prototypes()
    {
        QStringList expected;
        for (const QString& digits : YearsOnFiles())
            expected.append(u"emblems/emb%1.jpg"_s.arg(digits));
        expected.append(u"emblems/embsb.jpg"_s);
        expected.append(u"emblems/EMBpt.jpg"_s);
        QCOMPARE(FilesOf(PlanEmblems()), expected);
    }

    void every_year_has_a_script_and_so_have_the_harwell_and_the_prototypes()
    {
        QStringList expected;
        for (const QString& digits : YearsOnFiles())
            expected.append(u"SCRIPTS/scri%1.jpg"_s.arg(digits));
        expected.append(u"SCRIPTS/SCRISB.jpg"_s);
        expected.append(u"SCRIPTS/SCRIpt.jpg"_s);
        QCOMPARE(FilesOf(PlanScripts()), expected);
    }

    void every_year_has_clip_art_and_no_topic_has()
    {
        QStringList expected;
        for (const QString& digits : YearsOnFiles())
            expected.append(u"Clipart/%1clip.jpg"_s.arg(digits));
        QCOMPARE(FilesOf(PlanClipArt()), expected);
    }

    void the_years_after_1999_go_by_their_two_digits_here_and_not_by_the_codes_of_the_photos()
    {
        QCOMPARE(TwoDigits(1967), u"67"_s);
        QCOMPARE(TwoDigits(1999), u"99"_s);
        QCOMPARE(TwoDigits(2000), u"00"_s);
        QCOMPARE(TwoDigits(2001), u"01"_s);
    }

    void every_emblem_fits_over_a_photo_and_no_two_are_alike_between_generations()
    {
        QSet<QByteArray> seen;
        for (const int year : {1967, 1971, 1974, 1979, 1989, 1999}) {
            const QImage emblem = PaintEmblem({QString(), year, Marque::Vollandry});
            QCOMPARE(emblem.size(), QSize(200, 124));
            seen.insert(JpegBytes(emblem, 80));
        }
        for (const Marque marque : {Marque::Harwell, Marque::Prototype}) {
            const QImage emblem = PaintEmblem({QString(), 1967, marque});
            QCOMPARE(emblem.size(), QSize(200, 124));
            seen.insert(JpegBytes(emblem, 80));
        }
        QCOMPARE(seen.size(), 8);
    }

    void every_script_fits_over_a_photo_and_no_two_generations_share_one()
    {
        QSet<QByteArray> seen;
        for (const int year : {1967, 1971, 1974, 1979, 1989, 1999}) {
            const QImage script = PaintScript({QString(), year, Marque::Vollandry});
            QCOMPARE(script.size(), QSize(240, 72));
            seen.insert(JpegBytes(script, 80));
        }
        for (const Marque marque : {Marque::Harwell, Marque::Prototype}) {
            const QImage script = PaintScript({QString(), 1967, marque});
            QCOMPARE(script.size(), QSize(240, 72));
            seen.insert(JpegBytes(script, 80));
        }
        QCOMPARE(seen.size(), 8);
    }

    void every_year_has_a_strip_of_clip_art_of_its_own()
    {
        QSet<QByteArray> seen;
        for (const SmallPicture& strip : PlanClipArt()) {
            const QImage picture = PaintClipArt(strip);
            QCOMPARE(picture.size(), QSize(480, 80));
            // Only the place of the remembered thing: the car and the year differ anyway.
            seen.insert(JpegBytes(picture.copy(0, 0, 80, 80), 80));
        }
        QCOMPARE(seen.size(), 35);
    }

    void the_same_picture_is_drawn_each_time()
    {
        const SmallPicture of{QString(), 1984, Marque::Vollandry};
        QCOMPARE(PaintEmblem(of), PaintEmblem(of));
        QCOMPARE(PaintScript(of), PaintScript(of));
        QCOMPARE(PaintClipArt(of), PaintClipArt(of));
    }
};

TORVIK_TEST(ArtPlanTest)
#include "art_plan_test.moc"
