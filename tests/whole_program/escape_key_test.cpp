#include "support/program.h"
#include "support/test_class.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// What the Escape key answers while panels of several rooms lie over the photo.
class EscapeKeyTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 1);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void escape_answers_the_copy_panel_and_not_this_one_data()
    {
        QTest::addColumn<QString>("focus");
        for (const char* name : {"cmdYR(2)", "SSCommand7", "Check1(0)", "List1(0)"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void escape_answers_the_copy_panel_and_not_this_one()
    {
        QFETCH(QString, focus);
        Form1->pnlProgress.Show();
        Form1->mnuPrnt.Click.Fire();
        QVERIFY(Form1->pnlPrint.Visible());
        Control::OfWidget(Form1->Host().findChild<QWidget*>(focus))->SetFocus();
        program_->Press(Qt::Key_Escape);
        QVERIFY(Form1->pnlPrint.Visible());
        QVERIFY(!Form1->pnlProgress.Visible());
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(EscapeKeyTest)
#include "escape_key_test.moc"
