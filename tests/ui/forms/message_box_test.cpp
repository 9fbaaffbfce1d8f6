#include "support/ui_room.h"
#include "ui/controls/button.h"
#include "ui/controls/spin_button.h"
#include "ui/forms/message_box.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSet>
#include <QTimer>

using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(QStringLiteral("Main"))) {}
    SpinButton Spin{*this, QStringLiteral("Spin"), {0, 0, 600, 300}};
    Button Go{*this, QStringLiteral("Go"), {0, 600, 1200, 375}};
};

FormHandle<MainForm> Main;

QMessageBox& Box()
{
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr)
        qFatal("no message box is up");
    return *box;
}

QAbstractButton* ButtonNamed(const QString& name)
{
    return Box().findChild<QAbstractButton*>(name);
}

/// Shows a box, looks at it, and answers it with a button.
int Answer(
    const QString& text, int style, const QString& button, const std::function<void()>& look = [] {},
    const QString& title = {})
{
    UiRoom::Soon([=] {
        look();
        QTest::mouseClick(ButtonNamed(button), Qt::LeftButton);
    });
    return MsgBox(text, style, title);
}

QStringList ButtonNames()
{
    QStringList names;
    for (const QAbstractButton* button : Box().buttons()) {
        names.append(button->objectName());
        if (button->text() != button->objectName())
            names.append(QStringLiteral("but it says ") + button->text());
    }
    return names;
}

} // namespace

