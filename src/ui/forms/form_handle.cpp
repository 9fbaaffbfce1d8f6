#include "runtime/failure.h"
#include "ui/forms/form.h"
#include "ui/forms/form_window.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>

namespace torvik {

namespace {

std::vector<FormHandleBase*>& AllHandles()
{
    static std::vector<FormHandleBase*> handles;
    return handles;
}

/// Holds a flag up for the length of a scope, also when a failure leaves it.
class Raised {
public:
    explicit Raised(bool& flag) : flag_(flag) { flag_ = true; }
    ~Raised() { flag_ = false; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

private:
    bool& flag_;
};

} // namespace

FormHandleBase::FormHandleBase()
{
    AllHandles().push_back(this);
}

FormHandleBase::~FormHandleBase()
{
    std::erase(AllHandles(), this);
}

void FormHandleBase::LoadForm()
{
    if (form_ != nullptr)
        return;
    form_ = Make();
    form_->handle_ = this;
    BindHandlers(*form_);
    if (loading_)
        return;
    const Raised loading(loading_);
    form_->Load.Call();
}

Form& FormHandleBase::Touch()
{
    LoadForm();
    if (form_ == nullptr)
        Fail(failure::objectUnloaded);
    return *form_;
}

bool FormHandleBase::Unload()
{
    if (form_ == nullptr || unloading_)
        return true;
    const Raised unloading(unloading_);
    bool keep = false;
    form_->QueryUnload.Call(keep);
    if (keep)
        return false;
    form_->Unload.Call();
    form_.release()->Retire(); // deletes itself
    return true;
}

bool FormHandleBase::IsAnyLoaded()
{
    return std::any_of(AllHandles().begin(), AllHandles().end(),
                       [](const FormHandleBase* handle) { return handle->IsLoaded(); });
}

void FormHandleBase::DiscardAll()
{
    for (FormHandleBase* handle : AllHandles()) {
        handle->form_.reset();
        handle->loading_ = false;
        handle->unloading_ = false;
    }
    // Those that were unloaded and wait for their end go as well.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

Form* FormHandleBase::FormOfWindow(const QWidget* window)
{
    const auto* formWindow = dynamic_cast<const FormWindow*>(window);
    return formWindow != nullptr ? formWindow->Owner() : nullptr;
}

} // namespace torvik
