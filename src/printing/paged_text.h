#pragma once

#include "printing/lines_above.h"
#include "rtf/rtf_reader.h"

#include <QSizeF>

#include <memory>

class QPaintDevice;
class QPainter;
class QPointF;
class QTextDocument;

namespace torvik {

/// A rich text laid out for a paint device on pages of one size. A page ends after a whole line, and
/// not inside a paragraph that is to be kept together. A picture that fits a page stands on one page; a
/// larger one is shrunk until it fits.
class PagedText {
public:
    /// `page` is in the device's pixels. The device must live as long as this.
    PagedText(const QTextDocument& text, QPaintDevice& device, const QSizeF& page);
    ~PagedText();
    PagedText(const PagedText&) = delete;
    PagedText& operator=(const PagedText&) = delete;

    /// At least 1, also for a text without a character.
    int PageCount() const;
    /// Paints page `number`, counted from 1, with its upper left corner at `corner`.
    void PaintPage(int number, QPainter& painter, const QPointF& corner) const;

private:
    std::unique_ptr<QTextDocument> text_;
    QSizeF page_;
    rtf::LetterShadows shadows_;
    rtf::ExtraLines lines_;
    LinesAbove linesAbove_;
    double scale_;
};

} // namespace torvik
