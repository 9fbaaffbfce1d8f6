#pragma once

#include "ui/forms/container.h"
#include "ui/forms/event.h"
#include "ui/forms/units.h"

#include <QObject>
#include <QString>

class QKeyEvent;
class QWidget;

namespace torvik {

/// Mouse buttons as the handlers know them.
namespace mouse {
inline constexpr int left = 1;
inline constexpr int right = 2;
inline constexpr int middle = 4;
} // namespace mouse

/// The sum in which a key's handler is told of Shift, Ctrl and Alt.
namespace held {
inline constexpr int shift = 1;
inline constexpr int ctrl = 2;
inline constexpr int alt = 4;
} // namespace held

/// Key codes as the handlers know them.
namespace key {
inline constexpr int enter = 13;
inline constexpr int escape = 27;
inline constexpr int space = 32;
inline constexpr int pageUp = 33;
inline constexpr int pageDown = 34;
inline constexpr int up = 38;
inline constexpr int down = 40;
inline constexpr int letterF = 70;
inline constexpr int f3 = 114;
inline constexpr int comma = 188;
inline constexpr int period = 190;
} // namespace key

/// A named control on a container. Its place and size are given at design in twips and spoken of at run time
/// in the scale of its container; fractions are kept although the screen shows whole pixels.
class Control : public QObject {
public:
    ~Control() override;

    /// The control that a widget is; null for a widget that is none.
    static Control* OfWidget(const QWidget* widget);
    /// The control that a widget is or is a part of; null when it is none.
    static Control* AroundWidget(const QWidget* widget);

    QString Name() const;

    double Left() const;
    double Top() const;
    double Width() const;
    double Height() const;
    void SetLeft(double left);
    void SetTop(double top);
    /// Failure 380 for a width or height below 0.
    void SetWidth(double width);
    void SetHeight(double height);
    void Move(double left, double top);
    /// All four at once; failure 380 for a width or height below 0, and then nothing changes.
    void Move(double left, double top, double width, double height);

    /// The control's own flag, whatever becomes of its container.
    bool Visible() const;
    void SetVisible(bool visible);
    void Show() { SetVisible(true); }
    void Hide() { SetVisible(false); }

    /// The control's own flag, whatever becomes of its container.
    bool Enabled() const;
    void SetEnabled(bool enabled);

    /// Takes the keyboard focus. Failure 5 when the control or what it lies on is disabled or not visible.
    void SetFocus();
    /// Brings the control in front of its siblings.
    virtual void ZOrder();

    QString ToolTip() const;
    void SetToolTip(const QString& text);

    /// Lets the Tab key come to a control that is no button, such as a picture: there space and Enter are the
    /// left click (the double click where that is bound), the Menu key or Shift+F10 the right mouse button.
    void SetTabStop();

    /// A key was pressed on the control, as its code and shift state.
    void PressKey(int code, int shift);

    Form& OwnerForm() const { return container_.OwnerForm(); }
    QWidget& Widget() const { return *widget_; }

    /// A control that is disabled has no events; what happens on one is no event of its container.
    Event<> Click;    ///< left button pressed and released on the control, or its key
    Event<> DblClick; ///< left button pressed twice; where it is not bound, quick clicking is just clicking
    Event<int> MouseDown;    ///< the button: mouse::left, ...
    Event<int, int> KeyDown; ///< key code; shift state: 1 Shift, 2 Ctrl, 4 Alt; not for keys without a code

protected:
    /// `widget` becomes a child of the container.
    Control(Container& container, const QString& name, QWidget* widget, const Twips& design);

    bool eventFilter(QObject* watched, QEvent* event) override;

    /// What a screen reader says: the caption, or the tool tip, or the name.
    virtual QString AccessibleText() const;
    void UpdateAccessibleText();

    /// Called when the control's size in pixels or the screen's scale factor changed.
    virtual void SizeChanged() {}
    /// Whether a press and release of the left button is this control's Click; buttons have their own way.
    virtual bool ClicksByMouse() const { return true; }

    /// Whether a press of a mouse button makes this the screen's active control although it takes no focus.
    virtual bool IsPicture() const { return false; }

    /// Runs the handler of a press that the widget took, by whatever way it came.
    void Pressed(const Event<>& event) const;

    /// Mouse events are looked for on `inner` too, where a part of the widget takes them.
    void WatchInput(QWidget* inner);
    /// Takes a new size in pixels from the content that it shows.
    void TakePixelSize(double width, double height);

private:
    double Unit() const { return container_.TwipsPerUnit(); }
    void ApplyGeometry();
    bool MousePressed(int button);
    void MouseReleased(int button, bool inside);
    bool KeyPressed(int code, int shift);
    bool PressedByKey(const QKeyEvent& event);

    Container& container_;
    QWidget* widget_;
    QWidget* inner_ = nullptr;
    Twips place_;
    bool pressed_ = false;
    bool tabStop_ = false;
};

} // namespace torvik
