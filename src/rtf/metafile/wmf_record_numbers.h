#pragma once

#include <QtGlobal>

namespace torvik::rtf {

/// The records of an older metafile that are played, under their documented names.
enum class WmfFunction : quint16 {
    EndOfFile = 0x0000,
    SaveDc = 0x001e,
    CreatePalette = 0x00f7,
    SetBkMode = 0x0102,
    SetPolyFillMode = 0x0106,
    RestoreDc = 0x0127,
    SelectClipRegion = 0x012c,
    SelectObject = 0x012d,
    SetTextAlign = 0x012e,
    DibCreatePatternBrush = 0x0142,
    DeleteObject = 0x01f0,
    CreatePatternBrush = 0x01f9,
    SetBkColor = 0x0201,
    SetTextColor = 0x0209,
    SetWindowOrg = 0x020b,
    SetWindowExt = 0x020c,
    OffsetWindowOrg = 0x020f,
    LineTo = 0x0213,
    MoveTo = 0x0214,
    CreatePenIndirect = 0x02fa,
    CreateFontIndirect = 0x02fb,
    CreateBrushIndirect = 0x02fc,
    Polygon = 0x0324,
    Polyline = 0x0325,
    ScaleWindowExt = 0x0410,
    IntersectClipRect = 0x0416,
    Ellipse = 0x0418,
    Rectangle = 0x041b,
    SetPixel = 0x041f,
    TextOut = 0x0521,
    PolyPolygon = 0x0538,
    RoundRect = 0x061c,
    PatBlt = 0x061d,
    CreateRegion = 0x06ff,
    Arc = 0x0817,
    Pie = 0x081a,
    Chord = 0x0830,
    BitBlt = 0x0922,
    DibBitBlt = 0x0940,
    ExtTextOut = 0x0a32,
    StretchBlt = 0x0b23,
    DibStretchBlt = 0x0b41,
    SetDibToDev = 0x0d33,
    StretchDib = 0x0f43,
};

} // namespace torvik::rtf
