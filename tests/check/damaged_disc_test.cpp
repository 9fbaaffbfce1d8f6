#include "check/check_disc.h"
#include "check/report.h"
#include "check/whole_disc.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// A picture that tells of 400 million pixels and has few.
QByteArray EnormousPicture()
{
    QByteArray picture = TestDisc::Jpeg(Qt::red, {64, 48});
    constexpr int measures = 5; // bytes into the head of the picture's frame
    return picture.replace(picture.indexOf("\xFF\xC0") + measures, 4, "\x4E\x20\x4E\x20");
}

/// A whole disc to which more than twenty different things have happened.
class DamagedDisc {
public:
    DamagedDisc()
    {
        DamagePhotos();
        DamageCaptions();
        DamageArticles();
        DamageMoviesAndSounds();
        Disc().AddFile(u"setup.exe"_s, "program");
        Disc().Remove(u"emblems/emb90.jpg"_s);
    }

private:
    TestDisc& Disc() { return whole_.disc; }
    void AddPhoto(const QString& name, const QByteArray& content)
    {
        Disc().AddFile(u"Torviks/"_s + name, content);
    }
    void AddArticle(const QString& name, const QByteArray& content)
    {
        Disc().AddFile(u"richtext/"_s + name, content);
    }

    void DamagePhotos()
    {
        const QByteArray picture = TestDisc::Jpeg(Qt::darkCyan, {64, 48});
        QByteArray holed = TestDisc::Jpeg(Qt::red, {640, 480});
        holed.replace(holed.size() / 2, 40, QByteArray(40, '\xFF'));
        AddPhoto(u"68TOR001.JPG"_s, TestDisc::Jpeg(Qt::red, {200, 150}).chopped(20));
        AddPhoto(u"69TOR001.JPG"_s, holed);
        AddPhoto(u"70TOR001.JPG"_s, "no picture");
        AddPhoto(u"71TOR001.JPG"_s, {});
        AddPhoto(u"72TOR001.JPG"_s, EnormousPicture());
        AddPhoto(u"73TOR001.JPG"_s, TestDisc::Jpeg(Qt::darkCyan, {640, 480}));
        AddPhoto(u"74TOR001.JPG"_s, TestDisc::Jpeg(Qt::darkCyan, {8, 6}));
        Disc().Remove(u"Torviks/75TOR001.JPG"_s);
        Disc().Remove(u"Torviks/75TOR002.JPG"_s);
        AddPhoto(u"76TOR004.JPG"_s, picture);
        AddPhoto(u"77tor001.jpg"_s, picture);
    }

    void DamageCaptions()
    {
        Disc().Remove(u"RichText/75tor001.rtf"_s);
        Disc().AddFile(u"RichText/76tor004.rtf"_s, article);
        Disc().Remove(u"RichText/78tor002.rtf"_s);
        Disc().AddFile(u"RichText/79tor002.rtf"_s, "{\\rtf1 }");
    }

    void DamageArticles()
    {
        AddArticle(u"80desc.rtf"_s, "{\\rtf1 }");
        AddArticle(u"81desc.rtf"_s, "plain words");
        AddArticle(u"82desc.rtf"_s, "{\\rtf1 Words {\\b bold");
        AddArticle(u"83desc.rtf"_s, "{\\rtf1 Words {\\pict\\jpegblip ffd8}}");
        AddArticle(u"84desc.rtf"_s, "{\\rtf1 Words {\\pict\\jpegblip ffd8}{\\pict\\jpegblip ff}}");
        AddArticle(u"85desc.rtf"_s, {});
        Disc().Remove(u"richtext/86desc.rtf"_s);
        Disc().AddFile(u"richtext/87dseq.rtf"_s, article);
    }

    void DamageMoviesAndSounds()
    {
        const QByteArray movie = TestMovie::Avi();
        const QByteArray sound = TestMovie::Wav();
        const qsizetype index = movie.lastIndexOf("idx1");
        QByteArray broken = movie;
        broken.replace(index + 16, 4, "\xFF\xFF\xFF\x7F");
        QByteArray without = movie;
        without.replace(index, 4, "JUNK");
        Disc().AddFile(u"movies/torvik67.avi"_s, "no movie");
        Disc().AddFile(u"movies/torvik69.avi"_s, movie.left(movie.size() / 2));
        Disc().AddFile(u"movies/q44.avi"_s, broken);
        Disc().AddFile(u"movies/rocknroll.avi"_s, without);
        Disc().AddFile(u"wav/taxi.wav"_s, sound.left(44));
        Disc().AddFile(u"wav/horns.wav"_s, sound.left(sound.size() / 2));
    }

