#include "sample/artwork/ad_page.h"
#include "sample/artwork/ad_plan.h"
#include "sample/documents/colour_cards.h"
#include "sample/documents/figures.h"
#include "sample/files/text_store.h"
#include "support/test_class.h"

#include <QGuiApplication>
#include <QRegularExpression>
#include <QSet>

using namespace torvik::sample;
using namespace Qt::StringLiterals;

class AdPlanTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void every_year_but_2001_has_one_advertisement()
    {
        QStringList expected;
        for (int year = 67; year <= 100; ++year)
            expected.append(u"ads/%1brto00.jpg"_s.arg(QString::number(year % 100).rightJustified(2, u'0')));
        QStringList files;
        for (const PlannedAd& ad : PlanAds())
            files.append(ad.File());
        QCOMPARE(files, expected);
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, AdCopyOf(2001));
    }

    void the_pages_that_the_viewer_lays_on_their_side_are_landscape_and_all_others_stand()
    {
        const QSet<int> lying = {1979, 1980, 1986, 1987, 1990, 1992, 1993, 1994, 1995, 1996};
        for (const PlannedAd& ad : PlanAds()) {
            const QSize size = ad.Size();
            QVERIFY(std::max(size.width(), size.height()) >= 1600);
            if (lying.contains(ad.year)) {
                QVERIFY2(size.width() > size.height(), qPrintable(ad.File()));
                QCOMPARE(ad.layout, AdLayout::Spread);
            } else {
                QCOMPARE(size.width(), qRound(size.height() * 0.77));
                QVERIFY(ad.layout != AdLayout::Spread);
            }
        }
    }

    void the_car_has_a_colour_of_its_years_card()
    {
        for (const PlannedAd& ad : PlanAds()) {
            QStringList names;
            for (const CardColour& colour : ColourCard(ad.year))
                names.append(colour.name);
            QVERIFY2(names.contains(ad.paint), qPrintable(ad.File() + u' ' + ad.paint));
        }
    }

    void every_headline_is_on_the_collectors_checklist_of_its_year()
    {
        const QString checklist = StoredText(u"advertisements"_s);
        for (const PlannedAd& ad : PlanAds()) {
            const QString headline = QString(AdCopyOf(ad.year).headline).replace(u'\'', QChar(0x2019));
            const QString row = u"| %1 | “%2” |"_s.arg(ad.year).arg(headline);
            QVERIFY2(checklist.contains(row), qPrintable(row));
        }
    }

    void the_words_are_different_every_year_and_carry_the_price_of_the_year()
    {
        QSet<QString> seen;
        for (const PlannedAd& ad : PlanAds()) {
            const AdCopy copy = AdCopyOf(ad.year);
            const QString text = copy.paragraphs.join(u'\n');
            QVERIFY2(copy.paragraphs.size() >= 3, qPrintable(ad.File()));
            QVERIFY2(text.split(u' ').size() >= 55, qPrintable(ad.File()));
            QVERIFY2(text.contains(Dollars(ModelYearOf(ad.year).price)), qPrintable(ad.File()));
            seen.insert(copy.headline);
            seen.insert(copy.lead);
            for (const QString& paragraph : copy.paragraphs)
                seen.insert(paragraph);
            QVERIFY(!copy.lead.isEmpty());
        }
        qsizetype all = 0;
        for (const PlannedAd& ad : PlanAds())
            all += 2 + AdCopyOf(ad.year).paragraphs.size();
        QCOMPARE(seen.size(), all);
    }

    void every_figure_has_been_put_in()
    {
        for (const PlannedAd& ad : PlanAds()) {
            const AdCopy copy = AdCopyOf(ad.year);
            const QString text = copy.headline + copy.lead + copy.paragraphs.join(u' ');
            QVERIFY2(!text.contains(u'{') && !text.contains(u'}'), qPrintable(text));
        }
        QVERIFY(AdCopyOf(1967).paragraphs.join(u' ').contains(u"a V8 of 318 horsepower"_s));
        QVERIFY(AdCopyOf(1979).paragraphs.join(u' ').contains(u"It is 1,205 kilograms in all."_s));
    }

    void a_page_is_drawn_in_its_size_on_its_paper_and_the_same_each_time()
    {
        // A quick one: a page on its side is half words.
        const PlannedAd& plan = PlanAds()[1987 - 1967];
        QCOMPARE(plan.year, 1987);
        const QImage page = PaintAd(plan);
        QCOMPARE(page.size(), QSize(1600, 1200));
        QCOMPARE(page.pixelColor(1597, 3), plan.paper);
        QCOMPARE(PaintAd(plan), page);
    }
};

TORVIK_TEST(AdPlanTest)
#include "ad_plan_test.moc"
