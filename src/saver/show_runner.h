#pragma once

#include "saver/show.h"
#include "saver/show_window.h"
#include "saver/wake.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>

namespace torvik {

/// Runs the show in windows by the machine's own time.
class ShowRunner : public QObject {
public:
    using Opener = std::function<ShowWindows()>;

    /// `open` makes the windows; it is called again when screens come or go. `ended` is called when somebody
    /// is back; without it nothing that happens to the windows ends the show.
    ShowRunner(const SaverSettings& settings, double start, Opener open, std::function<void()> ended);

    const ShowWindows& Windows() const { return windows_; }

private:
    void Open();
    void Tick();
    void Notice(const QEvent& event);

    Show show_;
    Opener open_;
    std::function<void()> ended_;
    Wake wake_;
    ShowWindows windows_;
    QElapsedTimer time_;
    QTimer timer_;
};

} // namespace torvik
