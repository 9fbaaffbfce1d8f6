#pragma once

class QPainter;
class QRectF;

namespace torvik {

/// The buttons of a media bar, in their order on it.
enum class MediaButton { Prev, Next, Play, Pause, Back, Step, Stop, Record, Eject };

inline constexpr int mediaButtonCount = 9;

/// Draws the symbol of a button in the middle of `area`, as large as suits it; faded and etched into the face
/// when it is not enabled. Upright and level edges are exact at any scale factor.
void DrawMediaSymbol(QPainter& painter, const QRectF& area, MediaButton button, bool enabled);

} // namespace torvik
