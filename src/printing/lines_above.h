#pragma once

#include <QTextBlock>

#include <vector>

class QTextDocument;

namespace torvik {

/// The lines that Qt paints above a page without need: of a paragraph that goes on from the page before it
/// also paints that page's last line. The edge cuts it off, but in a file it would be found, copied and read
/// aloud twice.
class LinesAbove {
public:
    LinesAbove() = default;
    /// Of a text that is laid out on its pages.
    explicit LinesAbove(const QTextDocument& text);

    /// Paints by `paint` while the lines above a page, counted from 0, stand far outside of it.
    template <typename Paint>
    void PaintWithout(int page, Paint&& paint) const
    {
        Move(page, -farAway);
        paint();
        Move(page, farAway);
    }

private:
    struct Line {
        QTextBlock block;
        int number = 0;
        int page = 0;
    };

    static constexpr double farAway = 100'000; // the layout's pixels, wider than any paper

    void Move(int page, double by) const;

    std::vector<Line> lines_; ///< from page to page
};

} // namespace torvik
