#include "ui/form_window.h"

#include "ui/form.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>

namespace torvik {

FormWindow::FormWindow(Form& form) : form_(&form), client_(new QWidget(this))
{
    const FormDesign& design = form.Design();
    setObjectName(design.Name);
    setAccessibleName(design.Caption.isEmpty() ? design.Name : design.Caption);
    setWindowTitle(design.Caption);
    switch (design.Border) {
    case FormBorder::None:
        setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
        break;
    case FormBorder::Fixed:
        setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
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
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && form_ != nullptr)
        form_->WindowActivated();
}

} // namespace torvik
