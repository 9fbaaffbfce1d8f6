#pragma once

#include "saver/saver_window.h"

#include <QSize>

#include <functional>
#include <memory>
#include <optional>

class QWindow;

namespace torvik {

/// A window on each screen, in front of everything and without a mouse pointer.
SaverWindows OpenOnAllScreens();

/// A window on each screen behind everything else, which leaves keys and mouse to the desktop.
SaverWindows OpenBehindAll();

/// A window of another program.
class HostWindow {
public:
    /// `number` as the window system counts its windows.
    explicit HostWindow(quint64 number);
    ~HostWindow();
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;

    /// Its size at this moment, in pixels of the desktop; nothing when there is no such window (any more).
    std::optional<QSize> Size() const;
    /// A window inside it that fills it and leaves keys and mouse to it. The host outlives it.
    SaverWindows Open();

private:
    quint64 number_;
    std::unique_ptr<QWindow> window_;
};

} // namespace torvik
