#include "printing/paged_text.h"

#include "printing/keep_together.h"
#include "printing/picture_fitting.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QScreen>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <cmath>
#include <vector>

namespace torvik {

namespace {

/// A font in pixels is measured for the screen; on paper it would shrink to a speck. Nobody sees hinting
/// there, and it takes time for every letter.
QFont FontForPaper(QFont font)
{
    constexpr double pointsPerPixel = 72.0 / 96.0;
    font.setHintingPreference(QFont::PreferNoHinting);
    if (font.pixelSize() > 0)
        font.setPointSizeF(font.pixelSize() * pointsPerPixel);
    return font;
}

/// The layout brings all lengths from the screen's resolution to the device's, but leaves these three as they
/// are.
void ScaleIndents(QTextDocument& text, double scale)
{
    QTextCursor cursor(&text);
    cursor.beginEditBlock();
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        const QTextBlockFormat format = block.blockFormat();
        QTextBlockFormat scaled;
        scaled.setLeftMargin(format.leftMargin() * scale);
        scaled.setRightMargin(format.rightMargin() * scale);
        scaled.setTextIndent(format.textIndent() * scale);
        cursor.setPosition(block.position());
        cursor.mergeBlockFormat(scaled);
    }
    cursor.endEditBlock();
}

/// The layout takes the space between letters for pixels of the device.
void ScaleLetterSpacing(QTextDocument& text, double scale)
{
    const QList<QTextFormat> formats = text.allFormats();
    const bool isSpaced = std::any_of(formats.begin(), formats.end(), [](const QTextFormat& format) {
        return format.hasProperty(QTextFormat::FontLetterSpacing);
    });
    if (!isSpaced)
        return;
    struct Stretch {
        int begin;
        int end;
        double spacing;
    };
    std::vector<Stretch> stretches;
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment piece = part.fragment();
            const double spacing = piece.charFormat().fontLetterSpacing();
            if (piece.charFormat().hasProperty(QTextFormat::FontLetterSpacing))
                stretches.push_back({piece.position(), piece.position() + piece.length(), spacing * scale});
        }
    }
    QTextCursor cursor(&text);
    cursor.beginEditBlock();
    for (const Stretch& stretch : stretches) {
        QTextCharFormat format;
        format.setFontLetterSpacing(stretch.spacing);
        cursor.setPosition(stretch.begin);
        cursor.setPosition(stretch.end, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(format);
    }
    cursor.endEditBlock();
}

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
    text_->setDefaultFont(FontForPaper(text.defaultFont()));
    text_->setDocumentMargin(0);
    ScaleIndents(*text_, scale_);
    ScaleLetterSpacing(*text_, scale_);
    text_->documentLayout()->setPaintDevice(&device);
    text_->setPageSize(page_);
    text_->setLayoutEnabled(true);
    FitPicturesToPages(*text_, scale_);
    KeepParagraphsTogether(*text_);
    FitPicturesToPages(*text_, scale_); // what moved may have brought a picture to a page's end
    lines_ = rtf::ExtraLines(*text_);
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
    text_->documentLayout()->draw(&painter, context);
    lines_.Paint(painter, context.clip, Qt::black, scale_);
    painter.restore();
}

} // namespace torvik
