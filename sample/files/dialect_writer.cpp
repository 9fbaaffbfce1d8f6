#include "sample/files/dialect_writer.h"

namespace torvik::sample {

DialectWriter::DialectWriter(const RichDocument& document, const std::vector<QColor>& standardColours)
    : document_(document), colours_(document, standardColours)
{}

QByteArray DialectWriter::Write()
{
    WriteHead();
    for (const Block& block : document_.blocks) {
        if (const auto* paragraph = std::get_if<Paragraph>(&block))
            WriteParagraph(*paragraph, Stand::Body);
        else if (const auto* table = std::get_if<Table>(&block))
            WriteTable(*table);
        else
            WriteDrawing(std::get<Drawing>(block));
    }
    WriteTail();
    return out_;
}

void DialectWriter::WriteTable(const Table& table)
{
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
        const Row& row = table.rows[i];
        const bool last = i + 1 == table.rows.size();
        BeginRow(table, row, last);
        for (const Cell& cell : row.cells) {
            for (std::size_t k = 0; k < cell.paragraphs.size(); ++k)
                WriteParagraph(cell.paragraphs[k],
                               k + 1 == cell.paragraphs.size() ? Stand::LastInCell : Stand::Cell);
        }
        EndRow(table, row, last);
    }
}

void DialectWriter::WriteTail()
{
    out_ += "}\r\n";
}

QByteArray DialectWriter::ColourTable() const
{
    QByteArray table = "{\\colortbl;";
    for (const QColor& colour : colours_.All())
        table +=
            Word("red", colour.red()) + Word("green", colour.green()) + Word("blue", colour.blue()) + ';';
    return table + '}';
}

QByteArray DialectWriter::ParagraphWords(const Paragraph& paragraph) const
{
    QByteArray words;
    switch (paragraph.align) {
    case Align::Left:
        break;
    case Align::Right:
        words += "\\qr";
        break;
    case Align::Centre:
        words += "\\qc";
        break;
    case Align::Justified:
        words += "\\qj";
        break;
    }
    if (paragraph.first != 0)
        words += Word("fi", paragraph.first);
    if (paragraph.left != 0)
        words += Word("li", paragraph.left);
    if (paragraph.right != 0)
        words += Word("ri", paragraph.right);
    if (paragraph.before != 0)
        words += Word("sb", paragraph.before);
    if (paragraph.after != 0)
        words += Word("sa", paragraph.after);
    if (paragraph.ruleBelow)
        words += "\\brdrb\\brdrs\\brdrw15\\brsp40 ";
    if (paragraph.boxed) {
        for (const char* side : {"t", "l", "b", "r"})
            words += QByteArray("\\brdr") + side + "\\brdrs\\brdrw10\\brsp80 ";
    }
    if (paragraph.shade.isValid())
        words += Word("cbpat", colours_.NumberOf(paragraph.shade));
    for (const TabStop& tab : paragraph.tabs) {
        if (tab.dots)
            words += "\\tldot";
        if (tab.kind == TabStop::Kind::Right)
            words += "\\tqr";
        else if (tab.kind == TabStop::Kind::Centre)
            words += "\\tqc";
        else if (tab.kind == TabStop::Kind::Decimal)
            words += "\\tqdec";
        words += Word("tx", tab.at);
    }
    return words;
}

int DialectWriter::ListOf(const Paragraph& paragraph)
{
    if (paragraph.number == 1)
        ++numberedLists_;
    return numberedLists_;
}

QByteArray Word(const char* name, qint64 number)
{
    return QByteArray("\\") + name + QByteArray::number(number);
}

QByteArray HexLines(const QByteArray& bytes)
{
    constexpr int bytesInLine = 64;
    QByteArray lines;
    for (qsizetype i = 0; i < bytes.size(); i += bytesInLine)
        lines += "\r\n" + bytes.mid(i, bytesInLine).toHex();
    return lines;
}

std::vector<int> CellEdges(const Table& table, const Row& row)
{
    std::vector<int> edges;
    int at = table.left;
    std::size_t column = 0;
    for (const Cell& cell : row.cells) {
        for (int i = 0; i < cell.span && column < table.widths.size(); ++i)
            at += table.widths[column++];
        edges.push_back(at);
    }
    return edges;
}

QByteArray CellStand(const Cell& cell)
{
    return cell.paragraphs.size() > 1 ? "\\clvertalt" : "\\clvertalc";
}

QByteArray BorderWords(const Table& table, bool rowIsHeading, char side)
{
    const QByteArray name = QByteArray("\\clbrdr") + side;
    if (table.border == Border::Grid)
        return name + "\\brdrs\\brdrw10 ";
    if (table.border == Border::Rules && (side == 'b' || (side == 't' && rowIsHeading)))
        return name + (rowIsHeading ? "\\brdrs\\brdrw20 " : "\\brdrs\\brdrw5 ");
    return {};
}

} // namespace torvik::sample
