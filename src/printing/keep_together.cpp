#include "printing/keep_together.h"

#include "rtf/rtf_reader.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>
#include <QTextTable>

#include <cmath>

namespace torvik {

namespace {

bool IsCut(const QTextBlock& block)
{
    const double page = block.document()->pageSize().height();
    const double top = block.document()->documentLayout()->blockBoundingRect(block).top();
    const QTextLayout& layout = *block.layout();
    if (layout.lineCount() < 2)
        return false;
    double height = 0;
    for (int line = 0; line < layout.lineCount(); ++line)
        height += layout.lineAt(line).height();
    const double firstLine = top + layout.lineAt(0).y();
    const double lastLine = top + layout.lineAt(layout.lineCount() - 1).y();
    return height <= page && std::floor(firstLine / page) != std::floor(lastLine / page);
}

} // namespace

void KeepParagraphsTogether(QTextDocument& document)
{
    QTextBlockFormat onNewPage;
    onNewPage.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (!block.blockFormat().property(rtf::keepTogetherProperty).toBool())
            continue;
        QTextCursor cursor(block);
        if (cursor.currentTable() == nullptr && IsCut(block))
            cursor.mergeBlockFormat(onNewPage);
    }
}

} // namespace torvik
