#pragma once

#include <QTimer>

#include <functional>

namespace torvik {

/// Runs `action` once, from inside the next loop that lets events run in which `begun` says yes.
class WhileWaiting {
public:
    WhileWaiting(const std::function<bool()>& begun, const std::function<void()>& action)
    {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this, begun, action] {
            if (!begun())
                return;
            timer_.stop();
            ran_ = true;
            action();
        });
        timer_.start(0);
    }

    /// Whether it was run, or has begun to.
    bool Ran() const { return ran_; }

private:
    QTimer timer_;
    bool ran_ = false;
};

} // namespace torvik
