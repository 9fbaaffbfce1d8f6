#include "rtf/rtf_reader.h"
#include "sample/documents/document_plan.h"
#include "sample/documents/figures.h"
#include "support/test_class.h"

#include <QGuiApplication>
#include <QSet>
#include <QTemporaryDir>
#include <QTextDocument>

#include <algorithm>

using namespace torvik;
using namespace Qt::StringLiterals;
using sample::PlannedDocument;

namespace {

const std::vector<PlannedDocument>& Plan()
{
    static const std::vector<PlannedDocument> plan = sample::PlanDocuments();
    return plan;
}

const PlannedDocument* Find(const QString& file)
{
    const auto found = std::find_if(Plan().begin(), Plan().end(), [&file](const PlannedDocument& document) {
        return document.file.compare(file, Qt::CaseInsensitive) == 0;
    });
    return found == Plan().end() ? nullptr : &*found;
}

QString TextOf(const QString& file)
{
    const PlannedDocument* document = Find(file);
    return document ? rtf::PlainText(document->text) : QString();
}

/// How many groups are left open at the end; -1 as soon as more are closed than were opened.
int OpenGroups(const QByteArray& text)
{
    int depth = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == '\\')
            ++i;
        else if (text[i] == '{')
            ++depth;
        else if (text[i] == '}' && --depth < 0)
            return -1;
    }
    return depth;
}

} // namespace

class DocumentsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EveryYearHasItsFiveArticles();
    void EveryArticleOfTheLibraryIsThere_data();
    void EveryArticleOfTheLibraryIsThere();
    void WhatIsMeantToBeMissingIsMissing_data();
    void WhatIsMeantToBeMissingIsMissing();
    void NothingElseIsThere();
    void NamesDifferInMoreThanLetterCase();
    void EveryDocumentIsWellFormed();
    void EveryDocumentIsReadWhole();
    void NoTextIsLeftUnfinished();
    void TheFiguresOfAYearAgree();
    void ColoursAreShownAsSwatches();
    void CharactersOfTheCodePageArriveInEveryDialect();
    void AddressesBecomeLinks();
    void TheSameBytesComeOutAgain();
    void TheSetStaysSmall();
    void TheDocumentsAreWrittenIntoTheirFolder();
};

void DocumentsTest::EveryYearHasItsFiveArticles()
{
    for (int year = 1967; year <= 2001; ++year) {
        const QString twoDigits = QString::number(year).mid(2);
        const QString prefix = year < 2000 ? twoDigits : u'a' + twoDigits.mid(1);
        const QString options = year < 2000 ? u"opts.rtf"_s : u"OPTS.rtf"_s;
        for (const QString& ending : {u"desc.rtf"_s, u"stats.rtf"_s, u"colors.rtf"_s, options}) {
            const QString file = prefix + ending;
            QVERIFY2(Find(file), qPrintable(file));
            QCOMPARE(Find(file)->file, file);
        }
        const QString nostalgia = u"nostalgia"_s + twoDigits + u".rtf"_s;
        QVERIFY2(Find(nostalgia), qPrintable(nostalgia));
    }
}

void DocumentsTest::EveryArticleOfTheLibraryIsThere_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("holds");
    const auto row = [](const char* file, const char* holds) {
        QTest::newRow(file) << QString::fromLatin1(file) << QString::fromUtf8(holds);
    };
    row("Introduction.rtf", "Welcome to the Torvik Vollandry 2001");
    row("stamps.rtf", "The misprint");
    row("carstuff.rtf", "Torvik calendars");
    row("knives.rtf", "Collector knives");
    row("plates.rtf", "Collector plates");
    row("franklin.rtf", "scale 1:24");
    row("danbury.rtf", "Danbury series");
    row("monopoly.rtf", "The family game of the works");
    row("desperat.rtf", "Metal signs");
    row("ptdesc.rtf", "Early prototypes");
    row("sbcolors.rtf", "Harwell Cream");
    row("sbopts.rtf", "Options of the Classic Harwell");
    row("sbstats.rtf", "The Classic Harwell: data sheet");
    row("m1stats.rtf", "Torvik Kestra I: data sheet");
    row("m3stats.rtf", "Torvik Kestra III: data sheet");
    row("msstats.rtf", "Torvik Super Stallion: data sheet");
    row("books.rtf", "The Long Bonnet");
    row("catalogs.rtf", "67-C-1");
    row("magmi.rtf", "Torvik Illustrated");
    row("magmm.rtf", "Torvik Monthly");
    row("magmmff.rtf", "Muscle Torvik and Fast Fords");
    row("mag4.rtf", "Torvik & Fords");
    row("mag5.rtf", "5.0 Torvik");
    row("TorvikAdsList.rtf", "Advertising checklist");
    row("PRIntro.rtf", "BRENMOOR TO BUILD A SPORTING CAR");
    row("PRMarket.rtf", "WHO WILL BUY THE TORVIK VOLLANDRY?");
    row("PROptions.rtf", "A THOUSAND WAYS TO ORDER IT");
    row("stats.rtf", "All years in figures");
    row("glossary.rtf", "Homologation");
    row("idTorvik.rtf", "Seven questions");
    row("timeline.rtf", "April 1964");
    row("whatsnew.rtf", "What’s new in edition 2001.03");
    row("notice.rtf", "© 2001 Quillon Software");
    row("credits.rtf", "Program");
    row("contrib.rtf", "What we look for");
    row("idsellark.rtf", "The Sellark: identification guide");
    row("ENGINES.rtf", "family by family");
    row("sshelp.rtf", "Installing the screen saver");
    row("desc.rtf", "About the descriptions");
}

