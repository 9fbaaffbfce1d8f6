#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/text_box.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s)) {}
    TextBox txtFile{*this, u"txtFile"_s, {0, 0, 3000, 315}, u"67A.JPG"_s};
};

FormHandle<MainForm> Main;

QLineEdit& Edit()
{
    return static_cast<QLineEdit&>(Main->txtFile.Widget());
}

} // namespace

/// A box with one line of text.
class TextBoxTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        room_ = std::make_unique<UiRoom>();
        QVERIFY(UiRoom::Open(*Main));
        Main->txtFile.SetFocus();
    }
    void cleanup() { room_.reset(); }

    void the_program_fills_it()
    {
        QCOMPARE(Main->txtFile.Text(), u"67A.JPG"_s);
        Main->txtFile.SetText(u" "_s);
        QCOMPARE(Main->txtFile.Text(), u" "_s);
    }

    void the_user_cannot_change_it()
    {
        QTest::keyClicks(&Edit(), u"abc"_s);
        QTest::keyClick(&Edit(), Qt::Key_Delete);
        QCOMPARE(Main->txtFile.Text(), u"67A.JPG"_s);
    }

    void the_user_can_select_of_it()
    {
        QCOMPARE(Main->txtFile.SelText(), QString());
        QTest::keyClick(&Edit(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(Main->txtFile.SelText(), u"67A.JPG"_s);
        QTest::keyClick(&Edit(), Qt::Key_Home);
        QTest::keyClick(&Edit(), Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(Main->txtFile.SelText(), u"6"_s);
    }

    void a_long_text_shows_its_beginning()
    {
        Main->txtFile.SetText(QString(500, u'x'));
        QCOMPARE(Edit().cursorPosition(), 0);
    }

    void the_text_is_spoken_and_the_name_where_it_is_blank()
    {
        QCOMPARE(Edit().accessibleName(), u"67A.JPG"_s);
        Main->txtFile.SetText(u" "_s);
        QCOMPARE(Edit().accessibleName(), u"txtFile"_s);
    }

    void a_click_on_it_is_a_click()
    {
        int clicks = 0;
        Main->txtFile.Click = [&] { ++clicks; };
        QTest::mouseClick(&Edit(), Qt::LeftButton);
        QCOMPARE(clicks, 1);
    }

    void an_unlocked_box_is_written_in_and_tells_each_change()
    {
        int changes = 0;
        Main->txtFile.SetText(QString());
        Main->txtFile.Change = [&] { ++changes; };
        Main->txtFile.SetLocked(false);
        QTest::keyClicks(&Edit(), u"abc"_s);
        QCOMPARE(Main->txtFile.Text(), u"abc"_s);
        QCOMPARE(changes, 3);
        Main->txtFile.SetText(u"abc"_s); // says nothing new
        QCOMPARE(changes, 3);
        Main->txtFile.SetLocked(true);
        QTest::keyClicks(&Edit(), u"d"_s);
        QCOMPARE(Main->txtFile.Text(), u"abc"_s);
    }

    void all_of_it_can_be_selected()
    {
        Main->txtFile.SelectAll();
        QCOMPARE(Main->txtFile.SelText(), u"67A.JPG"_s);
    }

    void a_hint_is_what_a_screen_reader_calls_the_box()
    {
        Main->txtFile.SetHint(u"Words to find"_s);
        QCOMPARE(Edit().accessibleName(), u"Words to find"_s);
        QCOMPARE(Edit().placeholderText(), u"Words to find"_s);
        Main->txtFile.SetText(u"scoop"_s);
        QCOMPARE(Edit().accessibleName(), u"Words to find"_s);
    }

private:
    std::unique_ptr<UiRoom> room_;
};

TORVIK_TEST(TextBoxTest)
#include "text_box_test.moc"
