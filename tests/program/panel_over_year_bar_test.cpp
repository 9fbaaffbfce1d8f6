#include "program/panel_over_year_bar.h"
#include "support/program.h"
#include "support/test_class.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// Where the work panels stand.
class PanelOverYearBarTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_panel_stands_in_the_middle_over_the_year_bar()
    {
        Program program;
        program.disc.AddGroup(u"67"_s, 1);
        program.StartBrowsing();
        // The bar ends at 11685 twips, that is 779 pixels.
        Form1->pnlSSaver.SetWidth(400);
        CentreOverYearBar(Form1->pnlSSaver);
        QCOMPARE(Form1->pnlSSaver.Left(), 189.5);
        Form1->pnlSSaver.SetWidth(779);
        CentreOverYearBar(Form1->pnlSSaver);
        QCOMPARE(Form1->pnlSSaver.Left(), 0.0);
    }
};

TORVIK_TEST(PanelOverYearBarTest)
#include "panel_over_year_bar_test.moc"
