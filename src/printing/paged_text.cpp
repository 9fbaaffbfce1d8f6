#include "printing/paged_text.h"

#include "printing/keep_together.h"
#include "printing/paper_formats.h"
#include "printing/picture_fitting.h"
#include "printing/table_ends.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QScreen>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

namespace torvik {

namespace {

double ScreenResolution()
{
    constexpr double usual = 96; // pixels to the inch
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? std::round(screen->logicalDotsPerInchY()) : usual;
}

} // namespace

PagedText::PagedText(const QTextDocument& text, QPaintDevice& device, const QSizeF& page)
    : text_(text.clone()), page_(page), scale_(device.logicalDpiY() / ScreenResolution())
{
    text_->setLayoutEnabled(false); // until device and page are known: it would be laid out for each of them
    text_->setUndoRedoEnabled(false);
    text_->setDocumentMargin(0);
    BringFormatsToPaper(*text_, scale_);
    text_->documentLayout()->setPaintDevice(&device);
    text_->setPageSize(page_);
    text_->setLayoutEnabled(true);
    FitPicturesToPages(*text_, scale_);
    KeepParagraphsTogether(*text_);
    FitPicturesToPages(*text_, scale_); // what moved may have brought a picture to a page's end
    FillPagesBelowTables(*text_, scale_);
    shadows_ = rtf::LetterShadows(*text_);
    lines_ = rtf::ExtraLines(*text_);
    linesAbove_ = LinesAbove(*text_);
}

PagedText::~PagedText() = default;

int PagedText::PageCount() const
{
    return std::max(1, text_->pageCount());
}

void PagedText::PaintPage(int number, QPainter& painter, const QPointF& corner) const
{
    const double top = (number - 1) * page_.height();
    const QRectF page(QPointF(0, top), page_);
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = page.adjusted(0, 1, 0, -1); // else a line that only touches the page's edge is painted too
    context.palette.setColor(QPalette::Text, Qt::black);
    painter.save();
    painter.translate(corner.x(), corner.y() - top);
    const double line = scale_ * 2; // a table as wide as the page has half of its border outside
    painter.setClipRect(page.adjusted(-line, 0, line, 0));
    shadows_.Paint(painter, context.clip, scale_);
    linesAbove_.PaintWithout(number - 1, [&] { text_->documentLayout()->draw(&painter, context); });
    lines_.Paint(painter, context.clip, Qt::black, scale_);
    painter.restore();
}

} // namespace torvik
