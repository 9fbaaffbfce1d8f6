#include "support/program.h"
#include "support/test_class.h"
#include "windows/main_window.h"

#include <QLabel>

using namespace Qt::StringLiterals;
using namespace torvik;

/// The controls of the booklet panel.
class BookletPanelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 1);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void every_control_has_its_caption_data()
    {
        QTest::addColumn<QString>("caption");
        const auto row = [](const char* name, const char* caption) {
            QTest::newRow(name) << QString::fromLatin1(caption);
        };
        row("Label3", "Print Torvik Booklet");
        row("Label5", "Choose print range:");
        row("Label4", "From:");
        row("Label6", "To:");
        row("Check1(0)", " Cover");
        row("Check1(1)", " Introduction");
        row("Check1(2)", " Clip art");
        row("Check1(3)", " Description");
        row("Check1(4)", " Details");
        row("Check1(5)", " Engines");
        row("Check1(6)", " Options");
        row("Check1(7)", " Colors");
        row("Frame2", " By year ");
        row("cmdPrint", "Print");
        row("cmdOK", "Cancel");
        row("SSCommand7", "Clear");
    }
    void every_control_has_its_caption()
    {
        QFETCH(QString, caption);
        const QWidget* widget = Find(QString::fromLatin1(QTest::currentDataTag()));
        QVERIFY(widget != nullptr);
        QCOMPARE(widget->accessibleName(), caption);
        QVERIFY(Form1->pnlPrint.Widget().isAncestorOf(widget));
    }

    void the_boxes_by_year_stand_in_their_frame()
    {
        QCOMPARE(Form1->Check1.Count(), 8);
        QVERIFY(!Form1->Frame2.Widget().isAncestorOf(&Form1->Check1(0).Widget()));
        QVERIFY(!Form1->Frame2.Widget().isAncestorOf(&Form1->Check1(1).Widget()));
        for (int index = 2; index <= 7; ++index)
            QVERIFY(Form1->Frame2.Widget().isAncestorOf(&Form1->Check1(index).Widget()));
    }

    void both_lists_hold_the_years_in_order()
    {
        for (const int index : {0, 1}) {
            ListBox& list = Form1->List1(index);
            QCOMPARE(list.ListCount(), 35);
            for (int entry = 0; entry < 35; ++entry)
                QCOMPARE(list.List(entry), QString::number(1967 + entry));
        }
    }

    void the_lists_are_spoken_of_as_from_and_to()
    {
        QCOMPARE(Form1->List1(0).Widget().accessibleName(), u"From:"_s);
        QCOMPARE(Form1->List1(1).Widget().accessibleName(), u"To:"_s);
    }

    void the_panel_and_what_only_serves_the_printing_are_hidden()
    {
        QVERIFY(!Form1->pnlPrint.Visible());
        QVERIFY(!Form1->Picture3.Visible());
        QVERIFY(!Form1->rtbText.Visible());
        QCOMPARE(Form1->Picture3.Name(), u"Picture3"_s);
        QCOMPARE(Form1->rtbText.Name(), u"rtbText"_s);
    }

    void the_decoration_shows_a_picture()
    {
        QVERIFY(!Form1->Image3.Picture().IsEmpty());
        QVERIFY(Form1->Image3.Visible());
    }

    void no_control_lies_on_another_or_outside_the_panel()
    {
        Form1->pnlPrint.Show();
        program_->Settle();
        QWidget& panel = Form1->pnlPrint.Widget();
        const QList<QWidget*> parts = panel.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        QList<QWidget*> seen;
        for (QWidget* part : parts) {
            if (!part->isVisible())
                continue;
            QVERIFY2(panel.rect().contains(part->geometry()), qPrintable(part->objectName()));
            for (const QWidget* other : seen)
                QVERIFY2(!part->geometry().intersects(other->geometry()), qPrintable(part->objectName()));
            seen.append(part);
        }
        QCOMPARE(seen.size(), 13); // all but the two that are hidden and the boxes by year
    }

    void no_caption_is_cut_off()
    {
        Form1->pnlPrint.Show();
        Form1->cmdPrint.SetCaption(u"Print Again"_s);
        program_->Settle();
        for (int index = 0; index <= 7; ++index) {
            const QWidget& box = Form1->Check1(index).Widget();
            QVERIFY(box.sizeHint().width() <= box.width());
        }
        for (const Label* label : {&Form1->Label3, &Form1->Label4, &Form1->Label5, &Form1->Label6}) {
            const QFontMetrics metrics(label->Widget().font());
            QVERIFY(metrics.horizontalAdvance(label->Caption()) <= label->Widget().width());
            QVERIFY(metrics.height() <= label->Widget().height());
        }
    }

private:
    static QWidget* Find(const QString& name) { return Form1->pnlPrint.Widget().findChild<QWidget*>(name); }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(BookletPanelTest)
#include "booklet_panel_test.moc"
