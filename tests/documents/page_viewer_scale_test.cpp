#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/form_window.h"
#include "ui/forms/screen.h"
#include "windows/main_window.h"
#include "windows/page_window.h"

#include <QScreen>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

void ScaleByTwo()
{
    qputenv("QT_SCALE_FACTOR", "2");
}

} // namespace

/// The page viewer on a screen whose points are two of its own pixels wide.
class PageViewerScaleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void zoomed_out_the_page_is_as_high_as_the_screen_and_in_its_middle_data()
    {
        QTest::addColumn<QString>("title");
        QTest::newRow("portrait") << u"1967"_s;
        QTest::newRow("landscape") << u"1987"_s;
    }

    void zoomed_out_the_page_is_as_high_as_the_screen_and_in_its_middle()
    {
        QFETCH(QString, title);
        Program program;
        program.disc.AddGroup(u"67"_s, 1);
        program.StartBrowsing();
        Screen.Pretend(std::nullopt); // the real one
        const QSize screen = QGuiApplication::primaryScreen()->size();
        QCOMPARE(QGuiApplication::primaryScreen()->devicePixelRatio(), 2.0);
        QCOMPARE(Screen.Height(), screen.height() * 15.0);

        Form1->panYear.SetCaption(title);
        program.disc.AddFile(u"ads/67brto00.jpg"_s, TestDisc::Jpeg(Qt::blue, {1240, 1610}));
        frmScroll->SetWidth(Screen.Width());
        frmScroll->SetHeight(Screen.Height());
        frmScroll->picChild.Load(u"G:\\ads\\67brto00.jpg"_s);
        frmScroll->Image1.Load(u"G:\\ads\\67brto00.jpg"_s);
        frmScroll->Show();
        program.Settle();
        program.Click(frmScroll->picChild);

        const QRect page = frmScroll->Image1.Widget().geometry();
        const bool landscape = title == u"1987"_s;
        QCOMPARE(page.height(), screen.height());
        QCOMPARE(page.width(), landscape ? screen.width() : qRound(screen.height() * 0.77));
        QVERIFY(qAbs(page.center().x() - screen.width() / 2) <= 1);
        const QImage painted = frmScroll->Image1.Widget().grab().toImage();
        QCOMPARE(painted.size(), page.size() * 2);
        QVERIFY(painted.pixelColor(painted.rect().center()).blue() > 200);
        frmScroll.Unload();
    }
};

TORVIK_TEST_AFTER(PageViewerScaleTest, ScaleByTwo)
#include "page_viewer_scale_test.moc"
