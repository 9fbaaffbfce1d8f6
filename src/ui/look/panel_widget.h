#pragma once

#include "ui/look/look.h"

#include <QLabel>

namespace torvik {

/// How a 3-D panel looks.
class PanelWidget : public QLabel {
public:
    explicit PanelWidget(Bevel bevel, QWidget* parent = nullptr);

    /// Percent of the face that is filled; below 0 for a panel that is no gauge.
    void SetFlood(int percent);
    int Flood() const { return flood_; }
    bool IsGauge() const { return flood_ >= 0; }
    void SetCaptionColour(const QColor& colour);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintFlood(QPainter& painter, const QRectF& face) const;

    Bevel bevel_;
    int flood_ = -1;
    QColor colour_ = look::text;
};

} // namespace torvik