void DocumentsTest::EveryArticleOfTheLibraryIsThere()
{
    QFETCH(QString, file);
    QFETCH(QString, holds);
    QVERIFY(Find(file));
    const QString text = TextOf(file);
    QVERIFY2(text.contains(holds), qPrintable(text.left(200)));
}

void DocumentsTest::WhatIsMeantToBeMissingIsMissing_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file : {"mudesc.rtf", "mustats.rtf", "mucolors.rtf", "muopts.rtf", "nostalgiamu.rtf",
                             "tidesc.rtf", "tistats.rtf", "nostalgiati.rtf", "rvdesc.rtf", "rlstats.rtf",
                             "m1desc.rtf", "m3desc.rtf", "msdesc.rtf", "66desc.rtf", "a2desc.rtf"})
        QTest::newRow(file) << QString::fromLatin1(file);
}

void DocumentsTest::WhatIsMeantToBeMissingIsMissing()
{
    QFETCH(QString, file);
    QVERIFY(!Find(file));
}

void DocumentsTest::NothingElseIsThere()
{
    QCOMPARE(Plan().size(), std::size_t(35 * 5 + 39));
}

void DocumentsTest::NamesDifferInMoreThanLetterCase()
{
    QSet<QString> names;
    for (const PlannedDocument& document : Plan())
        names.insert(document.file.toLower());
    QCOMPARE(std::size_t(names.size()), Plan().size());
}