/// The real boxes, worked like a user works them.
class MessageBoxTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { room_ = std::make_unique<UiRoom>(); }
    void cleanup()
    {
        SetMessageResponder({});
        room_.reset();
    }

    void each_style_has_its_buttons_and_answers_data()
    {
        QTest::addColumn<int>("style");
        QTest::addColumn<QStringList>("buttons");
        QTest::addColumn<QList<int>>("answers");
        const QString ok = QStringLiteral("OK");
        const QString cancel = QStringLiteral("Cancel");
        const QString retry = QStringLiteral("Retry");
        const QString yes = QStringLiteral("Yes");
        const QString no = QStringLiteral("No");
        QTest::newRow("ok") << 0 << QStringList{ok} << QList<int>{1};
        QTest::newRow("ok and cancel") << 1 << QStringList{ok, cancel} << QList<int>{1, 2};
        QTest::newRow("yes and no") << 4 << QStringList{yes, no} << QList<int>{6, 7};
        QTest::newRow("retry and cancel") << 5 << QStringList{retry, cancel} << QList<int>{4, 2};
        QTest::newRow("yes and no with an icon, system modal")
            << 4 + 32 + 4096 << QStringList{yes, no} << QList<int>{6, 7};
    }

    void each_style_has_its_buttons_and_answers()
    {
        QFETCH(const int, style);
        QFETCH(const QStringList, buttons);
        QFETCH(const QList<int>, answers);
        for (int index = 0; index < buttons.size(); ++index) {
            QStringList shown;
            const int answer =
                Answer(QStringLiteral("?"), style, buttons.at(index), [&] { shown = ButtonNames(); });
            QCOMPARE(QSet<QString>(shown.begin(), shown.end()),
                     QSet<QString>(buttons.begin(), buttons.end()));
            QCOMPARE(answer, answers.at(index));
        }
    }

    void the_first_button_stands_first_and_is_the_default()
    {
        for (const auto& [style, first, second] :
             {std::tuple{1, QStringLiteral("OK"), QStringLiteral("Cancel")},
              std::tuple{4, QStringLiteral("Yes"), QStringLiteral("No")},
              std::tuple{5, QStringLiteral("Retry"), QStringLiteral("Cancel")}}) {
            bool before = false;
            bool isDefault = false;
            Answer(QStringLiteral("?"), style, second, [&, one = first, two = second] {
                before = ButtonNamed(one)->x() < ButtonNamed(two)->x();
                isDefault = Box().defaultButton() == ButtonNamed(one);
            });
            QVERIFY(before);
            QVERIFY(isDefault);
        }
    }

    void enter_is_the_first_button()
    {
        UiRoom::Soon([] { QTest::keyClick(&Box(), Qt::Key_Return); });
        QCOMPARE(MsgBox(QStringLiteral("?"), msgbox::retryCancel), msgbox::answerRetry);
    }

    void escape_is_the_answer_that_changes_nothing()
    {
        const auto escape = [](int style) {
            UiRoom::Soon([] { QTest::keyClick(&Box(), Qt::Key_Escape); });
            return MsgBox(QStringLiteral("?"), style);
        };
        QCOMPARE(escape(msgbox::ok), msgbox::answerOk);
        QCOMPARE(escape(msgbox::okCancel), msgbox::answerCancel);
        QCOMPARE(escape(msgbox::retryCancel), msgbox::answerCancel);
        QCOMPARE(escape(msgbox::yesNo), msgbox::answerNo);
    }

    void closing_the_box_is_escape()
    {
        UiRoom::Soon([] { Box().close(); });
        QCOMPARE(MsgBox(QStringLiteral("?"), msgbox::retryCancel), msgbox::answerCancel);
    }

    void each_style_has_its_icon()
    {
        for (const auto& [style, icon] :
             {std::pair{0, QMessageBox::NoIcon}, std::pair{16, QMessageBox::Critical},
              std::pair{32, QMessageBox::Question}, std::pair{48, QMessageBox::Warning},
              std::pair{64, QMessageBox::Information}, std::pair{4096 + 16, QMessageBox::Critical}}) {
            auto shown = QMessageBox::NoIcon;
            Answer(QStringLiteral("!"), style, QStringLiteral("OK"), [&] { shown = Box().icon(); });
            QCOMPARE(shown, icon);
        }
    }

    void the_text_stands_as_it_is()
    {
        const QString text = QStringLiteral("  two blanks before\r\n\r\n    1)  Click  twice \r\n");
        QString shown;
        Answer(text, msgbox::ok, QStringLiteral("OK"), [&] { shown = Box().text(); });
        QCOMPARE(shown, text);
    }

    void html_is_shown_literally()
    {
        const QString text = QStringLiteral("<b>bold</b> &amp; <img src=\"x\">");
        QString shown;
        Answer(text, msgbox::ok, QStringLiteral("OK"), [&] {
            const auto* label = Box().findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
            QCOMPARE(label->textFormat(), Qt::PlainText);
            shown = label->text();
        });
        QCOMPARE(shown, text);
    }

    void lines_are_as_many_as_the_text_has()
    {
        int one = 0;
        int three = 0;
        const auto height = [](int& into) {
            return [&into] {
                into = Box().findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))->sizeHint().height();
            };
        };
        Answer(QStringLiteral("a"), msgbox::ok, QStringLiteral("OK"), height(one));
        Answer(QStringLiteral("a\r\nb\r\nc"), msgbox::ok, QStringLiteral("OK"), height(three));
        QVERIFY(three > 2 * one);
        QVERIFY(three <= 3 * one + 3);
    }

    void the_title_is_the_application_title_unless_another_is_given()
    {
        QString title;
        const auto look = [&] {
            title = Box().windowTitle();
            QCOMPARE(Box().accessibleName(), title);
        };
        Answer(QStringLiteral("?"), 0, QStringLiteral("OK"), look);
        QCOMPARE(title, QStringLiteral("The Torvik Vollandry 2001"));
        Answer(QStringLiteral("?"), 0, QStringLiteral("OK"), look, QStringLiteral("The Torvik Vollandry"));
        QCOMPARE(title, QStringLiteral("The Torvik Vollandry"));
    }

    void a_box_with_a_short_text_is_wide_enough_for_its_title()
    {
        constexpr int iconAndButtons = 150; // pixels that a desktop takes of the caption
        for (const QString& title :
             {QString(), QStringLiteral("A title that is longer than any of ours is")}) {
            int width = 0;
            int wanted = 0;
            Answer(
                QStringLiteral("!"), msgbox::exclamation, QStringLiteral("OK"),
                [&] {
                    QFont bold = Box().font();
                    bold.setBold(true);
                    wanted = QFontMetrics(bold).horizontalAdvance(Box().windowTitle()) + iconAndButtons;
                    width = Box().width();
                },
                title);
            QVERIFY2(width >= wanted, qPrintable(QStringLiteral("%1 of %2").arg(width).arg(wanted)));
        }
    }

    void a_system_modal_box_stays_on_top()
    {
        bool onTop = false;
        const auto look = [&] { onTop = Box().windowFlags().testFlag(Qt::WindowStaysOnTopHint); };
        Answer(QStringLiteral("!"), msgbox::systemModal, QStringLiteral("OK"), look);
        QVERIFY(onTop);
        Answer(QStringLiteral("!"), msgbox::ok, QStringLiteral("OK"), look);
        QVERIFY(!onTop);
    }

    void a_box_is_never_hidden_below_a_form_that_stays_on_top()
    {
        const UiRoom room;
        bool onTop = false;
        const auto look = [&] { onTop = Box().windowFlags().testFlag(Qt::WindowStaysOnTopHint); };
        Main->SetTopmost(true);
        QVERIFY(UiRoom::Open(*Main));
        Answer(QStringLiteral("!"), msgbox::ok, QStringLiteral("OK"), look);
        QVERIFY(onTop);
        Main->Hide();
        Answer(QStringLiteral("!"), msgbox::ok, QStringLiteral("OK"), look);
        QVERIFY(!onTop);
    }

    void the_box_is_named_for_those_who_look_for_it()
    {
        QString name;
        Answer(QStringLiteral("?"), 0, QStringLiteral("OK"), [&] { name = Box().objectName(); });
        QCOMPARE(name, QStringLiteral("MsgBox"));
    }

    void a_box_over_a_box_answers_for_itself()
    {
        int inner = 0;
        const int outer = Answer(QStringLiteral("outer"), msgbox::yesNo, QStringLiteral("No"), [&] {
            inner = Answer(QStringLiteral("inner"), msgbox::yesNo, QStringLiteral("Yes"));
        });
        QCOMPARE(inner, msgbox::answerYes);
        QCOMPARE(outer, msgbox::answerNo);
    }

    void the_end_of_the_program_takes_the_box_away_and_runs_nothing_behind_it()
    {
        bool behind = false;
        RunHandler([&] {
            UiRoom::Soon([] { RunHandler([] { EndProgram(); }); });
            MsgBox(QStringLiteral("?"));
            behind = true;
        });
        QVERIFY(!behind);
        QVERIFY(ProgramIsEnding());
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
    }

    void a_held_arrow_does_not_go_on_stepping_behind_a_box()
    {
        QVERIFY(UiRoom::Open(*Main));
        int steps = 0;
        Main->Spin.SpinUp = [&] {
            ++steps;
            Answer(QStringLiteral("no photo"), msgbox::critical, QStringLiteral("OK"));
        };
        auto* arrow = Main->Window().findChild<QAbstractButton*>(QStringLiteral("Spin(Up)"));
        arrow->setAutoRepeatDelay(1);
        arrow->setAutoRepeatInterval(1);
        QTest::mousePress(arrow, Qt::LeftButton);
        QTRY_COMPARE(steps, 1);
        QVERIFY(!arrow->isDown());
        bool later = false;
        QTimer::singleShot(20, this, [&] { later = true; });
        QTRY_VERIFY(later);
        QCOMPARE(steps, 1);
    }

    void a_box_stands_over_the_form_that_was_active()
    {
        QVERIFY(UiRoom::Open(*Main));
        QVERIFY(!MessageBoxStandsOver(*Main));
        bool stood = false;
        Answer(QStringLiteral("?"), msgbox::ok, QStringLiteral("OK"),
               [&] { stood = MessageBoxStandsOver(*Main); });
        QVERIFY(stood);
        QVERIFY(!MessageBoxStandsOver(*Main));
        bool stoodWithoutBox = false;
        SetMessageResponder([&](const MessageRequest&) {
            stoodWithoutBox = MessageBoxStandsOver(*Main);
            return msgbox::answerOk;
        });
        MsgBox(QStringLiteral("?"));
        QVERIFY(stoodWithoutBox);
    }

    void a_responder_answers_in_place_of_the_box()
    {
        MessageRequest asked;
        SetMessageResponder([&](const MessageRequest& request) {
            asked = request;
            return msgbox::answerRetry;
        });
        QCOMPARE(MsgBox(QStringLiteral(" text "), 5), msgbox::answerRetry);
        QCOMPARE(asked.Text, QStringLiteral(" text "));
        QCOMPARE(asked.Style, 5);
        QCOMPARE(asked.Title, QStringLiteral("The Torvik Vollandry 2001"));
    }

private:
    std::unique_ptr<UiRoom> room_;
};

QTEST_MAIN(MessageBoxTest)
#include "message_box_test.moc"
