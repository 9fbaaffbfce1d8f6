#include "program/keep_on_top.h"
#include "support/test_class.h"
#include "ui/forms/form.h"
#include "ui/forms/form_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form({u"Main"_s, u"Main"_s, 3000, 2000}) {}
};

FormHandle<MainForm> Main;

bool StaysOnTop()
{
    return Main->Window().windowFlags().testFlag(Qt::WindowStaysOnTopHint);
}

} // namespace

/// Keeping a form above the other windows.
class KeepOnTopTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { FormHandleBase::DiscardAll(); }

    void on_and_off()
    {
        QVERIFY(!StaysOnTop());
        SetFormTopmost(*Main, -1);
        QVERIFY(StaysOnTop());
        SetFormTopmost(*Main, 0);
        QVERIFY(!StaysOnTop());
    }

    void any_other_flag_leaves_the_list_as_it_is()
    {
        for (const int flag : {1, -2, 32767}) {
            SetFormTopmost(*Main, -1);
            SetFormTopmost(*Main, flag);
            QVERIFY(StaysOnTop());
            SetFormTopmost(*Main, 0);
            SetFormTopmost(*Main, flag);
            QVERIFY(!StaysOnTop());
        }
    }

    void place_size_and_visibility_stay()
    {
        Main->SetLeft(450);
        Main->SetTop(300);
        Main->Show();
        const double width = Main->Width();
        const double height = Main->Height();
        for (const int flag : {-1, 1, 0}) {
            SetFormTopmost(*Main, flag);
            QVERIFY(Main->Visible());
            QCOMPARE(Main->Left(), 450.0);
            QCOMPARE(Main->Top(), 300.0);
            QCOMPARE(Main->Width(), width);
            QCOMPARE(Main->Height(), height);
        }
    }
};

TORVIK_TEST(KeepOnTopTest)
#include "keep_on_top_test.moc"
