#pragma once

#include <QColor>
#include <QRectF>

class QApplication;
class QFont;
class QPainter;
class QString;

namespace torvik {

/// The one palette of the program: warm grey stone with light from the upper left.
namespace look {
inline constexpr QColor face{0xd4, 0xd0, 0xc8};
inline constexpr QColor light{0xff, 0xff, 0xff};
inline constexpr QColor halfLight{0xec, 0xe9, 0xe2};
inline constexpr QColor shadow{0x8c, 0x88, 0x80};
inline constexpr QColor darkShadow{0x4a, 0x47, 0x42};
inline constexpr QColor text{0x1a, 0x18, 0x16};
inline constexpr QColor faded{0x86, 0x82, 0x7a};
inline constexpr QColor accent{0x8e, 0x1b, 0x1f}; // the red of the script lettering
inline constexpr QColor accentText{0xff, 0xff, 0xff};
inline constexpr QColor paper{0xff, 0xff, 0xff};
} // namespace look

enum class Bevel { None, Raised, Sunken, Frame };

/// Gives the application its style, palette and fonts, whatever the desktop's own are.
void ApplyLook(QApplication& application);

/// Draws a bevel of `depth` pixels just inside `area`; every line is exact at any scale factor.
void DrawBevel(QPainter& painter, const QRectF& area, Bevel bevel, int depth);

/// Draws a caption in `area`, centred and on as many lines as it has, smaller where it would not fit;
/// etched into the face when it is not enabled.
void DrawCaption(QPainter& painter, const QRectF& area, const QString& caption, int alignment, bool enabled,
                 const QColor& colour = look::text);

} // namespace torvik
