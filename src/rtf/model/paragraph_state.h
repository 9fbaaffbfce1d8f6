#pragma once

#include "rtf/paint/line_properties.h"

#include <QList>
#include <QString>
#include <QTextOption>

#include <cstddef>

namespace torvik::rtf {

enum class Alignment : quint8 { Start, Left, Right, Center, Justify };
enum class BorderLine : quint8 {
    None,
    Solid,
    Thick,
    Double,
    /// A thin and a thick line.
    Unequal,
    Dotted,
    Dashed,
    DotDash,
    DotDotDash,
    Groove,
    Ridge,
    Inset,
    Outset
};

/// One edge of a paragraph or a cell; lengths are twips.
struct Border {
    BorderLine line = BorderLine::None;
    int width = 15;
    /// Between the edge and the text of a paragraph.
    int space = 0;
    int color = 0;

    bool operator==(const Border&) const = default;
    bool IsSet() const { return line != BorderLine::None && width > 0; }
};

enum Side { SideTop, SideLeft, SideBottom, SideRight, SideCount };

struct TabStop {
    /// Twips from the left margin of the text.
    int position = 0;
    QTextOption::TabType type = QTextOption::LeftTab;
    /// What fills the room before it.
    TabLeader leader = TabLeader::None;

    bool operator==(const TabStop&) const = default;
};

/// Bullets and numbers as the older word processors wrote them, paragraph by paragraph.
struct ParagraphNumbering {
    /// Skipped: the paragraph has no mark, and the numbers go on after it.
    enum class Kind : quint8 { None, Bullet, Number, Skipped };
    Kind kind = Kind::None;
    /// The number format, as lists number them: 0 decimal, 1 and 2 roman, 3 and 4 letters (upper case, lower
    /// case).
    quint8 format = 0;
    /// From 1 for the outermost; 0 for paragraphs without levels.
    quint8 level = 0;
    int start = 1;
    QString before;
    QString after;

    bool HasMark() const { return kind == Kind::Bullet || kind == Kind::Number; }
    bool operator==(const ParagraphNumbering&) const = default;
};

/// Where a paragraph of a frame stands. Lengths are twips.
struct FramePlace {
    bool isSet = false;
    /// The frame's left edge counts from the edge of the page and not from the text.
    bool fromPage = false;
    /// Left is where `left` tells.
    enum class Across : quint8 { Left, Center, Right };
    Across across = Across::Left;
    /// 0 for as wide as the text around it.
    int width = 0;
    int left = 0;
    /// Lines that a large initial letter is as tall as; 0 for any other text.
    int initialLines = 0;

    bool operator==(const FramePlace&) const = default;
};

/// What a paragraph looks like. Lengths are twips.
struct ParagraphState {
    Alignment alignment = Alignment::Start;
    int leftIndent = 0;
    int rightIndent = 0;
    int firstIndent = 0;
    int spaceBefore = 0;
    int spaceAfter = 0;
    /// 0 for single; with `lineMultiple` 240 is one line, else twips: at least, or exactly when negative.
    int lineSpacing = 0;
    bool lineMultiple = false;
    bool keepTogether = false;
    bool keepWithNext = false;
    bool breakBefore = false;
    bool rightToLeft = false;
    /// The bullet or number is drawn in front of the text by the list itself, so the first line is not
    /// indented.
    bool markOutside = false;
    int background = 0;
    int shading = 0;
    int patternColor = 0;
    Border borders[SideCount];
    /// The line between two paragraphs that share their borders.
    Border between;
    QList<TabStop> tabs;
    FramePlace frame;
    /// Number of the list that the paragraph belongs to, 0 for none, and its level from 0.
    int list = 0;
    int listLevel = 0;
    ParagraphNumbering numbering;
    /// Number of the style whose looks were taken on, 0 for none.
    int style = 0;
    /// How many tables the paragraph is nested in; 0 outside tables.
    int tableDepth = 0;

    bool operator==(const ParagraphState&) const = default;
    bool HasBorder() const;
    /// Borders on all sides, or nearly so.
    bool HasBox() const;
};

struct ParagraphStateHash {
    std::size_t operator()(const ParagraphState& state) const;
};

} // namespace torvik::rtf
