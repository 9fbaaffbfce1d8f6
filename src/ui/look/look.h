#pragma once

#include <QColor>
#include <QRectF>

class QFont;
class QPainter;
class QString;

namespace torvik {

/// The one palette of the program: warm grey stone with light from the upper left. Every text stands out from
/// what it is drawn on by a contrast of 4.5 to 1 or more, a faded one too.
namespace look {
inline constexpr QColor face{0xd4, 0xd0, 0xc8};
inline constexpr QColor light{0xff, 0xff, 0xff};
inline constexpr QColor halfLight{0xec, 0xe9, 0xe2};
inline constexpr QColor shadow{0x8c, 0x88, 0x80};
inline constexpr QColor darkShadow{0x4a, 0x47, 0x42};
inline constexpr QColor text{0x1a, 0x18, 0x16};
inline constexpr QColor faded{0x58, 0x54, 0x4d};
inline constexpr QColor accent{0x8e, 0x1b, 0x1f}; // the red of the script lettering
inline constexpr QColor accentText{0xff, 0xff, 0xff};
inline constexpr QColor paper{0xff, 0xff, 0xff};
inline constexpr QColor mark{0xff, 0xe9, 0x9a};        // a found word among others
inline constexpr QColor presentMark{0xf2, 0x9b, 0x1d}; // the one that the reader is at
inline constexpr QColor tip{0xff, 0xfb, 0xe6};

inline constexpr int bevelDepth = 2;      ///< thin lines of the bevel of a button or panel
inline constexpr int panelTitleSize = 20; ///< pixels, the heading of a work panel
} // namespace look

enum class Bevel {
    None,
    Raised, ///< stands out of the face
    Sunken, ///< lies below the face
    Frame,  ///< a line etched into the face
};

/// Gives the application its style, palette and fonts, whatever the desktop's own are.
void ApplyLook();

/// `area` with its edges moved to the device's nearest pixels, so that what ends there is sharp at any scale
/// factor.
QRectF Snapped(const QPainter& painter, const QRectF& area);
/// The width of a thin line: a whole number of the device's pixels, and about one pixel.
double ThinLine(const QPainter& painter);

/// Draws a bevel of `depth` thin lines just inside `area`; every line is exact at any scale factor.
void DrawBevel(QPainter& painter, const QRectF& area, Bevel bevel, int depth);
/// Draws one thin line around, just inside `area`.
void DrawOutline(QPainter& painter, const QRectF& area, const QColor& colour);
/// Draws the dotted line that shows where the keyboard works, just inside `area`.
void DrawFocus(QPainter& painter, const QRectF& area, const QColor& colour = look::text);
/// Draws a solid triangle in the middle of `area` that points up (0), right (90), down (180) or left (270
/// degrees).
void DrawArrow(QPainter& painter, const QRectF& area, int degrees, bool enabled,
               const QColor& colour = look::text);

/// Draws a caption in `area`, aligned by `flags` (Qt::AlignmentFlag and Qt::TextFlag) and on as many lines as
/// it has, smaller where it would not fit; faded and etched into the face when it is not enabled.
void DrawCaption(QPainter& painter, const QRectF& area, const QString& caption, int flags, bool enabled,
                 const QColor& colour = look::text);

} // namespace torvik
