#pragma once

#include <QEvent>
#include <QPointer>
#include <QWidget>

#include <vector>

class QMenuBar;

namespace torvik {

class Form;

/// The window of a form: a menu bar where there is one, and below it the client area that carries the
/// controls.
class FormWindow : public QWidget {
public:
    /// Height of the menu bar in pixels, as the form's measures count it.
    static constexpr int menuHeight = 19;
    /// Waits in the window's queue while the desktop does not know of the form's last change.
    static inline const auto changeWaits = static_cast<QEvent::Type>(QEvent::registerEventType());

    explicit FormWindow(Form& form);
    ~FormWindow() override;
    FormWindow(const FormWindow&) = delete;
    FormWindow& operator=(const FormWindow&) = delete;

    QWidget& Client() { return *client_; }
    /// The menu bar; null on a form without one.
    QMenuBar* MenuBar() { return menuBar_; }
    /// The form, null when it has let go of its window.
    Form* Owner() const { return form_; }
    /// The form's window that was active last; null when it is gone.
    static FormWindow* LastActive();
    /// The form's window that a box or a modal form comes up over: the active one, else the one on the screen
    /// that was active last; null when none is on the screen.
    static FormWindow* ToStandOver();
    void LetGo() { form_ = nullptr; }
    /// Lets go of every button that is held down, because its release will not come here.
    void ReleaseButtons();

protected:
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void WatchWithShift(Qt::Key key, int code);
    void RememberFocus(QWidget* widget);
    bool ReturnFocus();

    Form* form_;
    QMenuBar* menuBar_ = nullptr;
    QWidget* client_;
    std::vector<QPointer<QWidget>> hadFocus_; ///< each once, the last one at the end
};

} // namespace torvik
