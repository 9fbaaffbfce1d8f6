#include "hard_drive/panel_place.h"
#include "support/program.h"
#include "windows/form1.h"

#include <QTest>

using namespace torvik;

/// Where the work panels stand.
class PanelPlaceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_panel_stands_in_the_middle_over_the_year_bar()
    {
        Program program;
        program.Disc.AddGroup(QStringLiteral("67"), 1);
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

QTEST_MAIN(PanelPlaceTest)
#include "panel_place_test.moc"
