#pragma once

#include "ui/forms/container.h"
#include "ui/forms/event.h"
#include "ui/forms/screen.h"
#include "ui/forms/units.h"

#include <QDeadlineTimer>
#include <QMargins>
#include <QObject>
#include <QPoint>
#include <QSize>
#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QTimer;
class QWidget;

namespace torvik {

class Control;
class FormHandleBase;
class FormWindow;

enum class FormBorder {
    None,    ///< no caption, no frame: the splash; with the screen's size it covers panels and docks too
    Fixed,   ///< a dialog
    Sizable, ///< a window that the user can size
};

/// What a form is at design.
struct FormDesign {
    QString name;
    QString caption;
    double clientWidth = 0;  ///< twips
    double clientHeight = 0; ///< twips
    FormBorder border = FormBorder::Fixed;
    Scale scaleMode = Scale::Twips;
    bool hasMenu = false;
};

/// A top-level window with its controls. A form derives from it as a struct of named controls.
///
/// Width and Height are those of the client area plus a caption of 19 pixels and, where there is a menu bar,
/// another 19: measures of the program's own, whatever the desktop draws around the window. While the desktop
/// shows the form maximized or full screen they are those with which an ordinary window covers the same area.
///
/// What a handler does to a form is one change for the desktop, made before the event loop turns again: a
/// window that is shown first and sized afterwards comes up at its last size, place, state and title.
class Form : public QObject, public Container {
public:
    enum class State { Normal, Minimized, Maximized };

    ~Form() override;

    QString Caption() const;
    void SetCaption(const QString& caption);

    /// All four in twips and of one moment. Left and Top are those of the corner of the window with its
    /// frame: what the program said last, or where the user put the window since.
    double Left() const;
    double Top() const;
    double Width() const;
    double Height() const;
    void SetLeft(double left);
    void SetTop(double top);
    void SetWidth(double width);
    void SetHeight(double height);
    /// The client area in the form's own scale.
    double ScaleWidth() const;
    double ScaleHeight() const;

    State WindowState() const;
    void SetWindowState(State state);
    /// Covers the whole screen, panels and docks too, or goes back; the form's measures stay and no Resize
    /// comes of it. The desktop may end it as well, without a Resize either.
    void CoverScreen(bool cover);
    bool CoversScreen() const { return covering_; }

    /// The desktop's number for the window.
    std::int32_t WindowNumber() const;

    bool Visible() const { return shown_; }
    /// Shows the form beside the others; one that is on the screen already only comes up again.
    void Show();
    /// The same for a form that belongs to another one: where the desktop allows, it stays in front of that
    /// one, also when that one has the keys.
    void ShowOver(const Form& owner);
    /// Shows the form, lets it alone take input, and returns when it was unloaded or hidden. Failure 400 when
    /// it is on the screen already.
    void ShowModal();
    /// Takes the form off the screen; it stays loaded.
    void Hide();
    /// Brings the window to the front.
    void ZOrder();
    /// Brings the window to the front and has it take the keys.
    void SetFocus();
    /// Keeps the window above the others of the desktop, or no longer; a request that a desktop may refuse.
    void SetTopmost(bool topmost);
    /// Has the window on the screen before the next statement runs; what the user does meanwhile waits.
    void Refresh();
    /// Puts all forms on the screen that were shown and wait for the event loop: what comes up next stands
    /// before them.
    static void PutAllOnScreen();

    /// The mouse pointer over this form; that of the screen goes before it.
    MousePointer Pointer() const;
    void SetMousePointer(MousePointer pointer);

    /// A disabled form takes no input; it does not turn grey. While an InputHold stands the form is disabled,
    /// and what is set takes effect when it has gone.
    bool Enabled() const { return enabled_ && holds_ == 0; }
    void SetEnabled(bool enabled);

    /// The button that answers Escape while its own flags say visible and enabled; null for none.
    void SetCancelButton(Control* button) { cancelButton_ = button; }

    Event<> Load;     ///< runs as part of the first touch
    Event<> Activate; ///< the form came up, or is the active one again; may come twice for one showing
    Event<>
        Resize; ///< the form's measures changed, by the program or by the user, or it is shown the first time
    Event<int, int> KeyDown;  ///< a key that none of the controls has used: its code, and the shift state
    Event<bool&> QueryUnload; ///< may set its argument to keep the form
    Event<> Unload;           ///< the form is about to go

    /// Puts a control that nobody sees (a device, a dialog) into the form's window, where it is found by
    /// name.
    void Adopt(QObject& unseen);

