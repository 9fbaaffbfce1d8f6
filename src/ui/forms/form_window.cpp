#include "ui/forms/form_window.h"

#include "ui/forms/control.h"
#include "ui/forms/form.h"
#include "ui/forms/keys.h"
#include "ui/forms/spoken_roles.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QShortcut>

#include <algorithm>

namespace torvik {

namespace {

/// The windows that were active, the last one at the end.
std::vector<QPointer<FormWindow>>& Activated()
{
    static std::vector<QPointer<FormWindow>> windows;
    return windows;
}

} // namespace

FormWindow::FormWindow(Form& form) : form_(&form), client_(new QWidget(this))
{
    InstallSpokenRoles();
    const FormDesign& design = form.Design();
    setObjectName(design.name);
    switch (design.border) {
    case FormBorder::None:
        setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
        break;
    case FormBorder::Fixed:
        setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                       Qt::WindowCloseButtonHint);
        break;
    case FormBorder::Sizable:
        setWindowFlags(Qt::Window);
        break;
    }
    if (design.hasMenu) {
        menuBar_ = new QMenuBar(this);
        menuBar_->setNativeMenuBar(false);
        menuBar_->setFixedHeight(menuHeight);
    }
    WatchWithShift(Qt::Key_Comma, key::comma);
    WatchWithShift(Qt::Key_Period, key::period);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget* /*before*/, QWidget* now) { RememberFocus(now); });
}

/// A window that goes loses the focus after this, when it is hardly more than a bare widget.
FormWindow::~FormWindow()
{
    qApp->disconnect(this);
}

/// With Shift these keys give other characters, which ones is a matter of the user's layout, and some layouts
/// have a key of its own for "<" and ">". Only Qt's shortcuts know the key behind the character.
void FormWindow::WatchWithShift(Qt::Key key, int code)
{
    auto* pressed = new QShortcut(Qt::SHIFT | key, this);
    connect(pressed, &QShortcut::activated, this, [code] {
        constexpr int shift = 1;
        if (Control* control = Control::AroundWidget(QApplication::focusWidget()))
            control->PressKey(code, shift);
    });
}

void FormWindow::RememberFocus(QWidget* widget)
{
    if (widget == nullptr || widget == this || widget->window() != this)
        return;
    std::erase_if(hadFocus_, [widget](const auto& known) { return known == nullptr || known == widget; });
    hadFocus_.emplace_back(widget);
}

bool FormWindow::ReturnFocus()
{
    const auto last = std::find_if(hadFocus_.rbegin(), hadFocus_.rend(), [this](const auto& widget) {
        return widget != nullptr && widget->isVisibleTo(this) && widget->isEnabled();
    });
    if (last == hadFocus_.rend())
        return false;
    (*last)->setFocus();
    return true;
}

/// From a panel that closes the focus goes back to where it was before. The next control is a photo as like
/// as not, which the keys that step through the photos do not come to.
bool FormWindow::focusNextPrevChild(bool next)
{
    const bool isGone = focusWidget() != nullptr && !focusWidget()->isVisibleTo(this);
    return (isGone && ReturnFocus()) || QWidget::focusNextPrevChild(next);
}

FormWindow* FormWindow::LastActive()
{
    return Activated().empty() ? nullptr : Activated().back().data();
}

FormWindow* FormWindow::ToStandOver()
{
    auto* active = dynamic_cast<FormWindow*>(QApplication::activeWindow());
    if (active != nullptr && active->isVisible())
        return active;
    const auto last = std::find_if(Activated().rbegin(), Activated().rend(), [](const auto& window) {
        return window != nullptr && window->isVisible();
    });
    return last != Activated().rend() ? last->data() : nullptr;
}

void FormWindow::ReleaseButtons()
{
    const auto buttons = findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons)
        button->setDown(false);
}

/// A box that comes up while a button is held takes the release: an arrow would go on stepping under it.
bool FormWindow::event(QEvent* event)
{
    if (event->type() == QEvent::WindowBlocked)
        ReleaseButtons();
    // For shortcuts the keypad's decimal key is the period key of its character.
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->modifiers().testFlag(Qt::KeypadModifier))
        event->accept();
    if (event->type() == changeWaits && form_ != nullptr)
        form_->MakeChange();
    return QWidget::event(event);
}

void FormWindow::resizeEvent(QResizeEvent* event)
{
    const int top = menuBar_ != nullptr ? menuHeight : 0;
    if (menuBar_ != nullptr)
        menuBar_->setGeometry(0, 0, width(), menuHeight);
    client_->setGeometry(0, top, width(), height() - top);
    QWidget::resizeEvent(event);
    if (form_ != nullptr)
        form_->WindowResized();
}

void FormWindow::moveEvent(QMoveEvent* event)
{
    QWidget::moveEvent(event);
    if (form_ != nullptr)
        form_->WindowMoved();
}

/// The window never closes by itself: the form is asked, and unloading it takes the window away.
void FormWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    if (form_ == nullptr || !form_->Enabled())
        return;
    form_->CloseRequested();
}

void FormWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape)
        QWidget::keyPressEvent(event);
    if (form_ != nullptr)
        form_->KeyPressed(KeyCodeOf(*event), ShiftStateOf(*event)); // the window may be gone after it
}

void FormWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && form_ != nullptr)
        form_->WindowStateChanged();
    if (event->type() != QEvent::ActivationChange || !isActiveWindow() || form_ == nullptr)
        return;
    std::erase_if(Activated(), [this](const auto& window) { return window == nullptr || window == this; });
    Activated().emplace_back(this);
    form_->WindowActivated();
}

} // namespace torvik
