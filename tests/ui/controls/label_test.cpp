#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/label.h"

#include <QLabel>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s)) {}
    Label Label1{*this, u"Label1"_s, {0, 0, 3000, 900}, u"Copying file:"_s};
};

FormHandle<MainForm> Main;

} // namespace

/// Lines of plain text.
class LabelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { room_ = std::make_unique<UiRoom>(); }
    void cleanup() { room_.reset(); }

    void the_caption_is_shown_and_spoken()
    {
        QCOMPARE(Main->Label1.Caption(), u"Copying file:"_s);
        QCOMPARE(Main->Label1.Widget().accessibleName(), u"Copying file:"_s);
        Main->Label1.SetCaption(u"  To:"_s);
        QCOMPARE(Main->Label1.Caption(), u"  To:"_s);
        Main->Label1.SetCaption({});
        QCOMPARE(Main->Label1.Widget().accessibleName(), u"Label1"_s);
    }

    void html_and_ampersands_are_plain_text()
    {
        Main->Label1.SetCaption(u"<b>Fords</b> & Torviks"_s);
        const auto& widget = static_cast<const QLabel&>(Main->Label1.Widget());
        QCOMPARE(widget.textFormat(), Qt::PlainText);
        QCOMPARE(widget.text(), u"<b>Fords</b> & Torviks"_s);
    }

    void its_letters_take_size_weight_and_colour()
    {
        Main->Label1.SetCaptionFont(20, true, look::accent);
        const QWidget& widget = Main->Label1.Widget();
        QCOMPARE(widget.font().pixelSize(), 20);
        QVERIFY(widget.font().bold());
        QCOMPARE(widget.palette().color(QPalette::WindowText), look::accent);
        Main->Label1.SetCaptionFont(12, false);
        QVERIFY(!widget.font().bold());
        QCOMPARE(widget.palette().color(QPalette::WindowText), look::text);
    }

    void a_click_on_it_is_its_own()
    {
        QVERIFY(UiRoom::Open(*Main));
        int clicks = 0;
        Main->Label1.Click = [&] { ++clicks; };
        QTest::mouseClick(&Main->Label1.Widget(), Qt::LeftButton);
        QCOMPARE(clicks, 1);
    }

private:
    std::unique_ptr<UiRoom> room_;
};

TORVIK_TEST(LabelTest)
#include "label_test.moc"
