#include "support/program.h"
#include "windows/main_window.h"

#include <QTest>

using namespace torvik;

/// The saver's panel as it is designed.
class SaverPanelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->Disc.AddGroup(QStringLiteral("67"), 1);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void it_is_hidden_at_the_start() { QVERIFY(!Form1->pnlSSaver.Visible()); }

    void its_controls_bear_their_texts()
    {
        QCOMPARE(Form1->Label7.Caption(), QStringLiteral("The Torvik Vollandry"));
        QCOMPARE(Form1->Label8.Caption(), QStringLiteral("Install Screen Saver"));
        QCOMPARE(Form1->Label9.Caption(), QStringLiteral("Select the photo delay:"));
        QCOMPARE(Form1->Option1(0).Caption(), QStringLiteral("All Photos"));
        QCOMPARE(Form1->Option1(1).Caption(), QStringLiteral("Selected Photos"));
        QCOMPARE(Form1->panInterval.Caption(), QStringLiteral("1 Second"));
        QCOMPARE(Form1->SpinInterval.ToolTip(), QStringLiteral("Set Slide Show Delay"));
        QCOMPARE(Form1->SSCommand4.Caption(), QStringLiteral("Install"));
        QCOMPARE(Form1->SSCommand5.Caption(), QStringLiteral("Help"));
        QCOMPARE(Form1->SSCommand6.Caption(), QStringLiteral("Cancel"));
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

QTEST_MAIN(SaverPanelTest)
#include "saver_panel_test.moc"
