#pragma once

#include <QLabel>

namespace torvik {

/// How a picture looks: with a line around itself while the keyboard is on it.
class PictureWidget : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace torvik
