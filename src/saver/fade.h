#pragma once

#include <QImage>

class QPainter;

namespace torvik {

/// One frame that gives way to the next, as one window shows it.
class Fade {
public:
    /// The frame that is on show now gives way to this one; the passage begins.
    void To(const QImage& frame);
    /// Puts another frame in place of the one that is coming, without a passage.
    void Replace(const QImage& frame);
    /// How far the passage is, 0 to 1.
    void SetProgress(double progress) { progress_ = progress; }

    /// The frame that is coming or has come.
    const QImage& Frame() const { return coming_; }
    /// Draws the mixture over `area`; frames of another size are drawn to its measure.
    void Paint(QPainter& painter, const QRect& area) const;

private:
    QImage going_;
    QImage coming_;
    double progress_ = 1;
};

} // namespace torvik
