#include "sample/files/dialect_writer.h"

#include <algorithm>
#include <array>

namespace torvik::sample {

namespace {

/// The word for one side's line, where there is one.
QByteArray BorderWords(const Table& table, bool rowIsHeading, char side)
{
    const QByteArray name = QByteArray("\\clbrdr") + side;
    if (table.border == Border::Grid)
        return name + "\\brdrs\\brdrw10 ";
    if (table.border == Border::Rules && (side == 'b' || (side == 't' && rowIsHeading)))
        return name + (rowIsHeading ? "\\brdrs\\brdrw20 " : "\\brdrs\\brdrw5 ");
    return {};
}

} // namespace

DocumentColours::DocumentColours(const RichDocument& document, const std::vector<QColor>& standard)
    : colours_(standard)
{
    for (const Block& block : document.blocks) {
        if (const auto* paragraph = std::get_if<Paragraph>(&block)) {
            AddOf(*paragraph);
        } else if (const auto* table = std::get_if<Table>(&block)) {
            for (const Row& row : table->rows) {
                for (const Cell& cell : row.cells) {
                    Add(cell.shade);
                    for (const Paragraph& inside : cell.paragraphs)
                        AddOf(inside);
                }
            }
        }
    }
}

int DocumentColours::NumberOf(const QColor& colour) const
{
    const auto found = std::find(colours_.begin(), colours_.end(), colour);
    return !colour.isValid() || found == colours_.end() ? 0 : static_cast<int>(found - colours_.begin()) + 1;
}

void DocumentColours::Add(const QColor& colour)
{
    if (colour.isValid() && NumberOf(colour) == 0)
        colours_.push_back(colour);
}

void DocumentColours::AddOf(const Paragraph& paragraph)
{
    Add(paragraph.shade);
    for (const Run& run : paragraph.runs)
        Add(run.look.colour);
}

int NumberedListsIn(const RichDocument& document)
{
    int lists = 0;
    for (const Block& block : document.blocks) {
        const auto* paragraph = std::get_if<Paragraph>(&block);
        if (paragraph && paragraph->mark == Mark::Number && paragraph->number == 1)
            ++lists;
    }
    return lists;
}

int ByteOfWestern(QChar character)
{
    // The bytes 0x80 to 0x9F in their order; 0 where nothing is assigned.
    constexpr std::array<char16_t, 32> high = {
        0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
    const char16_t code = character.unicode();
    if (code < 0x80 || (code >= 0xA0 && code < 0x100))
        return code;
    const auto found = std::find(high.begin(), high.end(), code);
    return found == high.end() || code == 0 ? -1 : 0x80 + static_cast<int>(found - high.begin());
}

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
    constexpr const char* aligns[] = {"", "\\qr", "\\qc", "\\qj"};
    words += aligns[static_cast<std::size_t>(paragraph.align)];
    const std::pair<const char*, int> measures[] = {{"fi", paragraph.first},
                                                    {"li", paragraph.left},
                                                    {"ri", paragraph.right},
                                                    {"sb", paragraph.before},
                                                    {"sa", paragraph.after}};
    for (const auto& [name, value] : measures) {
        if (value != 0)
            words += Word(name, value);
    }
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
        constexpr const char* kinds[] = {"", "\\tqr", "\\tqc", "\\tqdec"};
        words += kinds[static_cast<std::size_t>(tab.kind)];
        words += Word("tx", tab.at);
    }
    return words;
}

QByteArray DialectWriter::Spelled(const QString& text) const
{
    QByteArray spelled;
    for (const QChar ch : text) {
        const int byte = ByteOfWestern(ch);
        if (const QByteArray word = WordFor(ch, byte); !word.isEmpty())
            spelled += word;
        else if (ch == u'\\' || ch == u'{' || ch == u'}')
            spelled += '\\' + QByteArray(1, static_cast<char>(byte));
        else if (byte >= 0x80)
            spelled += "\\'" + QByteArray::number(byte, 16);
        else
            spelled += static_cast<char>(byte);
    }
    return spelled;
}

QByteArray DialectWriter::CellShade(const Cell& cell) const
{
    return cell.shade.isValid() ? Word("clcbpat", colours_.NumberOf(cell.shade)) : QByteArray();
}

QByteArray DialectWriter::CellWords(const Table& table, const Row& row) const
{
    QByteArray words;
    int edge = table.left;
    std::size_t column = 0;
    for (const Cell& cell : row.cells) {
        const int before = edge;
        for (int i = 0; i < cell.span && column < table.widths.size(); ++i)
            edge += table.widths[column++];
        // One line stands in the middle, several from the top.
        words += cell.paragraphs.size() > 1 ? "\\clvertalt" : "\\clvertalc";
        for (const char side : {'t', 'l', 'b', 'r'})
            words += BorderWords(table, row.heading, side);
        words += CellShade(cell) + CellFlow(edge - before) + Word("cellx", edge);
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

QByteArray PictureExtent(const Drawing& drawing)
{
    return Word("picw", drawing.width * 2540 / 1440) + Word("pich", drawing.height * 2540 / 1440) +
           Word("picwgoal", drawing.width) + Word("pichgoal", drawing.height);
}

} // namespace torvik::sample
