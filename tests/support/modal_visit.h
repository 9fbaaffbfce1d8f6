#pragma once

#include "support/while_waiting.h"

#include <QApplication>

#include <functional>

namespace torvik {

/// Runs `action` once, as soon as a modal window stands: inside the call that shows it. `action` closes the
/// window; one that it leaves open is the test's own fault and ends by `giveUp`, so that the test fails
/// instead of hanging.
class ModalVisit : public WhileWaiting {
public:
    ModalVisit(const std::function<void()>& action, const std::function<void()>& giveUp)
        : WhileWaiting([] { return QApplication::activeModalWidget() != nullptr; },
                       [action, giveUp] {
                           action();
                           giveUp();
                       })
    {}
};

} // namespace torvik
