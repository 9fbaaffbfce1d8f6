#include "support/program.h"
#include "support/test_class.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// The controls of the work panel that shows the progress of a copy.
class CopyPanelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 1);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void every_control_lies_on_the_hidden_panel_under_its_name()
    {
        QVERIFY(!Form1->pnlProgress.Visible());
        for (const char* name : {"ProgressGuage", "ProgressGuage2", "Text1", "cmdCopy", "cmdCancel"}) {
            const QWidget* widget = Form1->pnlProgress.Widget().findChild<QWidget*>(
                QString::fromLatin1(name), Qt::FindDirectChildrenOnly);
            QVERIFY2(widget != nullptr, name);
            QVERIFY2(!widget->accessibleName().isEmpty(), name);
        }
    }

    void both_gauges_begin_at_0_and_say_their_percentage()
    {
        for (Panel* gauge : {&Form1->ProgressGuage, &Form1->ProgressGuage2}) {
            QCOMPARE(gauge->FloodPercent(), 0);
            QCOMPARE(gauge->Widget().accessibleName(), u"0%"_s);
            gauge->SetFloodPercent(37);
            QCOMPARE(gauge->Widget().accessibleName(), u"37%"_s);
        }
        QCOMPARE(Form1->ProgressGuage.ToolTip(), u"This file"_s);
        QCOMPARE(Form1->ProgressGuage2.ToolTip(), u"All files"_s);
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(CopyPanelTest)
#include "copy_panel_test.moc"
