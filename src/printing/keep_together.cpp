#include "printing/keep_together.h"

#include "printing/line_places.h"
#include "rtf/rtf_reader.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>
#include <QTextTable>

#include <vector>

namespace torvik {

namespace {

/// A paragraph of the body, or a table between such. A paragraph with a border is a table of one cell.
struct Piece {
    QTextBlock first;
    QTextBlock last;
    /// nullptr for a paragraph.
    QTextFrame* frame = nullptr;
};

/// The layout hides the empty paragraph that stands between two tables.
bool IsHidden(const Piece& piece)
{
    return piece.frame == nullptr && piece.first.length() == 1 &&
           !piece.first.blockFormat().hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth);
}

std::vector<Piece> PiecesOf(const QTextDocument& document)
{
    std::vector<Piece> pieces;
    const QTextFrame* body = document.rootFrame();
    for (auto at = body->begin(); !at.atEnd(); ++at) {
        if (QTextFrame* frame = at.currentFrame()) {
            if (pieces.size() > 1 && IsHidden(pieces.back()))
                pieces.pop_back();
            pieces.push_back(
                {frame->firstCursorPosition().block(), frame->lastCursorPosition().block(), frame});
        } else {
            pieces.push_back({at.currentBlock(), at.currentBlock()});
        }
    }
    return pieces;
}

double LowestLineOf(const Piece& piece)
{
    const auto* table = qobject_cast<const QTextTable*>(piece.frame);
    return table != nullptr ? LastLineOf(*table) : LastLineOf(piece.last);
}

double HeightOf(const Piece& piece)
{
    if (piece.frame != nullptr)
        return piece.frame->document()->documentLayout()->frameBoundingRect(piece.frame).height();
    const QTextLayout& layout = *piece.first.layout();
    double height = 0;
    for (int line = 0; line < layout.lineCount(); ++line)
        height += layout.lineAt(line).height();
    return height;
}

bool IsCut(const Piece& piece)
{
    const QTextDocument& document = *piece.first.document();
    return PageOf(FirstLineOf(piece.first), document) != PageOf(LowestLineOf(piece), document) &&
           HeightOf(piece) <= document.pageSize().height();
}

bool IsOneParagraphWide(const Piece& piece)
{
    const auto* table = qobject_cast<const QTextTable*>(piece.frame);
    return piece.frame == nullptr || (table != nullptr && table->rows() == 1 && table->columns() == 1);
}

bool IsKept(const Piece& piece)
{
    return piece.first.blockFormat().property(rtf::KeepTogetherProperty).toBool() &&
           IsOneParagraphWide(piece);
}

bool StaysWithNext(const Piece& piece)
{
    return piece.last.blockFormat().property(rtf::KeepWithNextProperty).toBool() && IsOneParagraphWide(piece);
}

bool BeginsPage(const Piece& piece)
{
    const QTextFormat::PageBreakFlags policy = piece.frame != nullptr
                                                   ? piece.frame->frameFormat().pageBreakPolicy()
                                                   : piece.first.blockFormat().pageBreakPolicy();
    return (policy & QTextFormat::PageBreak_AlwaysBefore) != 0;
}

void BeginPageWith(const Piece& piece)
{
    if (piece.frame != nullptr) {
        QTextFrameFormat format = piece.frame->frameFormat();
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        piece.frame->setFrameFormat(format);
    } else {
        QTextBlockFormat format;
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        QTextCursor(piece.first).mergeBlockFormat(format);
    }
}

using Pieces = std::vector<Piece>;

/// The first of the pieces that go over to the next page together with `last`; the end where they fill the
/// page from its top, so that nothing would be won.
Pieces::const_iterator FirstToMove(const Pieces& pieces, Pieces::const_iterator last)
{
    const QTextDocument& document = *last->first.document();
    const double page = PageOf(LowestLineOf(*last), document);
    auto first = last;
    while (first != pieces.begin() && StaysWithNext(*(first - 1)) &&
           PageOf(FirstLineOf((first - 1)->first), document) == page)
        --first;
    const bool isOnTop = first == pieces.begin() || PageOf(LowestLineOf(*(first - 1)), document) < page;
    return isOnTop || PageOf(FirstLineOf(first->first), document) != page ? pieces.end() : first;
}

void KeepWithNext(const Pieces& pieces, Pieces::const_iterator piece)
{
    const auto next = piece + 1;
    const QTextDocument& document = *piece->first.document();
    if (PageOf(FirstLineOf(next->first), document) == PageOf(LowestLineOf(*piece), document) ||
        BeginsPage(*next))
        return;
    const auto first = FirstToMove(pieces, piece);
    if (first != pieces.end())
        BeginPageWith(*first);
}

} // namespace

void KeepParagraphsTogether(QTextDocument& document)
{
    const Pieces pieces = PiecesOf(document);
    for (auto piece = pieces.begin(); piece != pieces.end(); ++piece) {
        const bool followsHeading = piece != pieces.begin() && StaysWithNext(*(piece - 1));
        if (IsKept(*piece) && IsCut(*piece)) {
            const auto first = followsHeading ? FirstToMove(pieces, piece - 1) : pieces.end();
            BeginPageWith(first != pieces.end() ? *first : *piece);
        }
        // Where this one begins is known now.
        if (followsHeading)
            KeepWithNext(pieces, piece - 1);
    }
}

} // namespace torvik
