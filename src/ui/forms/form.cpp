#include "ui/forms/form.h"

#include "runtime/failure.h"
#include "ui/forms/control.h"
#include "ui/forms/disabled_input.h"
#include "ui/forms/form_window.h"
#include "ui/forms/program_end.h"

#include <QApplication>
#include <QTimer>

#include <utility>

using namespace Qt::StringLiterals;

namespace torvik {

Form::Form(FormDesign design)
    : design_(std::move(design)), settling_(new QTimer(this)), window_(new FormWindow(*this))
{
    WatchDisabledForms();
    settling_->setSingleShot(true);
    connect(settling_, &QTimer::timeout, this, &Form::Settle);
    SetCaption(design_.caption);
    place_.width = design_.clientWidth;
    place_.height = design_.clientHeight + FrameTwips();
    ApplySize();
}

Form::~Form()
{
    window_->LetGo();
    delete window_;
}

QWidget& Form::Host()
{
    return window_->Client();
}

void Form::Adopt(QObject& unseen)
{
    unseen.setParent(window_);
}

QString Form::Caption() const
{
    return caption_;
}

/// Qt would put the program's name in the place of a title without a character.
void Form::SetCaption(const QString& caption)
{
    caption_ = caption;
    window_->setWindowTitle(caption.isEmpty() ? u" "_s : caption);
    window_->setAccessibleName(caption.isEmpty() ? design_.name : caption);
}

std::int32_t Form::WindowNumber() const
{
    return static_cast<std::int32_t>(window_->winId());
}

void Form::SetEnabled(bool enabled)
{
    enabled_ = enabled;
    if (!enabled)
        window_->ReleaseButtons();
}

MousePointer Form::Pointer() const
{
    return window_->cursor().shape() == Qt::WaitCursor ? MousePointer::Hourglass : MousePointer::Default;
}

void Form::SetMousePointer(MousePointer pointer)
{
    if (pointer == MousePointer::Hourglass)
        window_->setCursor(Qt::WaitCursor);
    else
        window_->unsetCursor();
}

void Form::WindowActivated()
{
    if (!Visible())
        return; // hidden again before the desktop answered
    const QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || modal == window_)
        Activate.Fire();
}

void Form::QueueActivate()
{
    QMetaObject::invokeMethod(
        this, [this] { WindowActivated(); }, Qt::QueuedConnection);
}

void Form::KeyPressed(int code, int shift)
{
    if (code == key::escape && cancelButton_ != nullptr && cancelButton_->Visible() &&
        cancelButton_->Enabled())
        cancelButton_->Click.Fire();
    else if (code != 0)
        KeyDown.Fire(code, shift);
}

/// With its last form the program is over: without a window nobody could end it any more.
void Form::CloseRequested()
{
    if (handle_ == nullptr)
        return;
    RunHandler([this] {
        if (handle_->Unload() && !FormHandleBase::IsAnyLoaded())
            EndProgram();
    });
}

/// The form is over: it leaves the screen and its name now, and goes when the handlers that are running are
/// done.
void Form::Retire()
{
    window_->setObjectName({});
    window_->ReleaseButtons();
    shown_ = false;
    window_->hide();
    window_->LetGo();
    handle_ = nullptr;
    if (leaveModal_)
        std::exchange(leaveModal_, nullptr)();
    HandlerScope::WhenAllAreDone([this] { deleteLater(); });
}

} // namespace torvik
