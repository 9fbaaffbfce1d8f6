#include "check/asked_files.h"
#include "check/check_disc.h"
#include "check/oddities.h"
#include "check/report.h"
#include "platform/files/files.h"
#include "support/file_bytes.h"
#include "support/image_drive.h"
#include "support/image_maker.h"
#include "support/test_class.h"
#include "support/test_disc.h"
#include "support/test_movie.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

const QByteArray article = "{\\rtf1\\ansi A few words.}";

/// A small whole disc: all that the screens need, two photos for each year and topic.
class WholeDisc {
public:
    WholeDisc()
    {
        QStringList photos;
        const QByteArray picture = TestDisc::Jpeg(Qt::darkCyan, {64, 48});
        QStringList codes{u"A0"_s, u"A1"_s, u"SB"_s, u"PT"_s, u"TD"_s, u"TF"_s,
                          u"VM"_s, u"ZZ"_s, u"M1"_s, u"M3"_s, u"MS"_s};
        for (int year = 67; year < 100; ++year)
            codes.append(QString::number(year));
        for (const QString& code : codes) {
            for (const char* number : {"001", "002"})
                photos.append(code + u"TOR"_s + QLatin1String(number) + u".JPG"_s);
        }
        const QByteArray movie = TestMovie::Avi();
        const QByteArray sound = TestMovie::Wav();
        for (const QString& photo : photos) {
            disc.AddFile(u"Torviks/"_s + photo, picture);
            disc.AddFile(u"RichText/"_s + photo.left(8).toLower() + u".rtf"_s, article);
        }
        const QHash<QString, AskedFile> asked = AskedFiles(photos);
        for (auto file = asked.cbegin(); file != asked.cend(); ++file) {
            // Under the folded path: spellings of folders differ from table to table, and the host tells them
            // apart.
            const QString path = QString(file.key()).replace(u'\\', u'/');
            if (file->most != Need::Full)
                continue;
            const QString ending = path.right(4);
            disc.AddFile(path, ending == u".rtf"_s   ? article
                               : ending == u".avi"_s ? movie
                               : ending == u".wav"_s ? sound
                                                     : picture);
        }
        SetDriveOptions({{u'E', disc.Folder()}});
    }
    ~WholeDisc() { SetDriveOptions({}); }
    WholeDisc(const WholeDisc&) = delete;
    WholeDisc& operator=(const WholeDisc&) = delete;

    TestDisc disc;
};

CheckResult Check()
{
    return CheckDisc(u'E', [](int, int) {});
}

/// The findings but for remarks, as "kind file: what".
QStringList Said(const CheckResult& result)
{
    QStringList said;
    for (const Finding& finding : result.findings) {
        if (finding.kind != FindingKind::Remark)
            said.append(KindWord(finding.kind) + u' ' + finding.file + u": "_s + finding.what);
    }
    return said;
}

/// The built sample disc where there is one, else the small whole one.
QString FolderOfSample(const WholeDisc& whole)
{
    const QString built = QCoreApplication::applicationDirPath() + u"/../disc"_s;
    return QDir(built + u"/Torviks"_s).exists() ? built : whole.disc.Folder();
}

} // namespace

class CheckDiscTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_whole_disc_brings_remarks_alone()
    {
        const WholeDisc whole;
        const CheckResult result = Check();
        QCOMPARE(Said(result), QStringList());
        QVERIFY(result.IsWhole());
        QCOMPARE(result.CountOf(FindingKind::Remark), 1);
        QVERIFY(result.fileCount > 500);
    }

    void each_file_that_is_taken_away_is_named_with_its_screens()
    {
        const WholeDisc whole;
        SetDriveOptions({{u'E', FolderOfSample(whole)}});
        const QList<ListedFile> files = AllFiles(u"E:\\"_s);
        const std::vector<Examination> examined(static_cast<std::size_t>(files.size()));
        const qsizetype before = FindingsOf(files, examined).size();
        const QHash<QString, AskedFile> asked = AskedFiles(NamesOfPhotos(files));
        int named = 0;
        for (qsizetype gone = 0; gone < files.size(); ++gone) {
            QList<ListedFile> left = files;
            left.removeAt(gone);
            const AskedFile wanted = asked.value(FoldedPath(files[gone].path));
            const bool isPhoto = !PhotoIn(files[gone].path).isEmpty();
            if (wanted.most == Need::Known && !isPhoto)
                continue;
            if (isPhoto) { // its caption is left over
                const QList<Finding> findings =
                    FindingsOf(left, std::vector<Examination>(static_cast<std::size_t>(left.size())));
                QVERIFY2(findings.size() > before, qPrintable(files[gone].path));
                ++named;
                continue;
            }
            const QList<Finding> missing = MissingFiles(left, asked);
            const auto isAboutIt = [&](const Finding& finding) {
                return FoldedPath(finding.file) == FoldedPath(files[gone].path) &&
                       finding.screens == wanted.screens && !finding.screens.isEmpty();
            };
            QVERIFY2(std::count_if(missing.begin(), missing.end(), isAboutIt) == 1,
                     qPrintable(files[gone].path));
            ++named;
        }
        QVERIFY(named > 500);
    }

    void a_year_without_any_photo_is_missing()
    {
        const WholeDisc whole;
        QDir photos(whole.disc.PathOf(u"Torviks"_s));
        QVERIFY(photos.remove(u"72TOR001.JPG"_s) && photos.remove(u"72TOR002.JPG"_s));
        const CheckResult result = Check();
        QCOMPARE(result.findings.first().what, u"has no photo for this screen"_s);
        QCOMPARE(result.findings.first().screens, QStringList{u"1972"_s});
    }

    void damaged_files_are_named_by_what_is_wrong_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("said");
        const QByteArray picture = TestDisc::Jpeg(Qt::red, {640, 480});
        const QByteArray movie = TestMovie::Avi();
        const QByteArray sound = TestMovie::Wav();
        QByteArray holed = picture;
        holed.replace(holed.size() / 2, 40, QByteArray(40, '\xFF'));
        QByteArray brokenIndex = movie;
        const qsizetype index = movie.lastIndexOf("idx1");
        brokenIndex.replace(index + 16, 4, "\xFF\xFF\xFF\x7F");
        QByteArray noIndex = movie;
        noIndex.replace(index, 4, "JUNK");
        const auto add = [](const char* name, const char* file, const QByteArray& content, const char* said) {
            QTest::newRow(name) << QString::fromLatin1(file) << content << QString::fromLatin1(said);
        };
        add("cut photo", "Torviks/72TOR001.JPG", picture.chopped(100), "damaged: ends early");
        add("holed photo", "Torviks/72TOR001.JPG", holed, "damaged: has damaged bytes inside");
        add("no photo", "Torviks/72TOR001.JPG", "no photo", "damaged: is no picture");
        add("empty photo", "Torviks/72TOR001.JPG", {}, "empty: has no content");
        add("article without text", "richtext/72desc.rtf", "{\\rtf1 }", "damaged: has no readable text");
        add("no rich text", "richtext/72desc.rtf", "plain words", "damaged: is no rich text");
        add("cut article", "richtext/72desc.rtf", "{\\rtf1 Words {\\b bold", "damaged: ends early");
        add("lost picture", "richtext/72desc.rtf", "{\\rtf1 Words {\\pict\\jpegblip ffd8}}",
            "damaged: has lost a picture");
        add("no movie", "movies/torvik69.avi", "no movie", "damaged: has no readable picture");
        add("cut movie", "movies/torvik69.avi", movie.left(movie.size() / 2), "damaged: ends early");
        add("broken index", "movies/torvik69.avi", brokenIndex, "damaged: has a broken index");
        add("no index", "movies/torvik69.avi", noIndex,
            "damaged: has no index, so places in it are hard to find");
        add("no sound", "wav/taxi.wav", sound.left(44), "damaged: has no sound");
        add("cut sound", "wav/taxi.wav", sound.left(sound.size() / 2), "damaged: ends early");
    }

    void damaged_files_are_named_by_what_is_wrong()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, content);
        QFETCH(QString, said);
        const ImageDrive drive;
        QVERIFY(QDir(drive.PathOf(u"."_s)).mkpath(file.section(u'/', 0, 0)));
        QVERIFY(drive.Write(file, content));
        drive.Stand(u"."_s);
        const QStringList all = Said(Check());
        const qsizetype colon = said.indexOf(u": "_s);
        const QString expected =
            said.left(colon) + u' ' + QString(file).replace(u'/', u'\\') + said.mid(colon);
        QVERIFY2(all.contains(expected),
                 qPrintable(all.filter(QString(file).replace(u'/', u'\\')).join(u'\n')));
    }

    void a_file_that_an_image_does_not_hold_is_unreadable()
    {
        ImageMaker maker;
        maker.AddRecord({"67TOR001.JPG;1", 0x00FFFFFF, 1000, 0, {}, 0}, maker.AddFolder("TORVIKS"));
        const ImageDrive drive(maker.Iso());
        QVERIFY(Said(Check()).contains(
            u"unreadable TORVIKS\\67TOR001.JPG: cannot be read to its end: Device I/O error"_s));
    }

    void odd_things_are_told()
    {
        WholeDisc whole;
        const QByteArray picture = TestDisc::Jpeg(Qt::darkCyan, {64, 48});
        whole.disc.AddFile(u"Torviks/67TOR005.JPG"_s, TestDisc::Jpeg(Qt::darkCyan, {640, 480}));
        whole.disc.AddFile(u"Torviks/68tor001.jpg"_s, picture);
        whole.disc.AddFile(u"RichText/69tor009.rtf"_s, article);
        whole.disc.AddFile(u"RichText/other.rtf"_s, article);
        whole.disc.AddFile(u"setup.exe"_s, "program");
        QCOMPARE(
            Said(Check()),
            (QStringList{
                u"never-asked RichText\\other.rtf: is not asked for by any screen"_s,
                u"never-asked setup.exe: is not asked for by any screen"_s,
                u"odd RichText\\69tor009.rtf: is the caption of a photo that is not there"_s,
                u"odd Torviks\\67TOR005.JPG: has no caption"_s,
                u"odd Torviks\\67TOR005.JPG: follows a gap: there are no numbers 3 to 4"_s,
                u"odd Torviks\\67TOR005.JPG: is far larger than the others: 640 by 480 pixels"_s,
                u"odd Torviks\\68tor001.jpg: differs from Torviks\\68TOR001.JPG in letter case alone, and only that one is found"_s}));
    }

    void the_report_for_programs_holds_what_the_one_for_people_says()
    {
        WholeDisc whole;
        whole.disc.Remove(u"wav/taxi.wav"_s);
        const CheckResult result = Check();
        const QString text = ReportText(result, false);
        QVERIFY(text.startsWith(u"missing  wav\\taxi.wav      is missing  [Sound Effects > Taxi Horns]\n"_s));
        QVERIFY(text.endsWith(u"1 missing, 1 remark\n"_s));
        QVERIFY(!text.contains(u'\x1b'));
        QVERIFY(ReportText(result, true).contains(u"\x1b[31mmissing"_s));
        const QJsonObject report = QJsonDocument::fromJson(ReportJson(result)).object();
        QCOMPARE(report[u"version"_s].toInt(), 1);
        QCOMPARE(report[u"whole"_s].toBool(), false);
        QCOMPARE(report[u"files"_s].toInt(), result.fileCount);
        QCOMPARE(report[u"counts"_s][u"missing"_s].toInt(), 1);
        const QJsonObject first = report[u"findings"_s].toArray().first().toObject();
        QCOMPARE(first[u"kind"_s].toString(), u"missing"_s);
        QCOMPARE(first[u"file"_s].toString(), u"wav\\taxi.wav"_s);
        QCOMPARE(first[u"screens"_s].toArray().first().toString(), u"Sound Effects > Taxi Horns"_s);
    }

    void the_bar_grows_to_its_end()
    {
        const WholeDisc whole;
        QList<int> shown;
        int all = 0;
        CheckDisc(u'E', [&](int done, int count) {
            shown.append(done);
            all = count;
        });
        QVERIFY(std::is_sorted(shown.begin(), shown.end()));
        QCOMPARE(shown.last(), all);
        QCOMPARE(ProgressLine(1, 2), u"\r["_s + QString(20, u'=') + QString(20, u' ') + u"] 1 of 2 files"_s);
    }
};

TORVIK_TEST(CheckDiscTest)
#include "check_disc_test.moc"
