#include "ui/forms/form_window.h"

#include "ui/forms/form.h"
#include "ui/forms/spoken_roles.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPointer>

namespace torvik {

namespace {

QPointer<FormWindow>& LastActiveWindow()
{
    static QPointer<FormWindow> window;
    return window;
}

} // namespace

FormWindow::FormWindow(Form& form) : form_(&form), client_(new QWidget(this))
{
    InstallSpokenRoles();
    const FormDesign& design = form.Design();
    setObjectName(design.Name);
    setAccessibleName(design.Caption.isEmpty() ? design.Name : design.Caption);
    setWindowTitle(design.Caption);
    switch (design.Border) {
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
    if (design.HasMenu) {
        menuBar_ = new QMenuBar(this);
        menuBar_->setNativeMenuBar(false);
        menuBar_->setFixedHeight(menuHeight);
    }
}

FormWindow* FormWindow::LastActive()
{
    return LastActiveWindow();
}

void FormWindow::ReleaseButtons()
{
    const auto buttons = findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons)
        button->setDown(false);
}

/// A box that comes up while a button is held takes the release: an arrow would go on stepping behind it.
bool FormWindow::event(QEvent* event)
{
    if (event->type() == QEvent::WindowBlocked)
        ReleaseButtons();
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
    if (event->key() == Qt::Key_Escape && form_ != nullptr)
        form_->EscapePressed();
    else
        QWidget::keyPressEvent(event);
}

void FormWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow() || form_ == nullptr)
        return;
    LastActiveWindow() = this;
    form_->WindowActivated();
}

} // namespace torvik
