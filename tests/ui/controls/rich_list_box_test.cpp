#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/rich_list_box.h"
#include "ui/controls/text_box.h"
#include "ui/look/rich_row.h"

#include <QAccessible>
#include <QListView>
#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s)) {}
    TextBox txtFind{*this, u"txtFind"_s, {0, 0, 3000, 315}};
    RichListBox lstFound{*this, u"lstFound"_s, {0, 450, 5400, 3000}};
};

FormHandle<MainForm> Main;

QListView& View()
{
    return static_cast<QListView&>(Main->lstFound.Widget());
}

QList<RichListRow> Rows(int count, const QString& line = u"a line of text"_s)
{
    QList<RichListRow> rows;
    for (int number = 0; number < count; ++number)
        rows.append({u"Title %1"_s.arg(number), u"Place"_s, line, {{2, 4}}});
    return rows;
}

int DarkPixels(const QImage& image)
{
    int dark = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            dark += qGray(image.pixel(x, y)) < 110 ? 1 : 0;
    }
    return dark;
}

} // namespace

/// A list of rows of two lines.
class RichListBoxTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        room_ = std::make_unique<UiRoom>();
        QVERIFY(UiRoom::Open(*Main));
    }
    void cleanup() { room_.reset(); }

    void rows_count_from_0()
    {
        QCOMPARE(Main->lstFound.ListCount(), 0);
        Main->lstFound.SetRows(Rows(3));
        QCOMPARE(Main->lstFound.ListCount(), 3);
        QCOMPARE(Main->lstFound.List(2).title, u"Title 2"_s);
        QCOMPARE(Main->lstFound.ListIndex(), -1);
    }

    void copying_from_a_list_without_a_row_does_nothing()
    {
        View().setFocus();
        QTest::keyClick(&View(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(View().model()->data({}, Qt::DisplayRole), QVariant());
    }

    void an_index_outside_is_a_failure()
    {
        Main->lstFound.SetRows(Rows(1));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, Main->lstFound.List(1));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, Main->lstFound.List(-1));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, Main->lstFound.SetListIndex(1));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, Main->lstFound.SetListIndex(-2));
    }

    void a_row_can_be_selected_and_comes_into_view()
    {
        Main->lstFound.SetRows(Rows(50));
        Main->lstFound.SetListIndex(40);
        UiRoom::Settle();
        QCOMPARE(Main->lstFound.ListIndex(), 40);
        QVERIFY(View().viewport()->rect().contains(View().visualRect(View().model()->index(40, 0))));
        Main->lstFound.SetListIndex(-1);
        QCOMPARE(Main->lstFound.ListIndex(), -1);
    }

    void other_rows_take_the_place_of_the_old_ones_without_a_moment_of_emptiness()
    {
        Main->lstFound.SetRows(Rows(4));
        int fewest = 4;
        connect(View().model(), &QAbstractItemModel::rowsRemoved, this,
                [&] { fewest = std::min(fewest, View().model()->rowCount()); });
        const QSignalSpy resets(View().model(), &QAbstractItemModel::modelReset);
        Main->lstFound.SetRows(Rows(2, u"other"_s));
        QCOMPARE(Main->lstFound.List(1).line, u"other"_s);
        Main->lstFound.SetRows(Rows(7, u"third"_s));
        QCOMPARE(Main->lstFound.ListCount(), 7);
        QCOMPARE(Main->lstFound.List(0).line, u"third"_s);
        QCOMPARE(Main->lstFound.List(6).line, u"third"_s);
        QCOMPARE(fewest, 2);
        QCOMPARE(resets.count(), 0);
        Main->lstFound.SetRows({});
        QCOMPARE(Main->lstFound.ListCount(), 0);
        QCOMPARE(Main->lstFound.ListIndex(), -1);
    }

    void selection_and_place_stay_while_their_rows_do()
    {
        Main->lstFound.SetRows(Rows(50));
        Main->lstFound.SetListIndex(20);
        const int scrolled = View().verticalScrollBar()->value();
        Main->lstFound.SetRows(Rows(60));
        UiRoom::Settle();
        QCOMPARE(Main->lstFound.ListIndex(), 20);
        QCOMPARE(View().verticalScrollBar()->value(), scrolled);
    }

    void a_double_click_on_a_row_is_told_and_one_beside_the_rows_is_not()
    {
        Main->lstFound.SetRows(Rows(2));
        int told = 0;
        Main->lstFound.RowDblClick = [&] { ++told; };
        const QPoint second = View().visualRect(View().model()->index(1, 0)).center();
        QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, second);
        QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, second);
        QCOMPARE(told, 1);
        QCOMPARE(Main->lstFound.ListIndex(), 1);
        QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, View().viewport()->rect().bottomLeft());
        QCOMPARE(told, 1);
    }

    void a_press_with_ctrl_chooses_a_row_and_never_takes_the_choice_off_it()
    {
        Main->lstFound.SetRows(Rows(3));
        const QPoint second = View().visualRect(View().model()->index(1, 0)).center();
        for (int press = 0; press < 2; ++press) {
            QTest::mouseClick(View().viewport(), Qt::LeftButton, Qt::ControlModifier, second);
            QCOMPARE(Main->lstFound.ListIndex(), 1);
        }
        QTest::keyClick(&View(), Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(Main->lstFound.ListIndex(), 1);
    }

    void a_screen_reader_hears_title_place_and_line()
    {
        Main->lstFound.SetSpokenAs(u"What was found"_s);
        Main->lstFound.SetRows(
            {{u"1969 Description"_s, u"1969"_s, u"a hood scoop"_s, {}}, {u"Bare"_s, {}, {}, {}}});
        QCOMPARE(View().accessibleName(), u"What was found"_s);
        QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&View());
        QVERIFY(list != nullptr);
        QCOMPARE(list->childCount(), 2);
        QCOMPARE(list->child(0)->text(QAccessible::Name), u"1969 Description. 1969. a hood scoop"_s);
        QCOMPARE(list->child(1)->text(QAccessible::Name), u"Bare"_s);
    }

    void found_words_are_drawn_bold()
    {
        const auto drawn = [](const QList<TextRange>& bold) {
            QImage image(400, 20, QImage::Format_RGB32);
            image.fill(Qt::white);
            QPainter painter(&image);
            DrawRowLine(painter, {0, 0, 400, 20}, u"a hood scoop and more"_s, bold, false);
            painter.end();
            return DarkPixels(image);
        };
        QVERIFY(drawn({{2, 10}}) > drawn({}) + 20);
    }

    void a_line_too_long_for_its_row_ends_inside_it()
    {
        QImage image(300, 20, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        DrawRowLine(painter, {0, 0, 200, 20}, u"word "_s.repeated(100), {{0, 4}, {300, 4}}, false);
        DrawRowTitle(painter, {0, 0, 200, 20}, u"Title "_s.repeated(50), u"Place "_s.repeated(50), false);
        painter.end();
        QVERIFY(DarkPixels(image.copy(0, 0, 200, 20)) > 50);
        QCOMPARE(DarkPixels(image.copy(201, 0, 99, 20)), 0);
    }

private:
    std::unique_ptr<UiRoom> room_;
};

TORVIK_TEST(RichListBoxTest)
#include "rich_list_box_test.moc"
