#pragma once

#include <QWidget>

class QMenuBar;

namespace torvik {

class Form;

/// The window of a form: a menu bar where there is one, and below it the client area that carries the
/// controls.
class FormWindow : public QWidget {
public:
    /// Height of the menu bar in pixels, as the form's measures count it.
    static constexpr int menuHeight = 19;

    explicit FormWindow(Form& form);

    QWidget& Client() { return *client_; }
    /// The menu bar; null on a form without one.
    QMenuBar* MenuBar() { return menuBar_; }
    /// The form, null when it has let go of its window.
    Form* Owner() const { return form_; }
    /// The form's window that was active last; null when it is gone.
    static FormWindow* LastActive();
    void LetGo() { form_ = nullptr; }
    /// Lets go of every button that is held down, because its release will not come here.
    void ReleaseButtons();

protected:
    bool event(QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    Form* form_;
    QMenuBar* menuBar_ = nullptr;
    QWidget* client_;
};

} // namespace torvik
