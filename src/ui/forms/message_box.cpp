#include "ui/forms/message_box.h"

#include "ui/forms/form.h"
#include "ui/forms/form_window.h"
#include "ui/forms/program_end.h"
#include "ui/forms/program_title.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFontMetrics>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScreen>

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// The windows that were active when the boxes that stand came up.
std::vector<QPointer<FormWindow>>& Asking()
{
    static std::vector<QPointer<FormWindow>> windows;
    return windows;
}

/// Notes for the length of a scope which window asks.
class AskingWindow {
public:
    AskingWindow() { Asking().emplace_back(FormWindow::LastActive()); }
    ~AskingWindow() { Asking().pop_back(); }
    AskingWindow(const AskingWindow&) = delete;
    AskingWindow& operator=(const AskingWindow&) = delete;
};

MessageResponder& Responder()
{
    static MessageResponder responder;
    return responder;
}

struct ButtonChoice {
    const char* name;
    QMessageBox::ButtonRole role;
    int answer;
};

QList<ButtonChoice> ButtonsOf(int style)
{
    const ButtonChoice okButton{"OK", QMessageBox::AcceptRole, msgbox::answerOk};
    const ButtonChoice cancelButton{"Cancel", QMessageBox::RejectRole, msgbox::answerCancel};
    switch (style & 7) {
    case msgbox::okCancel:
        return {okButton, cancelButton};
    case msgbox::yesNo:
        return {{"Yes", QMessageBox::YesRole, msgbox::answerYes},
                {"No", QMessageBox::NoRole, msgbox::answerNo}};
    case msgbox::retryCancel:
        return {{"Retry", QMessageBox::AcceptRole, msgbox::answerRetry}, cancelButton};
    default:
        return {okButton};
    }
}

QMessageBox::Icon IconOf(int style)
{
    switch (style & 112) {
    case msgbox::critical:
        return QMessageBox::Critical;
    case msgbox::question:
        return QMessageBox::Question;
    case msgbox::exclamation:
        return QMessageBox::Warning;
    case msgbox::information:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

/// A box below such a window would hold the program up unseen.
bool IsAnyWindowTopmost()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
        return window->isVisible() && window->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
    });
}

/// On a display without a window manager nobody else hands the keyboard to a box and back.
class KeyboardLoan {
public:
    explicit KeyboardLoan(QWidget& box) : lender_(box.parentWidget())
    {
        QMetaObject::invokeMethod(
            &box, [&box] { box.activateWindow(); }, Qt::QueuedConnection);
    }
    ~KeyboardLoan()
    {
        if (lender_ != nullptr && lender_->isVisible())
            lender_->activateWindow();
    }
    KeyboardLoan(const KeyboardLoan&) = delete;
    KeyboardLoan& operator=(const KeyboardLoan&) = delete;

private:
    QPointer<QWidget> lender_;
};

/// A message box that is never narrower than what lies in it.
class Box : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

protected:
    /// Qt keeps a box within its own limits, some of which are below what its longest line needs.
    void showEvent(QShowEvent* event) override
    {
        QMessageBox::showEvent(event);
        const int wanted = std::min(layout()->totalMinimumSize().width(), screen()->availableSize().width());
        if (wanted > width())
            setFixedSize(wanted, layout()->totalHeightForWidth(wanted));
    }
};

/// Makes the box so wide that no line of its text is broken, as far as the screen reaches.
void MakeRoomForLines(QMessageBox& box)
{
    constexpr int besideText = 120; // pixels for icon, margins and the desktop's frame
    const auto* label = box.findChild<QLabel*>(u"qt_msgbox_label"_s);
    auto* rows = static_cast<QGridLayout*>(box.layout());
    int row = 0;
    int column = 0;
    int rowSpan = 0;
    int columnSpan = 0;
    rows->getItemPosition(rows->indexOf(label), &row, &column, &rowSpan, &columnSpan);
    const int width = std::min(label->sizeHint().width(), box.screen()->availableSize().width() - besideText);
    rows->addItem(new QSpacerItem(width, 0), rows->rowCount(), column);
}

/// Makes the box as wide as its title wants to be shown whole; around a short text it would be narrower. The
/// desktop draws the title in a font of its own, mostly a bold and larger one, between an icon and buttons.
void MakeRoomForTitle(QMessageBox& box)
{
    constexpr int iconAndButtons = 160; // pixels
    QFont font = box.font();
    font.setBold(true);
    font.setPixelSize(font.pixelSize() * 5 / 4);
    const int width = QFontMetrics(font).horizontalAdvance(box.windowTitle()) + iconAndButtons;
    auto* rows = static_cast<QGridLayout*>(box.layout());
    rows->addItem(new QSpacerItem(width, 0), rows->rowCount(), 0, 1, rows->columnCount());
}

/// A window that has just gone is the active one until the desktop says otherwise.
QWidget* WindowBelow()
{
    QWidget* active = QApplication::activeWindow();
    return active != nullptr && active->isVisible() ? active : FormWindow::ToStandOver();
}

int Ask(const MessageRequest& request)
{
    Form::PutAllOnScreen();
    Box box(WindowBelow());
    box.setObjectName(u"MsgBox"_s);
    box.setAccessibleName(request.title);
    box.setWindowTitle(request.title);
    box.setTextFormat(Qt::PlainText);
    box.setText(request.text);
    box.setIcon(IconOf(request.style));
    if ((request.style & msgbox::systemModal) != 0 || IsAnyWindowTopmost())
        box.setWindowFlag(Qt::WindowStaysOnTopHint);

    QHash<QAbstractButton*, int> answers;
    for (const ButtonChoice& choice : ButtonsOf(request.style)) {
        QPushButton* button = box.addButton(QString::fromLatin1(choice.name), choice.role);
        button->setObjectName(QString::fromLatin1(choice.name));
        if (answers.isEmpty())
            box.setDefaultButton(button);
        answers.insert(button, choice.answer);
    }
    MakeRoomForLines(box);
    MakeRoomForTitle(box);
    const int onlyAnswer = answers.size() == 1 ? msgbox::answerOk : msgbox::answerCancel;
    const KeyboardLoan loan(box);
    box.exec();
    return answers.value(box.clickedButton(), onlyAnswer);
}

} // namespace

int MsgBox(const QString& text, int style, const QString& title)
{
    const MessageRequest request{text, style, title.isEmpty() ? applicationTitle : title};
    int answer = 0;
    {
        const AskingWindow asking;
        answer = Responder() ? Responder()(request) : Ask(request);
    }
    LeaveIfEnding();
    return answer;
}

bool MessageBoxStandsOver(const Form& form)
{
    return std::any_of(Asking().begin(), Asking().end(), [&](const QPointer<FormWindow>& window) {
        return window != nullptr && window->Owner() == &form;
    });
}

void SetMessageResponder(MessageResponder responder)
{
    Responder() = std::move(responder);
}

} // namespace torvik
