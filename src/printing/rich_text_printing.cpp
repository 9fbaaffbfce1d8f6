#include "printing/rich_text_printing.h"

#include "printing/paged_text.h"
#include "runtime/failure.h"
#include "ui/controls/rich_text_box.h"
#include "ui/printer/printer.h"

#include <QPainter>
#include <QRectF>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

const QString blank = u" "_s;

/// The room between margins that count from the edges of the paper, in the printer's pixels from the corner
/// of the printable area.
QRectF RoomBetween(double left, double top, double right, double bottom)
{
    const double twips = Printer.TwipsToPixel();
    const double leftOffset = Printer.PhysicalOffsetX() * twips;
    const double topOffset = Printer.PhysicalOffsetY() * twips;
    const QPointF upperLeft(left - leftOffset, top - topOffset);
    const QPointF lowerRight((Printer.Width() - right) - leftOffset, (Printer.Height() - bottom) - topOffset);
    if (lowerRight.x() <= upperLeft.x() || lowerRight.y() <= upperLeft.y())
        Fail(failure::invalidCall);
    return {upperLeft / twips, lowerRight / twips};
}

} // namespace

void PrintRichText(const RichTextBox& control, std::int32_t left, std::int32_t top, std::int32_t right,
                   std::int32_t bottom)
{
    Printer.Print(blank); // opens the job, so that there is a page to measure
    const QRectF room = RoomBetween(left, top, right, bottom);
    const PagedText text(control.Document(), *Printer.Painter().device(), room.size());
    for (int page = 1;; ++page) {
        text.PaintPage(page, Printer.Painter(), room.topLeft());
        if (page >= text.PageCount())
            break;
        Printer.NewPage();
        Printer.Print(blank);
    }
    Printer.EndDoc();
}

} // namespace torvik