void DocumentsTest::EveryDocumentIsWellFormed()
{
    for (const PlannedDocument& document : Plan()) {
        QVERIFY2(document.text.startsWith("{\\rtf1"), qPrintable(document.file));
        QVERIFY2(OpenGroups(document.text) == 0, qPrintable(document.file));
        const bool plain = std::all_of(document.text.begin(), document.text.end(),
                                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
        QVERIFY2(plain, qPrintable(document.file));
    }
}

void DocumentsTest::EveryDocumentIsReadWhole()
{
    for (const PlannedDocument& document : Plan()) {
        QTextDocument text;
        const rtf::ReadResult result = rtf::ReadRichText(document.text, text);
        const bool whole = result.wasRtf && !result.wasDamaged && !result.wasCut && result.lostPictures == 0;
        QVERIFY2(whole, qPrintable(document.file));
        QVERIFY2(text.toPlainText().size() > 300, qPrintable(document.file));
        const bool isDescription = document.file.size() == 10 && document.file.endsWith(u"desc.rtf") &&
                                   document.file != u"ptdesc.rtf";
        if (isDescription)
            QVERIFY2(result.pictures == 1 && result.tables == 1, qPrintable(document.file));
        if (document.file.endsWith(u"colors.rtf") || document.file.endsWith(u"stats.rtf"))
            QVERIFY2(result.tables >= 1, qPrintable(document.file));
    }
}

void DocumentsTest::NoTextIsLeftUnfinished()
{
    for (const PlannedDocument& document : Plan()) {
        const QString text = rtf::PlainText(document.text);
        for (const char* leftOver : {"lorem", "ipsum", "todo", "fixme", "tbd", "xxx", "placeholder", "%1",
                                     "%2", "@table", "@tabs", "\\rtf", "\\par", "nan", " inf "}) {
            const QString word = QString::fromLatin1(leftOver);
            const bool found =
                word == u"nan" ? text.contains(u" nan ") : text.contains(word, Qt::CaseInsensitive);
            QVERIFY2(!found, qPrintable(document.file + u": " + word));
        }
        for (const QChar sign : {u'*', u'_', u'~', u'�'})
            QVERIFY2(!text.contains(sign), qPrintable(document.file + u": " + sign));
    }
}

void DocumentsTest::TheFiguresOfAYearAgree()
{
    for (const sample::ModelYear& year : sample::ModelYears()) {
        const QString prefix =
            year.year < 2000 ? QString::number(year.year - 1900) : u"a%1"_s.arg(year.year - 2000);
        const QString built = sample::Grouped(year.Built());
        const QString price = sample::Dollars(year.price);
        QVERIFY2(TextOf(prefix + u"desc.rtf"_s).contains(built), qPrintable(prefix));
        QVERIFY2(TextOf(prefix + u"desc.rtf"_s).contains(price), qPrintable(prefix));
        QVERIFY2(TextOf(prefix + u"stats.rtf"_s).contains(built), qPrintable(prefix));
        QVERIFY2(TextOf(prefix + u"stats.rtf"_s).contains(price), qPrintable(prefix));
        QVERIFY2(TextOf(prefix + u"opts.rtf"_s).contains(price), qPrintable(prefix));
        QVERIFY2(TextOf(u"stats.rtf"_s).contains(built), qPrintable(prefix));
    }
}

void DocumentsTest::ColoursAreShownAsSwatches()
{
    const PlannedDocument* colours = Find(u"72colors.rtf"_s);
    QVERIFY(colours);
    QVERIFY(TextOf(colours->file).contains(u"Ice Lilac"));
    QVERIFY(colours->text.contains("\\red185\\green168\\blue201;"));
    QVERIFY(colours->text.contains("\\clcbpat"));
}

void DocumentsTest::CharactersOfTheCodePageArriveInEveryDialect()
{
    // One document of each dialect, told by a word that only that one writes.
    QVERIFY(!Find(u"plates.rtf"_s)->text.contains("\\stylesheet"));
    QVERIFY(Find(u"danbury.rtf"_s)->text.contains("\\listoverridetable"));
    QVERIFY(Find(u"sbopts.rtf"_s)->text.contains("\\rsidtbl"));
    QVERIFY(Find(u"danbury.rtf"_s)->text.contains("\\ldblquote "));
    QVERIFY(Find(u"sbopts.rtf"_s)->text.contains("\\u8220\\'93"));
    QVERIFY(Find(u"plates.rtf"_s)->text.contains("\\'93"));
    for (const char* file : {"danbury.rtf", "sbopts.rtf", "plates.rtf"}) {
        const QString text = TextOf(QString::fromLatin1(file));
        QVERIFY2(text.contains(u'“') && text.contains(u'”'), file);
    }
}

void DocumentsTest::AddressesBecomeLinks()
{
    const PlannedDocument* news = Find(u"whatsnew.rtf"_s);
    QVERIFY(news);
    QVERIFY(news->text.contains("HYPERLINK \"https://www.torvik-vollandry.example/changes/\""));
}

void DocumentsTest::TheSameBytesComeOutAgain()
{
    const std::vector<PlannedDocument> again = sample::PlanDocuments();
    QCOMPARE(again.size(), Plan().size());
    for (std::size_t i = 0; i < again.size(); ++i) {
        QCOMPARE(again[i].file, Plan()[i].file);
        QVERIFY2(again[i].text == Plan()[i].text, qPrintable(again[i].file));
    }
}

void DocumentsTest::TheSetStaysSmall()
{
    qsizetype all = 0;
    for (const PlannedDocument& document : Plan()) {
        QVERIFY2(document.text.size() <= 64LL * 1024, qPrintable(document.file));
        all += document.text.size();
    }
    QVERIFY(all <= 8LL * 1024 * 1024);
}

void DocumentsTest::TheDocumentsAreWrittenIntoTheirFolder()
{
    const QTemporaryDir disc;
    sample::MakeDocuments(disc.path());
    QFile first(disc.filePath(u"RichText/67desc.rtf"_s));
    QVERIFY(first.open(QIODevice::ReadOnly));
    QCOMPARE(first.readAll(), Find(u"67desc.rtf"_s)->text);
}

TORVIK_TEST(DocumentsTest)
#include "documents_test.moc"
