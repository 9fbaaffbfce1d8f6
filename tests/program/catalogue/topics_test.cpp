#include "browser/select_year.h"
#include "program/catalogue/topics.h"
#include "program/program_state.h"
#include "support/program.h"
#include "support/test_class.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// Titles, codes and what they do to the buttons.
class TopicsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        program_ = std::make_unique<Program>();
        for (const char* prefix :
             {"67", "99", "A0", "A1", "PT", "SB", "M1", "M3", "MS", "ZZ", "VM", "TD", "TE", "TF", "VC", "US"})
            program_->disc.AddGroup(QString::fromLatin1(prefix), 2);
        program_->StartBrowsing();
    }
    void cleanupTestCase() { program_.reset(); }

    void a_title_sets_its_code_and_its_buttons_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("statsCaption");
        QTest::addColumn<bool>("desc");
        QTest::addColumn<bool>("stats");
        QTest::addColumn<bool>("rest");
        const auto row = [](const char* title, const char* code, const char* caption, bool desc, bool stats,
                            bool rest) {
            QTest::newRow(title) << QString::fromLatin1(code) << QString::fromLatin1(caption) << desc << stats
                                 << rest;
        };
        const char* const kept = "Kept"; // what the test puts there before
        row("1967", "67", kept, true, true, true);
        row("1999", "99", kept, true, true, true);
        row("2000", "A0", kept, true, true, true);
        row("2001", "A1", kept, true, true, true);
        row("1967 ", "67", kept, true, true, true);
        row("Early Torvik Prototypes ", "PT", "Details", false, true, false);
        row("Torvik Kestra I ", "M1", "Details", false, true, false);
        row("Torvik Kestra III ", "M3", "Details", true, true, false);
        row("Torvik Super Stallion ", "MS", "Details", true, true, false);
        row("Torvik Postage Stamps ", "ZZ", "Details", true, false, false);
        row("Torvik Metal Signs ", "VM", kept, true, true, false);
        row("Danbury Mint Die Cast Models ", "TD", "Details", true, true, false);
        row("Franklin Mint Collector Knives ", "TE", kept, true, false, false);
        row("Franklin Mint Die Cast Models ", "TF", kept, true, true, false);
        row("Torvik Cookies ", "VC", kept, false, false, false);
        row("The Torvik Monopoly Game ", "US", kept, true, false, false);
    }

    void a_title_sets_its_code_and_its_buttons()
    {
        QFETCH(QString, code);
        QFETCH(QString, statsCaption);
        QFETCH(bool, desc);
        QFETCH(bool, stats);
        QFETCH(bool, rest);
        Select(QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(state.YearCode, code);
        QCOMPARE(Form1->cmdStats.Caption(), statsCaption);
        QCOMPARE(Form1->cmdDesc.Enabled(), desc);
        QCOMPARE(Form1->cmdStats.Enabled(), stats);
        for (const Button* button :
             {&Form1->cmdOptions, &Form1->cmdColors, &Form1->cmdScript, &Form1->cmdEmblem, &Form1->cmdAd,
              &Form1->cmdNostalgia, &Form1->cmdClipArt})
            QVERIFY2(button->Enabled() == rest, qPrintable(button->Name()));
        QCOMPARE(state.CurrentPhotoFile, u"G:\\Torviks\\"_s + code + u"A.JPG"_s);
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    void the_classic_harwell_keeps_some_buttons_of_a_year()
    {
        Select(u"The Classic Harwell "_s);
        QCOMPARE(state.YearCode, u"SB"_s);
        QCOMPARE(Form1->cmdStats.Caption(), u"Details"_s);
        for (const Button* button :
             {&Form1->cmdDesc, &Form1->cmdStats, &Form1->cmdClipArt, &Form1->cmdNostalgia})
            QVERIFY2(!button->Enabled(), qPrintable(button->Name()));
        for (const Button* button :
             {&Form1->cmdOptions, &Form1->cmdColors, &Form1->cmdScript, &Form1->cmdEmblem, &Form1->cmdAd})
            QVERIFY2(button->Enabled(), qPrintable(button->Name()));
    }

    void a_title_outside_the_catalogue_has_no_photos()
    {
        Select(u"Lemuel Ostrand Art Print "_s);
        QCOMPARE(state.YearCode, u"mu"_s);
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY(program_->messages.Last().text.startsWith(u"Error number: ER023"_s));
        QVERIFY(!Form1->Image4.Visible());
        QVERIFY(Form1->cmdDesc.Enabled());
        QVERIFY(Form1->cmdAd.Enabled());
    }

    void a_title_counts_only_with_its_trailing_blank()
    {
        for (const char* title : {"Torvik Cookies", "torvik cookies "}) {
            Select(QString::fromLatin1(title));
            QCOMPARE(state.YearCode, u"rv"_s);
            QVERIFY2(Form1->cmdAd.Enabled(), "the buttons are those of a year");
            QCOMPARE(program_->messages.Count(), 1);
        }
    }

    void each_topic_has_a_title_and_a_code_of_its_own()
    {
        for (const Topic& topic : Topics()) {
            QCOMPARE(TopicOf(QString::fromLatin1(topic.title)), &topic);
            QCOMPARE(TopicOfCode(QString::fromLatin1(topic.code)), &topic);
            QVERIFY2(QString::fromLatin1(topic.title).endsWith(u' '), topic.title);
        }
    }

private:
    void Select(const QString& title)
    {
        program_->messages.Clear();
        Form1->cmdStats.SetCaption(u"Kept"_s);
        Form1->cmdYR(1).SetEnabled(true);
        Form1->panYear.SetCaption(title);
        SelectYear();
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(TopicsTest)
#include "topics_test.moc"
