#include "check/asked_files.h"
#include "check/check_disc.h"
#include "check/oddities.h"
#include "check/whole_disc.h"
#include "platform/files/files.h"
#include "support/discs/image_drive.h"
#include "support/discs/image_maker.h"
#include "support/discs/test_disc.h"
#include "support/discs/test_movie.h"
#include "support/test_class.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

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

bool IsMissed(const QString& path, const QStringList& screens, const QList<Finding>& findings)
{
    return std::count_if(findings.begin(), findings.end(), [&](const Finding& finding) {
               return FoldedPath(finding.file) == path && finding.screens == screens;
           }) == 1;
}

/// The files of a disc in groups: photos and captions of one year or topic are in one.
QHash<QString, QList<ListedFile>> GroupsOf(const QList<ListedFile>& files)
{
    QHash<QString, QList<ListedFile>> groups;
    for (const ListedFile& file : files)
        groups[FoldedPath(file.path).section(u'\\', -1).left(2)].append(file);
    return groups;
}

/// Whether a photo or caption is missed in its group: one of them without the other, or a gap in the numbers,
/// is told under the year or topic.
bool IsMissedInGroup(const QString& path, QList<ListedFile> group, QHash<QString, AskedFile> asked)
{
    group.removeIf([&path](const ListedFile& file) { return FoldedPath(file.path) == path; });
    const QString stem = path.section(u'\\', -1).section(u'.', 0, 0);
    if (!PhotoIn(path).isEmpty()) { // a photo that is not there asks for nothing
        asked.remove(path);
        asked.remove(FoldedPath(u"richtext\\%1.rtf"_s.arg(stem)));
    }
    const std::vector<Examination> examined(static_cast<std::size_t>(group.size()));
    const QList<Finding> odd = Oddities(group, examined, asked);
    return std::any_of(odd.begin(), odd.end(), [&](const Finding& finding) {
        return finding.kind == FindingKind::Odd && finding.screens.value(0).startsWith(ScreenOfPhoto(stem));
    });
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
        const QHash<QString, AskedFile> asked = AskedFiles(NamesOfPhotos(files));
        const QHash<QString, QList<ListedFile>> groups = GroupsOf(files);
        QStringList withoutScreen;
        for (qsizetype gone = 0; gone < files.size(); ++gone) {
            const QString path = FoldedPath(files[gone].path);
            const AskedFile wanted = asked.value(path);
            const QString name = path.section(u'\\', -1);
            if (wanted.screens.isEmpty()) {
                withoutScreen.append(path);
            } else if (wanted.most == Need::Optional) {
                QVERIFY2(IsMissedInGroup(path, groups[name.left(2)], asked), qPrintable(path));
            } else {
                QList<ListedFile> left = files;
                left.removeAt(gone);
                QVERIFY2(IsMissed(path, wanted.screens, MissingFiles(left, asked)), qPrintable(path));
            }
        }
        QVERIFY(files.size() > 400);
        // What grey buttons and entries that no menu has would open.
        for (const QString& path : std::as_const(withoutScreen))
            QVERIFY2(asked.contains(path), qPrintable(path));
        QVERIFY2(20 * withoutScreen.size() < files.size(), qPrintable(withoutScreen.join(u' ')));
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
    }
};

TORVIK_TEST(CheckDiscTest)
#include "check_disc_test.moc"
