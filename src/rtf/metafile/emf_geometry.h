#pragma once

#include "rtf/bitmap/byte_reader.h"

#include <QPointF>
#include <QRectF>

namespace torvik::rtf {

/// A point of an enhanced metafile: x and y, 32 bits each.
inline QPointF EmfPoint(const ByteReader& in, std::size_t at)
{
    return {double(in.S32(at)), double(in.S32(at + 4))};
}

/// A rectangle of an enhanced metafile: two opposite corners.
inline QRectF EmfBox(const ByteReader& in, std::size_t at)
{
    return {EmfPoint(in, at), EmfPoint(in, at + 8)};
}

} // namespace torvik::rtf
