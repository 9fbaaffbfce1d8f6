#include "support/program.h"
#include "support/test_class.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// The saver's panel as it is designed.
class SaverPanelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 1);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void it_is_hidden_at_the_start() { QVERIFY(!Form1->pnlSSaver.Visible()); }

    void its_controls_bear_their_texts()
    {
        QCOMPARE(Form1->Label7.Caption(), u"The Torvik Vollandry"_s);
        QCOMPARE(Form1->Label8.Caption(), u"Install Screen Saver"_s);
        QCOMPARE(Form1->Label9.Caption(), u"Select the photo delay:"_s);
        QCOMPARE(Form1->Option1(0).Caption(), u"All Photos"_s);
        QCOMPARE(Form1->Option1(1).Caption(), u"Selected Photos"_s);
        QCOMPARE(Form1->panInterval.Caption(), u"1 Second"_s);
        QCOMPARE(Form1->SpinInterval.ToolTip(), u"Set Slide Show Delay"_s);
        QCOMPARE(Form1->SSCommand4.Caption(), u"Install"_s);
        QCOMPARE(Form1->SSCommand5.Caption(), u"Help"_s);
        QCOMPARE(Form1->SSCommand6.Caption(), u"Cancel"_s);
    }

    void all_photos_are_chosen_at_first_and_the_choices_exclude_each_other()
    {
        QVERIFY(Form1->Option1(0).Value());
        QVERIFY(!Form1->Option1(1).Value());
        Form1->Option1(1).SetValue(true);
        QVERIFY(!Form1->Option1(0).Value());
    }

    void every_control_lies_on_the_panel_and_has_its_name_and_a_spoken_one()
    {
        const QRect panel = Form1->pnlSSaver.Widget().rect();
        int seen = 0;
        for (const char* name : {"Image2", "Label7", "Label8", "Label9", "Option1(0)", "Option1(1)",
                                 "panInterval", "SpinInterval", "SpinInterval(Up)", "SpinInterval(Down)",
                                 "SSCommand4", "SSCommand5", "SSCommand6"}) {
            const auto* widget = Form1->pnlSSaver.Widget().findChild<QWidget*>(QString::fromLatin1(name));
            QVERIFY2(widget != nullptr, name);
            QVERIFY2(!widget->accessibleName().isEmpty(), name);
            const QPoint corner = widget->mapTo(&Form1->pnlSSaver.Widget(), QPoint());
            QVERIFY2(panel.contains(QRect(corner, widget->size())), name);
            ++seen;
        }
        QCOMPARE(seen, 13);
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(SaverPanelTest)
#include "saver_panel_test.moc"
