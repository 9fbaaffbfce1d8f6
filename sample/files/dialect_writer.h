#pragma once

#include "sample/files/rich_document.h"

#include <QByteArray>
#include <QChar>

namespace torvik::sample {

/// The colours of a document in the order of its colour table. Number 0 is the reader's own colour.
class DocumentColours {
public:
    /// `standard` colours come first, whether used or not.
    DocumentColours(const RichDocument& document, const std::vector<QColor>& standard);

    /// Number of the colour in the table; 0 for an invalid one.
    int NumberOf(const QColor& colour) const;
    const std::vector<QColor>& All() const { return colours_; }

private:
    void Add(const QColor& colour);
    void AddOf(const Paragraph& paragraph);

    std::vector<QColor> colours_;
};

/// How many lists of numbered paragraphs a document has; each begins with the number 1.
int NumberedListsIn(const RichDocument& document);

/// The byte of a character in the Western code page, or -1 where it has none.
int ByteOfWestern(QChar character);

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
    virtual void WriteTail() { out_ += "}\r\n"; }
    /// What is written for a character that has a word of its own or no byte; empty for others.
    virtual QByteArray WordFor(QChar character, int byte) const = 0;
    virtual QByteArray CellShade(const Cell& cell) const;
    /// Words on the flow and width, in twips, of a cell.
    virtual QByteArray CellFlow(int) const { return {}; }

    QByteArray Spelled(const QString& text) const;
    /// Stand, borders, shade and right edge of the cells of a row.
    QByteArray CellWords(const Table& table, const Row& row) const;

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
/// The extent of a drawing as a metafile has it, and on the page.
QByteArray PictureExtent(const Drawing& drawing);

} // namespace torvik::sample