    QWidget& Host() override;
    Scale ScaleMode() const override { return design_.scaleMode; }
    Form& OwnerForm() override { return *this; }
    FormWindow& Window() { return *window_; }
    const FormDesign& Design() const { return design_; }
    /// For the tests: true while the program's placing of the window is still on its way through the desktop;
    /// its steps become no measures of the form.
    bool IsSettling() const { return changing_ || !settled_; }
    /// True once the form was unloaded, although it lives on until the handlers that were running then are
    /// done.
    bool Retired() const { return handle_ == nullptr; }

protected:
    explicit Form(FormDesign design);

private:
    friend class FormHandleBase;
    friend class FormWindow;
    friend class InputHold;

    double FrameTwips() const;
    bool FillsScreen() const;
    bool IsOrdinary() const;
    QSize WantedSize() const;
    QPoint WantedPlace() const;
    Qt::WindowStates WantedState() const;
    void PutOver(const FormWindow* below);
    void ComeUp();
    void Place();
    void ApplySize();
    void ApplyPlace();
    void Change();
    void MakeChange();
    void PutWindowOnScreen();
    void ChangeWindow();
    void Unsettle();
    void Watch();
    void Settle();
    bool SettleOrdinary();
    void TakeMeasures();
    Twips CoveredMeasures() const;
    void WindowMoved();
    void WindowResized();
    void WindowStateChanged();
    void WindowActivated();
    void KeyPressed(int code, int shift);
    void CloseRequested();
    void QueueActivate();
    void Retire();

    FormDesign design_;
    FormHandleBase* handle_ = nullptr;
    QTimer* settling_;
    FormWindow* window_;
    Control* cancelButton_ = nullptr;
    QString caption_;
    Twips place_;
    State state_ = State::Normal; ///< what the program asked for last
    bool enabled_ = true;
    int holds_ = 0; ///< how many stand
    bool shown_ = false;
    bool changing_ = false; ///< the desktop does not know of the last change yet
    bool covering_ = false;
    bool uncovering_ = false; ///< what the desktop makes of the window now is no Resize
    bool shownBefore_ = false;
    bool settled_ = true;
    bool placing_ = false; ///< it is the program's own change that settles
    int corrections_ = 0;
    QDeadlineTimer unsettledUntil_;
    QPoint restsAt_;                     ///< where the settled window's frame was seen last
    std::optional<QMargins> plainFrame_; ///< the desktop's frame around the ordinary window
    std::function<void()> leaveModal_;
};

/// The one instance of a form, made when it is first touched.
class FormHandleBase {
public:
    FormHandleBase(const FormHandleBase&) = delete;
    FormHandleBase& operator=(const FormHandleBase&) = delete;

    bool IsLoaded() const { return form_ != nullptr; }
    /// Loads the form if that has not happened yet.
    void LoadForm();
    /// Asks the form, then ends it. Nothing happens when it is not loaded. False when it refused.
    bool Unload();

    /// Whether there is a form that is loaded, on the screen or not.
    static bool IsAnyLoaded();
    /// Ends every form without asking it: the program is over.
    static void DiscardAll();
    /// The form whose window this is; null when it is none.
    static Form* FormOfWindow(const QWidget* window);

protected:
    FormHandleBase();
    ~FormHandleBase();

    virtual std::unique_ptr<Form> Make() = 0;
    virtual void BindHandlers(Form& form) = 0;
    /// Loads the form if need be. Failure 364, Object was unloaded, when its Load unloaded it.
    Form& Touch();

private:
    std::unique_ptr<Form> form_;
    bool loading_ = false;
    bool unloading_ = false;
};

/// `Form1->panYear` loads Form1 when it is not loaded yet: its handlers are bound and its Load runs at that
/// moment. While the Load runs, a touch gives the form as it is; if the Load itself unloaded the form, the
/// next touch in it makes the form anew without a second Load.
template <typename T>
class FormHandle final : public FormHandleBase {
public:
    using Binder = std::function<void(T&)>;

    /// Adds a function that ties handlers to the controls of each new instance.
    void Bind(Binder binder) { binders_.push_back(std::move(binder)); }

    T* operator->() { return static_cast<T*>(&Touch()); }
    T& operator*() { return static_cast<T&>(Touch()); }

protected:
    std::unique_ptr<Form> Make() override { return std::make_unique<T>(); }
    void BindHandlers(Form& form) override
    {
        for (const Binder& bind : binders_)
            bind(static_cast<T&>(form));
    }

private:
    std::vector<Binder> binders_;
};

} // namespace torvik
