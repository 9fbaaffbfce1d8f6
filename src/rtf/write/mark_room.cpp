#include "rtf/write/mark_room.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace torvik::rtf {

namespace {

// Widths in heights of the letters, those of wide fonts where more would get a mark off the page.
constexpr double narrowSpace = 0.25;
constexpr double wideSpace = 0.278;
constexpr double figure = 0.556;
constexpr double capital = 0.72;
/// A third of a line's height.
constexpr double bullet = 0.38;

double WidthOf(QChar sign)
{
    const bool isNarrow =
        sign == u'I' || sign == u'i' || sign == u'j' || sign == u'l' || !sign.isLetterOrNumber();
    if (isNarrow)
        return wideSpace;
    return sign.isUpper() ? capital : figure;
}

double WidthOf(const QString& number)
{
    return std::accumulate(number.begin(), number.end(), 0.0,
                           [](double width, QChar sign) { return width + WidthOf(sign); });
}

} // namespace

double RoomOfMark(const ListMark& mark, const ParagraphState& paragraph, double letterPoints)
{
    constexpr double twipsPerPoint = 20;
    constexpr double leastPoints = 1;
    const bool isFollowedByTab = mark.gap == QLatin1Char('\t');
    if (!isFollowedByTab)
        return 0;
    const int hanging = -paragraph.firstIndent;
    const int left = std::max(paragraph.leftIndent, leastMarkRoom);
    const int room = hanging > 0 ? std::min(hanging, left) : leastMarkRoom;
    return room / twipsPerPoint / std::max(letterPoints, leastPoints);
}

int SpacesAfterNumber(const QString& number, double room)
{
    constexpr int most = 100;
    const double left = room - WidthOf(number);
    // One space is there anyway.
    return std::clamp(static_cast<int>(std::floor(left / wideSpace)) - 1, 0, most);
}

int SpaceAfterBullet(double room)
{
    constexpr double usual = 100;
    constexpr double most = 4000; // that fonts can do
    return static_cast<int>(std::clamp((room - bullet) / narrowSpace * usual, usual, most));
}

} // namespace torvik::rtf
