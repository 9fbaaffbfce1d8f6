#pragma once

#include <QtGlobal>

namespace torvik::rtf {

/// The records of an enhanced metafile that are played, under their documented names.
enum class EmfRecord : quint32 {
    Header = 1,
    PolyBezier = 2,
    Polygon = 3,
    Polyline = 4,
    PolyBezierTo = 5,
    PolylineTo = 6,
    PolyPolyline = 7,
    PolyPolygon = 8,
    SetWindowExtEx = 9,
    SetWindowOrgEx = 10,
    SetViewportExtEx = 11,
    SetViewportOrgEx = 12,
    Eof = 14,
    SetPixelV = 15,
    SetMapMode = 17,
    SetBkMode = 18,
    SetPolyFillMode = 19,
    SetTextAlign = 22,
    SetTextColor = 24,
    SetBkColor = 25,
    MoveToEx = 27,
    IntersectClipRect = 30,
    SaveDc = 33,
    RestoreDc = 34,
    SetWorldTransform = 35,
    ModifyWorldTransform = 36,
    SelectObject = 37,
    CreatePen = 38,
    CreateBrushIndirect = 39,
    DeleteObject = 40,
    Ellipse = 42,
    Rectangle = 43,
    RoundRect = 44,
    Arc = 45,
    Chord = 46,
    Pie = 47,
    LineTo = 54,
    BeginPath = 59,
    EndPath = 60,
    CloseFigure = 61,
    FillPath = 62,
    StrokeAndFillPath = 63,
    StrokePath = 64,
    AbortPath = 68,
    ExtSelectClipRgn = 75,
    BitBlt = 76,
    StretchBlt = 77,
    MaskBlt = 78,
    SetDibitsToDevice = 80,
    StretchDibits = 81,
    ExtCreateFontIndirectW = 82,
    ExtTextOutA = 83,
    ExtTextOutW = 84,
    PolyBezier16 = 85,
    Polygon16 = 86,
    Polyline16 = 87,
    PolyBezierTo16 = 88,
    PolylineTo16 = 89,
    PolyPolyline16 = 90,
    PolyPolygon16 = 91,
    CreateMonoBrush = 93,
    CreateDibPatternBrushPt = 94,
    ExtCreatePen = 95,
    AlphaBlend = 114,
};

/// How the units of a drawing are mapped to its device.
enum class MapMode : quint32 {
    Text = 1,
    LoMetric = 2,
    HiMetric = 3,
    LoEnglish = 4,
    HiEnglish = 5,
    Twips = 6,
    Isotropic = 7,
    Anisotropic = 8,
};

/// What a record does to the world transform that holds so far.
enum class ModifyWorld : quint32 { Identity = 1, LeftMultiply = 2, RightMultiply = 3 };

/// How a region joins the clipping that holds so far.
enum class RegionMode : quint32 { And = 1, Copy = 5 };

} // namespace torvik::rtf
