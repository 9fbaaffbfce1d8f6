#include "support/test_class.h"
#include "ui/look/look.h"
#include "ui/look/look_style.h"
#include "ui/pixels.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

using namespace Qt::StringLiterals;
using namespace torvik;

/// Qt's widgets in the program's look.
class LookStyleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ApplyLook(); }

    void boxes_for_text_and_lists_are_sunken()
    {
        QLineEdit edit;
        QListWidget list;
        for (QWidget* widget : std::initializer_list<QWidget*>{&edit, &list}) {
            widget->resize(100, 40);
            const QImage image = Grab(*widget);
            QCOMPARE(image.pixelColor(50, 0), look::shadow);
            QCOMPARE(image.pixelColor(50, 1), look::darkShadow);
            QCOMPARE(image.pixelColor(50, 20), look::paper);
            QCOMPARE(image.pixelColor(50, 39), look::light);
        }
    }

    void buttons_of_boxes_are_raised()
    {
        QPushButton button(u"OK"_s);
        button.resize(80, 24);
        const QImage up = Grab(button);
        QCOMPARE(up.pixelColor(40, 0), look::light);
        QCOMPARE(up.pixelColor(40, 23), look::darkShadow);
        button.setDown(true);
        QCOMPARE(Grab(button).pixelColor(40, 0), look::shadow);
    }

    void choices_show_whether_they_are_made_and_enabled()
    {
        QCheckBox check;
        QRadioButton option;
        option.setAutoExclusive(false);
        for (QAbstractButton* button : std::initializer_list<QAbstractButton*>{&check, &option}) {
            button->resize(40, 20);
            const QImage off = Grab(*button);
            button->setChecked(true);
            const QImage on = Grab(*button);
            QVERIFY(on != off);
            button->setEnabled(false);
            QVERIFY(Grab(*button) != on);
            button->setChecked(false);
            QVERIFY(Grab(*button) != off);
        }
    }

    void a_scroll_bar_has_raised_arrows_and_thumb()
    {
        QScrollBar bar(Qt::Horizontal);
        bar.setRange(0, 100);
        bar.resize(200, 16);
        const QImage image = Grab(bar);
        QCOMPARE(image.pixelColor(8, 0), look::light);
        QCOMPARE(image.pixelColor(18, 0), look::light); // the thumb begins behind the arrow
        QCOMPARE(image.pixelColor(150, 8), look::halfLight);
    }

    void the_entry_of_a_menu_bar_fits_into_19_pixels()
    {
        QMenuBar bar;
        bar.setNativeMenuBar(false);
        QAction* entry = bar.addAction(u"Sound Effects"_s);
        bar.setFixedHeight(19);
        bar.resize(300, 19);
        bar.ensurePolished();
        QVERIFY(bar.rect().contains(bar.actionGeometry(entry)));
        const QFontMetrics metrics(bar.font());
        QVERIFY(bar.actionGeometry(entry).height() >= metrics.ascent() + metrics.descent());
        QVERIFY(bar.actionGeometry(entry).width() >= metrics.horizontalAdvance(entry->text()));
    }

    void the_arrow_of_a_chosen_entry_is_as_light_as_its_letters()
    {
        QMenu menu;
        QAction* magazines = menu.addMenu(u" "_s)->menuAction(); // no letters, only the arrow
        menu.addAction(u"Torvik Postcards"_s);
        menu.show();
        const auto hasAtItsEnd = [&menu, magazines](const QColor& colour) {
            const QRect place = menu.actionGeometry(magazines);
            const QImage entry = Grab(menu).copy(place.right() - 20, place.top(), 18, place.height());
            for (int y = 0; y < entry.height(); ++y) {
                for (int x = 0; x < entry.width(); ++x) {
                    if (entry.pixelColor(x, y) == colour)
                        return true;
                }
            }
            return false;
        };
        QVERIFY(hasAtItsEnd(look::text));
        menu.setActiveAction(magazines);
        QVERIFY(hasAtItsEnd(look::accentText));
        QVERIFY(!hasAtItsEnd(look::text));
    }

    void boxes_look_the_same_on_every_desktop()
    {
        const QStyle* style = QApplication::style();
        QCOMPARE(style->styleHint(QStyle::SH_DialogButtonLayout), int(QDialogButtonBox::WinLayout));
        QCOMPARE(style->styleHint(QStyle::SH_DialogButtonBox_ButtonsHaveIcons), 0);
        QCOMPARE(style->styleHint(QStyle::SH_ToolTipLabel_Opacity), 255);
    }
};

TORVIK_TEST(LookStyleTest)
#include "look_style_test.moc"
