#include "printing/line_places.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>
#include <QTextTable>

#include <algorithm>
#include <cmath>

namespace torvik {

double TopOf(const QTextBlock& block)
{
    return block.document()->documentLayout()->blockBoundingRect(block).top();
}

double FirstLineOf(const QTextBlock& block)
{
    const double top = TopOf(block);
    const QTextLayout& layout = *block.layout();
    return top + (layout.lineCount() > 0 ? layout.lineAt(0).y() : 0);
}

double LastLineOf(const QTextBlock& block)
{
    const double top = TopOf(block);
    const QTextLayout& layout = *block.layout();
    const int lines = layout.lineCount();
    return top + (lines > 0 ? layout.lineAt(lines - 1).y() : 0);
}

double LastLineOf(const QTextTable& table)
{
    double last = 0;
    for (int column = 0; column < table.columns(); ++column) {
        const QTextTableCell cell = table.cellAt(table.rows() - 1, column);
        last = std::max(last, LastLineOf(cell.lastCursorPosition().block()));
    }
    return last;
}

double PageOf(double place, const QTextDocument& document)
{
    constexpr double rounding = 0.01;
    return std::floor((place + rounding) / document.pageSize().height());
}

} // namespace torvik
