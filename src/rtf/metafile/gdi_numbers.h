#pragma once

#include <QtGlobal>

namespace torvik::rtf {

// Numbers that both kinds of metafile write, under their documented names.

/// How pixels are combined with those below them.
enum class RasterOperation : quint32 {
    Blackness = 0x000042,
    NotSourceCopy = 0x330008,
    SourceInvert = 0x660046,
    SourceAnd = 0x8800c6,
    MergePaint = 0xbb0226,
    SourceCopy = 0xcc0020,
    SourcePaint = 0xee0086,
    PatternCopy = 0xf00021,
    Whiteness = 0xff0062,
};

/// What is drawn between the letters of a text and the strokes of a hatch.
enum class BackgroundMode : quint32 { Transparent = 1, Opaque = 2 };

/// What counts as the inside of a polygon that crosses itself.
enum class PolyFillMode : quint32 { Alternate = 1, Winding = 2 };

/// Flags of a text that is written with options: the box behind it is filled, the text is cut at the box,
/// each character tells how far down the next one stands as well.
enum TextOption : quint32 { TextOptionOpaque = 2, TextOptionClipped = 4, TextOptionStepsDown = 0x2000 };

/// The objects that exist without being made.
enum class StockObject : quint32 {
    WhiteBrush = 0,
    LightGrayBrush = 1,
    GrayBrush = 2,
    DarkGrayBrush = 3,
    BlackBrush = 4,
    NullBrush = 5,
    WhitePen = 6,
    BlackPen = 7,
    NullPen = 8,
    OemFixedFont = 10,
    AnsiFixedFont = 11,
    AnsiVarFont = 12,
    SystemFont = 13,
    DeviceDefaultFont = 14,
    SystemFixedFont = 16,
    DefaultGuiFont = 17,
};

} // namespace torvik::rtf
