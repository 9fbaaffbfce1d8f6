#include "support/ui_room.h"
#include "ui/controls/label.h"

#include <QLabel>

using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(QStringLiteral("Main"))) {}
    Label Label1{*this, QStringLiteral("Label1"), {0, 0, 3000, 900}, QStringLiteral("Copying file:")};
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
        QCOMPARE(Main->Label1.Caption(), QStringLiteral("Copying file:"));
        QCOMPARE(Main->Label1.Widget().accessibleName(), QStringLiteral("Copying file:"));
        Main->Label1.SetCaption(QStringLiteral("  To:"));
        QCOMPARE(Main->Label1.Caption(), QStringLiteral("  To:"));
        Main->Label1.SetCaption({});
        QCOMPARE(Main->Label1.Widget().accessibleName(), QStringLiteral("Label1"));
    }

    void html_and_ampersands_are_plain_text()
    {
        Main->Label1.SetCaption(QStringLiteral("<b>Fords</b> & Torviks"));
        const auto& widget = static_cast<const QLabel&>(Main->Label1.Widget());
        QCOMPARE(widget.textFormat(), Qt::PlainText);
        QCOMPARE(widget.text(), QStringLiteral("<b>Fords</b> & Torviks"));
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

QTEST_MAIN(LabelTest)
#include "label_test.moc"
