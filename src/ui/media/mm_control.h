#pragma once

#include "ui/media/media_bar.h"
#include "ui/media/media_control.h"

namespace torvik {

class MediaTrack;

/// A media device with its bar of buttons, and where the medium stands below them. A button gives the device
/// the command of its own name, unless a handler is bound to it; Record and Eject are not shown. Buttons that
/// make no sense in the device's state are disabled.
class MMControl : public MediaBar {
public:
    MMControl(Container& container, const QString& name, const Twips& design);

    /// The device behind the bar.
    MediaControl device;

protected:
    void SizeChanged() override;

private:
    void FollowDevice();

    MediaTrack* track_;
};

} // namespace torvik
