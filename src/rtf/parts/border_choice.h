#pragma once

#include "rtf/parts/document_state.h"

namespace torvik::rtf {

/// Which borders the next words about borders change.
class BorderChoice {
public:
    explicit BorderChoice(DocumentState& document) : document_(document) {}

    /// One border, which has to live until another choice is made.
    void Choose(Border& border)
    {
        chosen_ = &border;
        isBox_ = false;
    }
    /// All four sides of the paragraph.
    void ChooseBox()
    {
        chosen_ = nullptr;
        isBox_ = true;
    }
    void ChooseNone()
    {
        chosen_ = nullptr;
        isBox_ = false;
    }

    template <typename Action>
    void Change(Action action)
    {
        if (chosen_ != nullptr) {
            action(*chosen_);
        } else if (isBox_) {
            for (Border& border : document_.group.paragraph.borders)
                action(border);
        }
    }

private:
    DocumentState& document_;
    Border* chosen_ = nullptr;
    bool isBox_ = false;
};

} // namespace torvik::rtf
