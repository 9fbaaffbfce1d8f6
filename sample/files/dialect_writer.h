#pragma once

#include "sample/files/document_tables.h"
#include "sample/files/rich_document.h"

#include <QByteArray>

namespace torvik::sample {

/// Walks through a document and writes its blocks; how each is spelled is the dialect's affair.
class DialectWriter {
public:
    DialectWriter(const RichDocument& document, const std::vector<QColor>& standardColours);
    virtual ~DialectWriter() = default;
    DialectWriter(const DialectWriter&) = delete;
    DialectWriter& operator=(const DialectWriter&) = delete;

    /// The whole document, from the first brace to the last.
    QByteArray Write();

protected:
    /// How a paragraph stands: in the running text, or in a cell, of which it may be the last.
    enum class Stand { Body, Cell, LastInCell };

    virtual void WriteHead() = 0;
    virtual void WriteParagraph(const Paragraph& paragraph, Stand stand) = 0;
    virtual void BeginRow(const Table& table, const Row& row, bool last) = 0;
    virtual void EndRow(const Table& table, const Row& row, bool last) = 0;
    virtual void WriteDrawing(const Drawing& drawing) = 0;
    virtual void WriteTail();

    const RichDocument& Document() const { return document_; }
    const DocumentColours& Colours() const { return colours_; }
    QByteArray ColourTable() const;
    /// Alignment, indents, spaces, tab stops, borders and shade of a paragraph.
    QByteArray ParagraphWords(const Paragraph& paragraph) const;
    /// Which numbered list the paragraph belongs to, from 1; call it once for each paragraph.
    int ListOf(const Paragraph& paragraph);

    QByteArray out_;

private:
    void WriteTable(const Table& table);

    const RichDocument& document_;
    DocumentColours colours_;
    int numberedLists_ = 0;
};

/// A word with its number: "\fs" and 20 make "\fs20".
QByteArray Word(const char* name, qint64 number);
/// Bytes as hexadecimal digits in lines of 128.
QByteArray HexLines(const QByteArray& bytes);
/// The right edges of the cells of a row, in twips.
std::vector<int> CellEdges(const Table& table, const Row& row);
/// Where the text of a cell stands: one line in the middle, several from the top.
QByteArray CellStand(const Cell& cell);
/// One word for a border's line, where there is one.
QByteArray BorderWords(const Table& table, bool rowIsHeading, char side);

} // namespace torvik::sample
