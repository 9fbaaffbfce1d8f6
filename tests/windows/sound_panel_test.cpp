#include "support/program.h"
#include "support/test_class.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// Where things stand on the panel of sound effects.
class SoundPanelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { program_ = std::make_unique<Program>(); }
    void cleanup() { program_.reset(); }

    void the_buttons_stand_in_three_columns_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("last");
        QTest::addColumn<double>("left");
        QTest::newRow("left") << 0 << 12 << 360.0;
        QTest::newRow("middle") << 13 << 20 << 3240.0;
        QTest::newRow("right") << 21 << 28 << 5520.0;
    }
    void the_buttons_stand_in_three_columns()
    {
        QFETCH(const int, first);
        QFETCH(const int, last);
        QFETCH(const double, left);
        const SoundPanel& panel = *Form1;
        for (int index = first; index <= last; ++index) {
            const Button& button = Form1->SSCommand2(index);
            QCOMPARE(button.Left(), left);
            QCOMPARE(button.Top(), 600.0 + 360 * (index - first));
            QVERIFY(button.Top() + button.Height() <= 600.0 + 360 * (index - first + 1));
            const Label& label = Form1->lblSound(index);
            QCOMPARE(label.Top(), button.Top());
            QVERIFY(label.Left() >= button.Left() + button.Width());
            QVERIFY(label.Left() + label.Width() <= panel.pnlSound.Width() * 15);
        }
    }

    void nothing_covers_anything_else_and_no_label_is_cut()
    {
        QList<const Control*> all{&Form1->Label10, &Form1->Picture5, &Form1->SSCommand3, &Form1->SSCommand1};
        Form1->SSCommand2.Each([&](int, Button& button) { all.append(&button); });
        Form1->lblSound.Each([&](int, Label& label) {
            all.append(&label);
            QVERIFY2(label.Widget().fontMetrics().horizontalAdvance(label.Caption()) <=
                         label.Widget().width(),
                     qPrintable(label.Caption()));
        });
        const QRect panel = Form1->pnlSound.Widget().rect();
        for (const Control* one : all) {
            QVERIFY2(panel.contains(one->Widget().geometry()), qPrintable(one->Name()));
            for (const Control* other : all)
                QVERIFY2(one == other || !one->Widget().geometry().intersects(other->Widget().geometry()),
                         qPrintable(one->Name() + u" and "_s + other->Name()));
        }
    }

    void it_bears_its_title()
    {
        QCOMPARE(Form1->Label10.Caption(), u"Automobile Sound Effects"_s);
        QVERIFY(!Form1->Picture5.Picture().IsEmpty());
        QVERIFY(!Form1->pnlSound.Visible());
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(SoundPanelTest)
#include "sound_panel_test.moc"
