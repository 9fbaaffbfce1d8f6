#pragma once

#include "runtime/integer16.h"
#include "ui/forms/control.h"

class QScrollBar;

namespace torvik {

/// A scroll bar; it lies flat when it is wider than tall at design.
class ScrollBar : public Control {
public:
    ScrollBar(Container& container, const QString& name, const Twips& design);

    int Value() const;
    int Max() const { return max_; }
    int LargeChange() const;
    int SmallChange() const;
    /// A value outside 0 to Max is failure 380.
    void SetValue(Integer value);
    /// A Max of zero or below leaves nothing to scroll. A value above it comes down to it.
    void SetMax(Integer max);
    /// The step of a click beside the thumb, 1 to 32767; anything else is failure 380.
    void SetLargeChange(Integer step);
    /// The step of an arrow, 1 to 32767; anything else is failure 380.
    void SetSmallChange(Integer step);

    Event<> Change; ///< the value changed, by the user or by the program

private:
    QScrollBar* bar_;
    int max_ = 32767;
};

} // namespace torvik
