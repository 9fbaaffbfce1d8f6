#include "support/ui_room.h"
#include "ui/controls/text_box.h"

#include <QLineEdit>

using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(QStringLiteral("Main"))) {}
    TextBox txtFile{*this, QStringLiteral("txtFile"), {0, 0, 3000, 315}, QStringLiteral("67A.JPG")};
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
        QCOMPARE(Main->txtFile.Text(), QStringLiteral("67A.JPG"));
        Main->txtFile.SetText(QStringLiteral(" "));
        QCOMPARE(Main->txtFile.Text(), QStringLiteral(" "));
    }

    void the_user_cannot_change_it()
    {
        QTest::keyClicks(&Edit(), QStringLiteral("abc"));
        QTest::keyClick(&Edit(), Qt::Key_Delete);
        QCOMPARE(Main->txtFile.Text(), QStringLiteral("67A.JPG"));
    }

    void the_user_can_select_of_it()
    {
        QCOMPARE(Main->txtFile.SelText(), QString());
        QTest::keyClick(&Edit(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(Main->txtFile.SelText(), QStringLiteral("67A.JPG"));
        QTest::keyClick(&Edit(), Qt::Key_Home);
        QTest::keyClick(&Edit(), Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(Main->txtFile.SelText(), QStringLiteral("6"));
    }

    void a_long_text_shows_its_beginning()
    {
        Main->txtFile.SetText(QString(500, u'x'));
        QCOMPARE(Edit().cursorPosition(), 0);
    }

    void the_text_is_spoken_and_the_name_where_it_is_blank()
    {
        QCOMPARE(Edit().accessibleName(), QStringLiteral("67A.JPG"));
        Main->txtFile.SetText(QStringLiteral(" "));
        QCOMPARE(Edit().accessibleName(), QStringLiteral("txtFile"));
    }

    void a_click_on_it_is_a_click()
    {
        int clicks = 0;
        Main->txtFile.Click = [&] { ++clicks; };
        QTest::mouseClick(&Edit(), Qt::LeftButton);
        QCOMPARE(clicks, 1);
    }

private:
    std::unique_ptr<UiRoom> room_;
};

QTEST_MAIN(TextBoxTest)
#include "text_box_test.moc"
