#include "program/program_state.h"
#include "program/title_code.h"
#include "support/program.h"
#include "support/test_class.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// The code of the topic that the main window names.
class TitleCodeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->Disc.AddGroup(u"67"_s, 1);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void each_title_has_its_code_data()
    {
        QTest::addColumn<QString>("code");
        for (const auto& [title, code] : {std::pair{"Torvik Cookies ", "VC"},
                                          {"The Torvik Monopoly Game ", "US"},
                                          {"Torvik Postage Stamps ", "ZZ"},
                                          {"Torvik Calendars ", "TC"},
                                          {"Franklin Mint Collector Knives ", "TE"},
                                          {"Franklin Mint Collector Plates ", "TP"},
                                          {"Danbury Mint Die Cast Models ", "TD"},
                                          {"Franklin Mint Die Cast Models ", "TF"},
                                          {"Torvik Metal Signs ", "VM"},
                                          {"Early Torvik Prototypes ", "PT"},
                                          {"Torvik Kestra I ", "M1"},
                                          {"Torvik Kestra III ", "M3"},
                                          {"Torvik Super Stallion ", "MS"},
                                          {"The Classic Harwell ", "SB"},
                                          {"Lemuel Ostrand Art Print ", "GB"},
                                          {"National Torvik Museum Print ", "GH"},
                                          {"Arlen Mercer Art Print ", "GL"}})
            QTest::newRow(title) << QString::fromLatin1(code);
    }

    void each_title_has_its_code()
    {
        QFETCH(QString, code);
        Form1->panYear.SetCaption(QString::fromLatin1(QTest::currentDataTag()));
        state.YearCode = u"69"_s;
        TakeCodeOfTitle();
        QCOMPARE(state.YearCode, code);
    }

    void any_other_title_leaves_the_code_as_it_is()
    {
        for (const char* title : {"1969", "1967 ", "2000", "2001", "panYear", "The Tarrant Torvik ", "19TC ",
                                  "Torvik Cookies", "torvik cookies "}) {
            Form1->panYear.SetCaption(QString::fromLatin1(title));
            state.YearCode = u"xy"_s;
            TakeCodeOfTitle();
            QCOMPARE(state.YearCode, u"xy"_s);
        }
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(TitleCodeTest)
#include "title_code_test.moc"
