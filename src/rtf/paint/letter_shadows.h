#pragma once

#include <QTextBlock>

#include <vector>

class QPainter;
class QRectF;
class QTextDocument;

namespace torvik::rtf {

/// The shadows of letters of a document that was read. They are painted before the text, on the screen as on
/// paper; a background of the text covers them.
class LetterShadows {
public:
    LetterShadows() = default;
    /// Looks through the document, which has to stay as it is.
    explicit LetterShadows(const QTextDocument& document);

    bool IsEmpty() const { return blocks_.empty(); }
    /// Paints what lies in `clip`, in the coordinates of the document's layout. `scale` is how many of the
    /// layout's units a pixel of the document takes.
    void Paint(QPainter& painter, const QRectF& clip, double scale) const;

private:
    std::vector<QTextBlock> blocks_;
};

} // namespace torvik::rtf
