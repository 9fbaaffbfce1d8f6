#pragma once

#include <QPointF>

#include <optional>

class QEvent;

namespace torvik {

/// Tells whether somebody has come back to the machine.
class Wake {
public:
    /// A mouse on a desk that somebody walks past moves by a pixel or two.
    static constexpr double farEnough = 5; // pixels of the desktop

    /// Whether the event ends the show: a key, a button, the wheel, a touch, a window that is closed, or the
    /// mouse farther from where it was first seen than `farEnough`.
    bool IsCalledBy(const QEvent& event);

private:
    bool IsFar(const QPointF& place);

    std::optional<QPointF> firstPlace_;
};

} // namespace torvik
