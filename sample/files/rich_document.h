#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QString>

#include <variant>
#include <vector>

namespace torvik::sample {

/// What an article is made of, before it is written as rich text. Lengths are twips, 1440 to the inch.

enum class Typeface { Roman, Sans, Mono, Symbol };
enum class Align { Left, Right, Centre, Justified };

/// How characters look.
struct Look {
    Typeface face = Typeface::Roman;
    int halfPoints = 22;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    int raise = 0;   ///< 1 above the line, -1 below it
    QColor colour{}; ///< invalid: the reader's own

    bool operator==(const Look&) const = default;
};

struct Run {
    QString text{};
    Look look;
    QString link{}; ///< an address, "#" and a bookmark, or empty
};

struct TabStop {
    enum class Kind { Left, Right, Centre, Decimal };
    int at = 0;
    Kind kind = Kind::Left;
    bool dots = false; ///< a row of dots leads to it
};

enum class Mark { None, Bullet, Number };

struct Paragraph {
    std::vector<Run> runs{};
    Align align = Align::Left;
    int left = 0;
    int first = 0; ///< of the first line, measured from `left`
    int right = 0;
    int before = 0;
    int after = 120;
    int heading = 0; ///< 1 or 2 for headings
    Mark mark = Mark::None;
    int number = 0; ///< what a numbered paragraph counts
    std::vector<TabStop> tabs{};
    bool ruleBelow = false;
    bool boxed = false;
    QColor shade{};     ///< behind the lines; invalid: none
    QString bookmark{}; ///< what links within the document call it; empty for none
};

struct Cell {
    std::vector<Paragraph> paragraphs{};
    QColor shade{}; ///< invalid: none
    int span = 1;   ///< columns
};

struct Row {
    std::vector<Cell> cells{};
    bool heading = false;
};

enum class Border { None, Grid, Rules };

struct Table {
    std::vector<int> widths{};
    std::vector<Row> rows{};
    Border border = Border::Grid;
    int left = 0;
};

/// A drawing of at most 16 colours, or a picture file.
struct Drawing {
    QImage image{};
    QByteArray
        png{}; ///< a file that is carried as it is, in place of `image`; only the styled dialect takes it
    int width = 0;
    int height = 0;
    Align align = Align::Centre;
};

using Block = std::variant<Paragraph, Table, Drawing>;

/// By which generation of word processors a document seems to be written.
enum class Dialect { Bare, Styled, Late };

struct RichDocument {
    QString title{};
    int written = 1998; ///< year that the document itself gives as its date
    Dialect dialect = Dialect::Styled;
    std::vector<Block> blocks{};
};

/// The document as rich text in its dialect. The same document gives the same bytes.
/// Throws std::runtime_error where a drawing cannot be encoded.
QByteArray WriteRichText(const RichDocument& document);

} // namespace torvik::sample
