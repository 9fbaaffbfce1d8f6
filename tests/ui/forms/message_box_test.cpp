#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/button.h"
#include "ui/controls/spin_button.h"
#include "ui/forms/message_box.h"
#include "ui/look/message_icons.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSet>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s)) {}
    SpinButton Spin{*this, u"Spin"_s, {0, 0, 600, 300}};
    Button Go{*this, u"Go"_s, {0, 600, 1200, 375}};
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
            names.append(u"but it says "_s + button->text());
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
        const QString ok = u"OK"_s;
        const QString cancel = u"Cancel"_s;
        const QString retry = u"Retry"_s;
        const QString yes = u"Yes"_s;
        const QString no = u"No"_s;
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
            const int answer = Answer(u"?"_s, style, buttons.at(index), [&] { shown = ButtonNames(); });
            QCOMPARE(QSet<QString>(shown.begin(), shown.end()),
                     QSet<QString>(buttons.begin(), buttons.end()));
            QCOMPARE(answer, answers.at(index));
        }
    }

    void the_first_button_stands_first_and_is_the_default()
    {
        for (const auto& [style, first, second] :
             {std::tuple{1, u"OK"_s, u"Cancel"_s}, std::tuple{4, u"Yes"_s, u"No"_s},
              std::tuple{5, u"Retry"_s, u"Cancel"_s}}) {
            bool before = false;
            bool isDefault = false;
            Answer(u"?"_s, style, second, [&, one = first, two = second] {
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
        QCOMPARE(MsgBox(u"?"_s, msgbox::retryCancel), msgbox::answerRetry);
    }

    void escape_is_the_answer_that_changes_nothing()
    {
        const auto escape = [](int style) {
            UiRoom::Soon([] { QTest::keyClick(&Box(), Qt::Key_Escape); });
            return MsgBox(u"?"_s, style);
        };
        QCOMPARE(escape(msgbox::ok), msgbox::answerOk);
        QCOMPARE(escape(msgbox::okCancel), msgbox::answerCancel);
        QCOMPARE(escape(msgbox::retryCancel), msgbox::answerCancel);
        QCOMPARE(escape(msgbox::yesNo), msgbox::answerNo);
    }

    void closing_the_box_is_escape()
    {
        UiRoom::Soon([] { Box().close(); });
        QCOMPARE(MsgBox(u"?"_s, msgbox::retryCancel), msgbox::answerCancel);
    }

    void each_style_has_its_icon()
    {
        for (const auto& [style, icon] :
             {std::pair{0, QMessageBox::NoIcon}, std::pair{16, QMessageBox::Critical},
              std::pair{32, QMessageBox::Question}, std::pair{48, QMessageBox::Warning},
              std::pair{64, QMessageBox::Information}, std::pair{4096 + 16, QMessageBox::Critical}}) {
            auto shown = QMessageBox::NoIcon;
            Answer(u"!"_s, style, u"OK"_s, [&] { shown = Box().icon(); });
            QCOMPARE(shown, icon);
        }
    }

    void the_icon_is_drawn_at_the_screens_own_pixels()
    {
        for (const auto& [style, kind] :
             {std::pair{16, QStyle::SP_MessageBoxCritical}, std::pair{32, QStyle::SP_MessageBoxQuestion},
              std::pair{48, QStyle::SP_MessageBoxWarning}, std::pair{64, QStyle::SP_MessageBoxInformation}}) {
            QImage shown;
            Answer(u"!"_s, style, u"OK"_s, [&] { shown = Box().iconPixmap().toImage(); });
            QCOMPARE(shown, MessageIcon(kind).pixmap(QSize(32, 32), qApp->devicePixelRatio()).toImage());
        }
    }

    void the_text_stands_as_it_is()
    {
        const QString text = u"  two blanks before\r\n\r\n    1)  Click  twice \r\n"_s;
        QString shown;
        Answer(text, msgbox::ok, u"OK"_s, [&] { shown = Box().text(); });
        QCOMPARE(shown, text);
    }

    void html_is_shown_literally()
    {
        const QString text = u"<b>bold</b> &amp; <img src=\"x\">"_s;
        QString shown;
        Answer(text, msgbox::ok, u"OK"_s, [&] {
            const auto* label = Box().findChild<QLabel*>(u"qt_msgbox_label"_s);
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
            return [&into] { into = Box().findChild<QLabel*>(u"qt_msgbox_label"_s)->sizeHint().height(); };
        };
        Answer(u"a"_s, msgbox::ok, u"OK"_s, height(one));
        Answer(u"a\r\nb\r\nc"_s, msgbox::ok, u"OK"_s, height(three));
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
        Answer(u"?"_s, 0, u"OK"_s, look);
        QCOMPARE(title, u"The Torvik Vollandry 2001"_s);
        Answer(u"?"_s, 0, u"OK"_s, look, u"The Torvik Vollandry"_s);
        QCOMPARE(title, u"The Torvik Vollandry"_s);
    }

    void a_box_with_a_short_text_is_wide_enough_for_its_title()
    {
        constexpr int iconAndButtons = 150; // pixels that a desktop takes of the caption
        for (const QString& title : {QString(), u"A title that is longer than any of ours is"_s}) {
            int width = 0;
            int wanted = 0;
            Answer(
                u"!"_s, msgbox::exclamation, u"OK"_s,
                [&] {
                    QFont bold = Box().font();
                    bold.setBold(true);
                    wanted = QFontMetrics(bold).horizontalAdvance(Box().windowTitle()) + iconAndButtons;
                    width = Box().width();
                },
                title);
            QVERIFY2(width >= wanted, qPrintable(u"%1 of %2"_s.arg(width).arg(wanted)));
        }
    }

    void no_line_is_broken_as_long_as_the_screen_is_wide_enough()
    {
        QCOMPARE(QApplication::primaryScreen()->availableSize().width(), 800);
        const QString quoted =
            u"    5)  You may also want to set the Colors to the highest level allowed by your"_s;
        const QString longest =
            u"Also, The Torvik Vollandry requires that the Small Fonts display setting is selected."_s;
        for (const QString& line : {quoted, longest, QString(60, u'W'), QString(u"a "_s).repeated(60)}) {
            int lines = 0;
            int width = 0;
            int wanted = 0;
            Answer(line + u"\r\n\r\n"_s + line, msgbox::exclamation, u"OK"_s, [&] {
                const auto* label = Box().findChild<QLabel*>(u"qt_msgbox_label"_s);
                QCOMPARE(label->font().pixelSize(), 12);
                const QFontMetrics metrics(label->font());
                wanted = metrics.horizontalAdvance(line);
                width = label->width();
                lines = label->heightForWidth(width) / metrics.lineSpacing();
            });
            QVERIFY2(width >= wanted, qPrintable(u"%1 of %2"_s.arg(width).arg(wanted)));
            QCOMPARE(lines, 3);
        }
    }

    void a_box_stays_on_the_screen_whatever_it_says()
    {
        int width = 0;
        Answer(QString(400, u'W'), msgbox::ok, u"OK"_s, [&] { width = Box().width(); });
        QVERIFY(width <= QApplication::primaryScreen()->availableSize().width());
    }

    void a_system_modal_box_stays_on_top()
    {
        bool onTop = false;
        const auto look = [&] { onTop = Box().windowFlags().testFlag(Qt::WindowStaysOnTopHint); };
        Answer(u"!"_s, msgbox::systemModal, u"OK"_s, look);
        QVERIFY(onTop);
        Answer(u"!"_s, msgbox::ok, u"OK"_s, look);
        QVERIFY(!onTop);
    }

    void a_box_is_never_hidden_below_a_form_that_stays_on_top()
    {
        const UiRoom room;
        bool onTop = false;
        const auto look = [&] { onTop = Box().windowFlags().testFlag(Qt::WindowStaysOnTopHint); };
        Main->SetTopmost(true);
        QVERIFY(UiRoom::Open(*Main));
        Answer(u"!"_s, msgbox::ok, u"OK"_s, look);
        QVERIFY(onTop);
        Main->Hide();
        Answer(u"!"_s, msgbox::ok, u"OK"_s, look);
        QVERIFY(!onTop);
    }

    void the_box_is_named_for_those_who_look_for_it()
    {
        QString name;
        Answer(u"?"_s, 0, u"OK"_s, [&] { name = Box().objectName(); });
        QCOMPARE(name, u"MsgBox"_s);
    }

    void a_box_over_a_box_answers_for_itself()
    {
        int inner = 0;
        const int outer = Answer(u"outer"_s, msgbox::yesNo, u"No"_s,
                                 [&] { inner = Answer(u"inner"_s, msgbox::yesNo, u"Yes"_s); });
        QCOMPARE(inner, msgbox::answerYes);
        QCOMPARE(outer, msgbox::answerNo);
    }

    void the_end_of_the_program_takes_the_box_away_and_runs_nothing_after_it()
    {
        bool after = false;
        RunHandler([&] {
            UiRoom::Soon([] { RunHandler([] { EndProgram(); }); });
            MsgBox(u"?"_s);
            after = true;
        });
        QVERIFY(!after);
        QVERIFY(ProgramIsEnding());
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
    }

    void a_held_arrow_does_not_go_on_stepping_behind_a_box()
    {
        QVERIFY(UiRoom::Open(*Main));
        int steps = 0;
        Main->Spin.SpinUp = [&] {
            ++steps;
            Answer(u"no photo"_s, msgbox::critical, u"OK"_s);
        };
        auto* arrow = Main->Window().findChild<QAbstractButton*>(u"Spin(Up)"_s);
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
        Answer(u"?"_s, msgbox::ok, u"OK"_s, [&] { stood = MessageBoxStandsOver(*Main); });
        QVERIFY(stood);
        QVERIFY(!MessageBoxStandsOver(*Main));
        bool stoodWithoutBox = false;
        SetMessageResponder([&](const MessageRequest&) {
            stoodWithoutBox = MessageBoxStandsOver(*Main);
            return msgbox::answerOk;
        });
        MsgBox(u"?"_s);
        QVERIFY(stoodWithoutBox);
    }

    void a_box_whose_form_has_just_gone_comes_up_over_the_form_before()
    {
        struct OtherForm : Form {
            explicit OtherForm(const QString& name) : Form(DesignOf(name)) {}
        };
        QVERIFY(UiRoom::Open(*Main));
        OtherForm below(u"Below"_s);
        QVERIFY(UiRoom::Open(below));
        OtherForm gone(u"Gone"_s);
        QVERIFY(UiRoom::Open(gone));
        const QWidget* window = nullptr;
        const auto look = [&] { window = Box().parentWidget(); };
        Answer(u"?"_s, msgbox::ok, u"OK"_s, look);
        QCOMPARE(window, &gone.Window());
        gone.Hide();
        UiRoom::Settle(); // the activation that the box left behind comes late
        QCOMPARE(QApplication::activeWindow(), &gone.Window());
        QCOMPARE(FormWindow::ToStandOver(), &below.Window());
        Answer(u"?"_s, msgbox::ok, u"OK"_s, look);
        QCOMPARE(window, &below.Window());
        QTRY_COMPARE(QApplication::activeWindow(), &below.Window());
    }

    void a_responder_answers_in_place_of_the_box()
    {
        MessageRequest asked;
        SetMessageResponder([&](const MessageRequest& request) {
            asked = request;
            return msgbox::answerRetry;
        });
        QCOMPARE(MsgBox(u" text "_s, 5), msgbox::answerRetry);
        QCOMPARE(asked.text, u" text "_s);
        QCOMPARE(asked.style, 5);
        QCOMPARE(asked.title, u"The Torvik Vollandry 2001"_s);
    }

private:
    std::unique_ptr<UiRoom> room_;
};

TORVIK_TEST(MessageBoxTest)
#include "message_box_test.moc"
