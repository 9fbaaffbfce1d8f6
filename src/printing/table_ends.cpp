#include "printing/table_ends.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>

#include <algorithm>
#include <cmath>

namespace torvik {

namespace {

/// What is left of the page that a table ends on, the device's pixels; 0 where it fills the page.
double RestBelow(QTextFrame* table, const QTextDocument& document)
{
    constexpr double rounding = 0.01;
    const double height = document.pageSize().height();
    const double bottom = document.documentLayout()->frameBoundingRect(table).bottom();
    return std::max(std::ceil((bottom - rounding) / height) * height - bottom, 0.0);
}

/// Without its break, which the full page makes for it.
void ContinueWith(const QTextBlock& block)
{
    QTextBlockFormat format = block.blockFormat();
    format.clearProperty(QTextFormat::PageBreakPolicy);
    QTextCursor(block).setBlockFormat(format);
}

void ContinueWith(QTextFrame* table)
{
    QTextFrameFormat format = table->frameFormat();
    format.clearProperty(QTextFormat::PageBreakPolicy);
    table->setFrameFormat(format);
}

void AddBelow(QTextFrame* table, double pixels)
{
    QTextFrameFormat format = table->frameFormat();
    format.setBottomMargin(format.bottomMargin() + pixels);
    table->setFrameFormat(format);
}

} // namespace

void FillPagesBelowTables(QTextDocument& document, double scale)
{
    // Qt counts pages in fractions of a 64th, and rounds them.
    const double hair = document.pageSize().height() / 128;
    const QList<QTextFrame*> tables = document.rootFrame()->childFrames();
    for (qsizetype number = 0; number < tables.size(); ++number) {
        QTextFrame* table = tables.at(number);
        const double rest = RestBelow(table, document);
        const QTextBlock below = document.findBlock(table->lastPosition() + 1);
        const bool isHidden = below.length() == 1;
        if (rest > hair || (isHidden && !below.next().isValid()))
            continue;
        const bool breaks = below.blockFormat().pageBreakPolicy() != QTextFormat::PageBreak_Auto;
        QTextFrame* next = tables.value(number + 1);
        if (breaks)
            ContinueWith(below);
        else if (isHidden && next != nullptr && below.next() == next->firstCursorPosition().block())
            ContinueWith(next);
        AddBelow(table, rest / scale);
    }
}

} // namespace torvik
