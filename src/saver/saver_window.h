#pragma once

#include "saver/fade.h"
#include "saver/photo_show.h"

#include <QRasterWindow>

#include <functional>
#include <memory>
#include <vector>

namespace torvik {

/// A bare window on which the show is seen.
class SaverWindow : public QRasterWindow, public Stage {
public:
    QSize Pixels() const override;
    Fade& Shown() override { return fade_; }
    void Refresh() override { update(); }

    std::function<void(const QEvent&)> noticed;    ///< each event of the window, before it is worked on
    std::function<void(SaverWindow&)> sizeChanged; ///< the window or the scale of its screen changed

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    Fade fade_;
};

using SaverWindows = std::vector<std::unique_ptr<SaverWindow>>;

} // namespace torvik
