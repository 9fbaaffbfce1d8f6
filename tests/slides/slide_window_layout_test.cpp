#include "program/program_state.h"
#include "support/slide_visit.h"
#include "support/test_class.h"
#include "windows/slide_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// Where the controls of the slide show stand once it is open.
class SlideWindowLayoutTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 2);
        program_->StartBrowsing();
        state.SlideShowOpen = true;
    }
    void cleanup() { program_.reset(); }

    void the_layout_holds_in_every_size_of_the_main_window_data()
    {
        QTest::addColumn<QSizeF>("twips");
        QTest::newRow("on 800 by 600") << QSizeF(12000, 9000);
        QTest::newRow("on larger screens") << QSizeF(11994, 9100);
    }

    void the_layout_holds_in_every_size_of_the_main_window()
    {
        QFETCH(QSizeF, twips);
        Form1->SetWidth(twips.width());
        Form1->SetHeight(twips.height());
        QVERIFY(InSlideShow(*program_, [&] {
            const QRect client(QPoint(), frmSlide->Window().Client().size());
            QList<const Control*> controls;
            for (const Control* control : std::initializer_list<const Control*>{
                     &frmSlide->Image1, &frmSlide->panYear, &frmSlide->SSCommand1, &frmSlide->SSCommand2,
                     &frmSlide->mmSlide, &frmSlide->SpinInterval, &frmSlide->panInterval,
                     &frmSlide->PnlCoStar, &frmSlide->StatusDate, &frmSlide->StatusDay, &frmSlide->StatusTime,
                     &frmSlide->cmdExit})
                controls += control;
            for (const Control* one : controls) {
                QVERIFY2(client.contains(one->Widget().geometry()), qPrintable(one->Name()));
                for (const Control* other : controls)
                    QVERIFY2(one == other || !one->Widget().geometry().intersects(other->Widget().geometry()),
                             qPrintable(one->Name() + u" and "_s + other->Name()));
            }
        }));
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(SlideWindowLayoutTest)
#include "slide_window_layout_test.moc"
