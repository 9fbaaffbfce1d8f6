#pragma once

#include <QTimer>

#include <functional>

namespace torvik {

/// Runs `action` whenever the program lets pending events run, once each time.
class EachRound {
public:
    explicit EachRound(std::function<void()> action)
    {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, std::move(action));
        timer_.start(0);
    }

private:
    QTimer timer_;
};

} // namespace torvik
