#include "ui/printer/glyph_outlines.h"

#include <QByteArrayView>
#include <QtEndian>

#include <vector>

namespace torvik {

namespace {

constexpr qsizetype headerSize = 10; // contours, and the four edges

/// Flags of a part that an outline is composed of.
namespace part {
constexpr quint16 wideNumbers = 0x0001;
constexpr quint16 oneScale = 0x0008;
constexpr quint16 moreParts = 0x0020;
constexpr quint16 twoScales = 0x0040;
constexpr quint16 matrix = 0x0080;
constexpr quint16 program = 0x0100;
} // namespace part

quint16 NumberAt(QByteArrayView bytes, qsizetype at)
{
    return qFromBigEndian<quint16>(bytes.data() + at);
}

/// Contours, program, points: the program goes.
std::optional<QByteArray> DrawnOutline(QByteArrayView glyph, qsizetype contours)
{
    const qsizetype programSize = headerSize + 2 * contours;
    if (glyph.size() < programSize + 2)
        return std::nullopt;
    const qsizetype points = programSize + 2 + NumberAt(glyph, programSize);
    if (glyph.size() < points)
        return std::nullopt;
    return glyph.first(programSize).toByteArray() + QByteArray(2, '\0') + glyph.sliced(points).toByteArray();
}

/// Parts, each of which tells whether a program follows the last: it goes.
std::optional<QByteArray> ComposedOutline(QByteArrayView glyph)
{
    QByteArray outline = glyph.toByteArray();
    for (qsizetype at = headerSize; at + 4 <= glyph.size();) {
        const quint16 flags = NumberAt(glyph, at);
        qToBigEndian<quint16>(flags & static_cast<quint16>(~part::program), outline.data() + at);
        at += 4 + ((flags & part::wideNumbers) != 0 ? 4 : 2);
        if ((flags & part::oneScale) != 0)
            at += 2;
        else if ((flags & part::twoScales) != 0)
            at += 4;
        else if ((flags & part::matrix) != 0)
            at += 8;
        if (at > glyph.size())
            return std::nullopt;
        if ((flags & part::moreParts) == 0) {
            outline.truncate(at);
            return outline;
        }
    }
    return std::nullopt;
}

std::optional<QByteArray> WithoutProgram(QByteArrayView glyph)
{
    if (glyph.isEmpty())
        return QByteArray();
    if (glyph.size() < headerSize)
        return std::nullopt;
    const auto contours = static_cast<qint16>(NumberAt(glyph, 0));
    if (contours == 0)
        return QByteArray();
    return contours > 0 ? DrawnOutline(glyph, contours) : ComposedOutline(glyph);
}

std::vector<quint32> PlacesIn(const QByteArray& loca, bool isLong)
{
    std::vector<quint32> places;
    const qsizetype width = isLong ? 4 : 2;
    for (qsizetype at = 0; at + width <= loca.size(); at += width) {
        const char* place = loca.data() + at;
        places.push_back(isLong ? qFromBigEndian<quint32>(place) : 2U * qFromBigEndian<quint16>(place));
    }
    return places;
}

void AppendPlace(QByteArray& loca, qsizetype place)
{
    const auto bytes = qToBigEndian(static_cast<quint32>(place));
    loca.append(reinterpret_cast<const char*>(&bytes), sizeof bytes);
}

} // namespace

std::optional<GlyphOutlines> OutlinesWithoutPrograms(const QByteArray& glyf, const QByteArray& loca,
                                                     bool isLong)
{
    const std::vector<quint32> places = PlacesIn(loca, isLong);
    GlyphOutlines outlines;
    outlines.glyf.reserve(glyf.size());
    AppendPlace(outlines.loca, 0);
    for (std::size_t glyph = 1; glyph < places.size(); ++glyph) {
        const qsizetype begin = places[glyph - 1];
        const qsizetype end = places[glyph];
        if (begin > end || end > glyf.size())
            return std::nullopt;
        const auto outline = WithoutProgram(QByteArrayView(glyf).sliced(begin, end - begin));
        if (!outline)
            return std::nullopt;
        outlines.glyf += *outline;
        outlines.glyf.append((4 - outlines.glyf.size() % 4) % 4, '\0');
        AppendPlace(outlines.loca, outlines.glyf.size());
    }
    return outlines;
}

} // namespace torvik
