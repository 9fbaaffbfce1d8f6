#pragma once

#include "rtf/model/list_mark.h"
#include "rtf/model/paragraph_state.h"

#include <QColor>
#include <QString>

#include <memory>
#include <vector>

namespace torvik::rtf {

/// A stretch of a paragraph's text in one format. A span with a picture covers one character.
struct Span {
    qsizetype length = 0;
    /// Number in the document's character formats.
    int format = 0;
    /// Number of a picture, from 1; 0 for text.
    int picture = 0;
};

/// A paragraph that is ready to be written.
struct Paragraph {
    QString text;
    std::vector<Span> spans;
    /// Number in the document's paragraph formats.
    int format = 0;
    /// The same for the case that a list draws the mark.
    int itemFormat = 0;
    /// Number of the character format of the paragraph's end, which gives an empty paragraph its height.
    int endFormat = 0;
    ListMark mark;
    /// Begins a page.
    bool breakBefore = false;
    /// The first of the footnotes.
    bool beginsNotes = false;

    void Append(const QString& piece, int characterFormat);
    void AppendPicture(int picture, int characterFormat);
    /// Widens the last span to the end of the text, or opens one: for text that was appended in place.
    void CoverTail(int characterFormat);
    bool IsEmpty() const { return text.isEmpty(); }
    /// Empties text and spans, and keeps their memory.
    void ClearText();

private:
    qsizetype covered_ = 0;
};

struct Table;
struct Box;

/// A paragraph, a table within a table, or a box.
struct Block {
    Block();
    explicit Block(Paragraph text);
    explicit Block(std::unique_ptr<Table> inner);
    explicit Block(std::unique_ptr<Box> inner);
    Block(Block&& other) noexcept;
    Block& operator=(Block&& other) noexcept;
    ~Block();

    Paragraph paragraph;
    std::unique_ptr<Table> table;
    std::unique_ptr<Box> box;
};

/// How a box that is drawn around text looks. Lengths are twips.
struct BoxStyle {
    /// 0 for as wide as the text around it.
    int width = 0;
    /// At least; 0 for as high as its text.
    int height = 0;
    /// From the left margin of the text.
    int left = 0;
    int lineWidth = 0;
    BorderLine line = BorderLine::None;
    QColor lineColor;
    QColor fill;
    int padding[SideCount] = {72, 144, 72, 144};
};

/// Text in a drawn object.
struct Box {
    BoxStyle style;
    std::vector<Block> blocks;
    /// Begins a page.
    bool breakBefore = false;
};

enum class Merge : quint8 { None, First, Continued };

/// How one cell of a row is drawn. Lengths are twips.
struct CellStyle {
    /// Its right edge, counted from the left margin of the text.
    int rightEdge = 0;
    Merge horizontal = Merge::None;
    Merge vertical = Merge::None;
    Border borders[SideCount];
    int background = 0;
    int shading = 0;
    int patternColor = 0;
    /// 0 top, 1 middle, 2 bottom.
    quint8 verticalAlignment = 0;
    /// Between edge and text on each side, -1 where the row decides.
    int padding[SideCount] = {-1, -1, -1, -1};
};

struct RowStyle {
    int leftEdge = 0;
    /// Half of the space between the texts of two cells.
    int gap = 0;
    Alignment alignment = Alignment::Start;
    bool isHeader = false;
    /// The first cell stands at the right.
    bool rightToLeft = false;
    /// At least so high; negative for exactly so high, 0 for as high as the text.
    int height = 0;
    /// Between the edges of cells and their texts, -1 where only the gap tells.
    int padding[SideCount] = {-1, -1, -1, -1};
    Border borders[SideCount];
    Border innerHorizontal;
    Border innerVertical;
    std::vector<CellStyle> cells;
};

struct Row {
    RowStyle style;
    std::vector<std::vector<Block>> cells;
};

struct Table {
    std::vector<Row> rows;
};

} // namespace torvik::rtf
