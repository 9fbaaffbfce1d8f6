#pragma once

#include "saver/photo_show.h"
#include "saver/saver_window.h"
#include "saver/wake.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>

namespace torvik {

/// Runs the show in windows by the machine's own time.
class ShowRunner : public QObject {
public:
    using Opener = std::function<SaverWindows()>;

    /// `open` makes the windows; it is called again when screens come or go. `ended` is called when somebody
    /// is back; without it nothing that happens to the windows ends the show.
    ShowRunner(const SaverSettings& settings, double start, Opener open, std::function<void()> ended);

    const SaverWindows& Windows() const { return windows_; }

private:
    void Open();
    void Tick();
    void Notice(const QEvent& event);

    Show show_;
    Opener open_;
    std::function<void()> ended_;
    Wake wake_;
    SaverWindows windows_;
    QElapsedTimer time_;
    QTimer timer_;
};

} // namespace torvik
