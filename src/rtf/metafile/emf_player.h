#pragma once

#include "rtf/bitmap/byte_reader.h"
#include "rtf/metafile/emf_record_numbers.h"
#include "rtf/metafile/gdi_canvas.h"
#include "rtf/metafile/gdi_numbers.h"
#include "rtf/metafile/gdi_objects.h"

#include <string_view>

namespace torvik::rtf {

/// Plays the records of an enhanced metafile onto a canvas. Records that it does not know change nothing.
class EmfPlayer {
public:
    /// `unitsPerMillimetre` are those of the device that the metafile was made for.
    EmfPlayer(GdiCanvas& canvas, const QSizeF& unitsPerMillimetre)
        : canvas_(canvas), unitsPerMillimetre_(unitsPerMillimetre)
    {}
    /// `bytes` is the whole file, header included.
    void Play(std::string_view bytes);

private:
    enum class PointSize { Short, Long };

    bool PlayState(EmfRecord type, const ByteReader& in);
    bool PlayMapping(EmfRecord type, const ByteReader& in);
    bool PlayObject(EmfRecord type, const ByteReader& in);
    bool PlayShape(EmfRecord type, const ByteReader& in);
    bool PlayPoints(EmfRecord type, const ByteReader& in);
    bool PlayPath(EmfRecord type);
    bool PlayBitmap(EmfRecord type, const ByteReader& in);
    void PlayManyPoints(const ByteReader& in, PointSize size, bool closes);
    void PlayText(const ByteReader& in, bool isWide);
    void ModifyWorldTransform(const ByteReader& in);
    void SetMapMode(MapMode mode);
    void SetUnits(double perMillimetre);
    void PlayClip(const ByteReader& in);
    void PutPattern(const ByteReader& in, bool takesColors);
    void PutMaskedBitmap(const ByteReader& in);
    void PutBitmap(const ByteReader& in, std::size_t placesAt, const QRect& source, const QRectF& target,
                   RasterOperation operation);

    GdiCanvas& canvas_;
    QSizeF unitsPerMillimetre_;
    GdiObjects objects_;
};

} // namespace torvik::rtf
