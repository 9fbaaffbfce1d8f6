#pragma once

#include <QTextBlock>

#include <vector>

class QColor;
class QPainter;
class QRectF;
class QTextDocument;

namespace torvik::rtf {

/// What Qt's layout does not paint of a document that was read: leaders before tab stops, double and thick
/// underlines, the second line of text that is struck out twice. It is painted over the text, on the screen
/// as on paper.
class ExtraLines {
public:
    ExtraLines() = default;
    /// Looks through the document, which has to stay as it is.
    explicit ExtraLines(const QTextDocument& document);

    bool IsEmpty() const { return blocks_.empty(); }
    /// Paints what lies in `clip`, in the coordinates of the document's layout. `textColor` is for text
    /// without a colour; `scale` is how many of the layout's units a pixel of the document takes.
    void Paint(QPainter& painter, const QRectF& clip, const QColor& textColor, double scale) const;

private:
    std::vector<QTextBlock> blocks_;
};

} // namespace torvik::rtf
