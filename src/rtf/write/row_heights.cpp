#include "rtf/write/row_heights.h"

#include "rtf/paint/format_properties.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <algorithm>
#include <vector>

namespace torvik::rtf {

namespace {

struct Missing {
    QTextTableCell cell;
    double pixels = 0;
};

/// The height of what is in a cell, with its room above and below.
double HeightOf(const QTextTableCell& cell, const QTextDocument& document)
{
    QRectF room;
    const auto& layout = *document.documentLayout();
    for (auto part = cell.begin(); !part.atEnd(); ++part) {
        if (part.currentFrame() != nullptr)
            room = room.united(layout.frameBoundingRect(part.currentFrame()));
        else
            room = room.united(layout.blockBoundingRect(part.currentBlock()));
    }
    const QTextTableCellFormat format = cell.format().toTableCellFormat();
    return room.height() + format.topPadding() + format.bottomPadding() + format.topBorder();
}

void Measure(const QTextTable& table, std::vector<Missing>& missing)
{
    for (int row = 0; row < table.rows(); ++row) {
        double wanted = 0;
        int highest = 0;
        double height = -1;
        for (int column = 0; column < table.columns(); ++column) {
            const QTextTableCell cell = table.cellAt(row, column);
            if (cell.row() != row || cell.rowSpan() != 1)
                continue;
            wanted = std::max(wanted, cell.format().doubleProperty(RowHeightProperty));
            if (wanted <= 0)
                break;
            const double here = HeightOf(cell, *table.document());
            if (here > height) {
                height = here;
                highest = column;
            }
            column += cell.columnSpan() - 1;
        }
        if (height >= 0 && wanted - height >= 0.5)
            missing.push_back({table.cellAt(row, highest), wanted - height});
    }
}

/// Tables from the innermost out.
void Collect(const QTextFrame& frame, int depth, std::vector<std::vector<QTextTable*>>& levels)
{
    for (QTextFrame* child : frame.childFrames()) {
        if (levels.size() <= std::size_t(depth))
            levels.emplace_back();
        if (auto* table = qobject_cast<QTextTable*>(child))
            levels[std::size_t(depth)].push_back(table);
        Collect(*child, depth + 1, levels);
    }
}

void Raise(Missing& row)
{
    QTextTableCellFormat format = row.cell.format().toTableCellFormat();
    const auto alignment = format.verticalAlignment();
    double above = 0;
    if (alignment == QTextCharFormat::AlignMiddle)
        above = row.pixels / 2;
    else if (alignment == QTextCharFormat::AlignBottom)
        above = row.pixels;
    format.setTopPadding(format.topPadding() + above);
    format.setBottomPadding(format.bottomPadding() + row.pixels - above);
    row.cell.setFormat(format);
}

void RaiseRows(const std::vector<QTextTable*>& tables, QTextDocument& document)
{
    std::vector<Missing> missing;
    for (const QTextTable* table : tables)
        Measure(*table, missing);
    if (missing.empty())
        return;
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    for (Missing& row : missing)
        Raise(row);
    cursor.endEditBlock();
}

} // namespace

void SetRowHeights(QTextDocument& document)
{
    std::vector<std::vector<QTextTable*>> levels;
    Collect(*document.rootFrame(), 0, levels);
    std::for_each(levels.rbegin(), levels.rend(),
                  [&document](const std::vector<QTextTable*>& level) { RaiseRows(level, document); });
}

} // namespace torvik::rtf
