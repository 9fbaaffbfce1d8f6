#pragma once

#include "rtf/model/list_mark.h"
#include "rtf/model/paragraph_state.h"

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
    bool breakBefore = false;

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

/// A paragraph, or a table within a table.
struct Block {
    Paragraph paragraph;
    std::unique_ptr<Table> table;
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
};

struct RowStyle {
    int leftEdge = 0;
    /// Half of the space between the texts of two cells.
    int gap = 0;
    Alignment alignment = Alignment::Start;
    bool isHeader = false;
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
