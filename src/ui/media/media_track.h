#pragma once

#include <QSlider>

#include <functional>

namespace torvik {

/// Where a movie stands: a groove with a thumb, and the time beside it. A press anywhere on the groove goes
/// there. Its values are milliseconds.
class MediaTrack : public QSlider {
public:
    explicit MediaTrack(QWidget* parent);

    std::function<void(int)> sought; ///< the user went to a place

    /// Shows a place of a length; does not call Sought.
    void ShowPlace(int place, int length);
    /// "0:04 / 0:12", minutes and seconds.
    QString TimeText() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QRectF Groove() const;
    void GoTo(double x);
};

} // namespace torvik