    WholeDisc whole_;
};

} // namespace

/// Each kind of damage, in one report.
class DamagedDiscTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void each_kind_of_damage_is_told_with_the_screens_that_suffer()
    {
        const DamagedDisc disc;
        const QString report = ReportText(CheckDisc(u'E', [](int, int) {}), false);
        QStringList seen = report.split(u'\n');
        for (QString& line : seen)
            line = line.simplified();
        const QStringList expected{
            u"missing emblems\\emb90.jpg is missing [1990 > Emblem]"_s,
            u"missing richtext\\86desc.rtf is missing [1986 > Description; File > PrintBooklet]"_s,
            u"missing Torviks\\*.JPG has no photo for this screen [1975]"_s,
            u"empty richtext\\85desc.rtf has no content [1985 > Description; File > PrintBooklet]"_s,
            u"empty Torviks\\71TOR001.JPG has no content [1971]"_s,
            u"damaged movies\\q44.avi has a broken index [Movies > Q44]"_s,
            u"damaged movies\\rocknroll.avi has no index, so places in it are hard to find [Movies > Rock and Roll]"_s,
            u"damaged movies\\torvik67.avi has no readable picture [Movies > The 1967 Torvik]"_s,
            u"damaged movies\\torvik69.avi ends early [Movies > The 1969 Torvik]"_s,
            u"damaged RichText\\79tor002.rtf has no readable text [1979 > caption of 79TOR002.JPG]"_s,
            u"damaged richtext\\80desc.rtf has no readable text [1980 > Description; File > PrintBooklet]"_s,
            u"damaged richtext\\81desc.rtf is no rich text [1981 > Description; File > PrintBooklet]"_s,
            u"damaged richtext\\82desc.rtf ends early [1982 > Description; File > PrintBooklet]"_s,
            u"damaged richtext\\83desc.rtf has lost a picture [1983 > Description; File > PrintBooklet]"_s,
            u"damaged richtext\\84desc.rtf has lost 2 pictures [1984 > Description; File > PrintBooklet]"_s,
            u"damaged Torviks\\68TOR001.JPG ends early [1968]"_s,
            u"damaged Torviks\\69TOR001.JPG has damaged bytes inside [1969]"_s,
            u"damaged Torviks\\70TOR001.JPG is no picture [1970]"_s,
            u"damaged Torviks\\72TOR001.JPG has more than 300 million pixels, which are not shown [1972]"_s,
            u"damaged wav\\horns.wav ends early [Sound Effects > Traffic]"_s,
            u"damaged wav\\taxi.wav has no sound [Sound Effects > Taxi Horns]"_s,
            u"never-asked richtext\\87dseq.rtf is not asked for by any screen"_s,
            u"never-asked setup.exe is not asked for by any screen"_s,
            u"odd RichText\\75tor002.rtf is the caption of a photo that is not there [1975]"_s,
            u"odd Torviks\\73TOR001.JPG is far larger than the others: 640 by 480 pixels [1973]"_s,
            u"odd Torviks\\74TOR001.JPG is far smaller than the others: 8 by 6 pixels [1974]"_s,
            u"odd Torviks\\76TOR004.JPG follows a gap: there is no number 3 [1976]"_s,
            u"odd Torviks\\77tor001.jpg differs from Torviks\\77TOR001.JPG in letter case alone, and only that one is found [1977]"_s,
            u"odd Torviks\\78TOR002.JPG has no caption [1978 > caption of 78TOR002.JPG]"_s,
            u"remark ads\\01brto00.jpg is missing, and the program says so in words of its own [2001 > Advertisement]"_s};
        QCOMPARE(seen.mid(0, expected.size()), expected);
        QCOMPARE(seen.value(seen.size() - 2),
                 u"3 missing, 2 empty, 16 damaged, 2 never-asked, 6 odd, 1 remark"_s);
    }
};

TORVIK_TEST(DamagedDiscTest)
#include "damaged_disc_test.moc"
