#pragma once

#include <QApplication>
#include <QObject>
#include <QTimer>

#include <functional>

namespace torvik {

/// Runs `action` once, as soon as a modal window stands: inside the call that shows it. `action` closes the
/// window; one that it leaves open is the test's own fault and ends by `giveUp`, so that the test fails
/// instead of hanging.
class ModalVisit {
public:
    ModalVisit(const std::function<void()>& action, const std::function<void()>& giveUp)
    {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this, action, giveUp] {
            if (QApplication::activeModalWidget() == nullptr)
                return;
            timer_.stop();
            ran_ = true;
            action();
            giveUp();
        });
        timer_.start(0);
    }

    /// Whether a modal window came.
    bool Ran() const { return ran_; }

private:
    QTimer timer_;
    bool ran_ = false;
};

} // namespace torvik
