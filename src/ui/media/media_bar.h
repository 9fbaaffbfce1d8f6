#pragma once

#include "ui/forms/control.h"
#include "ui/media/media_symbol.h"

#include <array>

namespace torvik {

class MediaBarButton;

/// A row of buttons as on a video recorder; it plays nothing by itself. The visible buttons share its width.
/// Its parts are named like array members, "mmSlide(Play)". At first all of them are visible and enabled.
///
/// The tab key reaches each button, the arrow keys go from one to the next that is enabled, space and Enter
/// press. A press by the mouse leaves the focus where it is.
class MediaBar : public Control {
public:
    MediaBar(Container& container, const QString& name, const Twips& design);

    /// The button's own flag, whatever becomes of the bar.
    bool ButtonEnabled(MediaButton button) const;
    void SetButtonEnabled(MediaButton button, bool enabled);
    bool ButtonVisible(MediaButton button) const;
    void SetButtonVisible(MediaButton button, bool visible);

    /// What a screen reader says of a button; at first its plain name, such as "Play".
    void SetSpokenAs(MediaButton button, const QString& text);

    /// The press of a button. One that is disabled or hidden has none.
    Event<>& ButtonClick(MediaButton button);

protected:
    void SizeChanged() override;
    bool ClicksByMouse() const override { return false; }
    /// Keeps the lowest pixels of the bar free of buttons, for what else a bar shows.
    void SetFoot(int pixels);

private:
    MediaBarButton* MakeButton(MediaButton button);
    MediaBarButton& Part(MediaButton button) const;
    void MoveFocus(MediaButton from, int step);

    std::array<MediaBarButton*, mediaButtonCount> buttons_{};
    std::array<Event<>, mediaButtonCount> clicks_;
    int foot_ = 0;
};

} // namespace torvik
