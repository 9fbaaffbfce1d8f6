#pragma once

#include <QImage>
#include <QWidget>

namespace torvik {

/// The pictures of a movie over the whole of another widget, as large as fits, proportions kept, centred on
/// black. It lets every click through.
class VideoPane : public QWidget {
public:
    /// Lies hidden over `host` and follows its size.
    explicit VideoPane(QWidget& host);

    void ShowPicture(const QImage& picture);
    const QImage& Picture() const { return picture_; }
    /// Where in the pane the picture stands, in pixels.
    QRect PlaceOfPicture() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QImage picture_;
};

} // namespace torvik
