#pragma once

#include "rtf/bitmap/byte_reader.h"
#include "rtf/metafile/gdi_canvas.h"
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
    bool PlayState(quint32 type, const ByteReader& in);
    bool PlayMapping(quint32 type, const ByteReader& in);
    bool PlayObject(quint32 type, const ByteReader& in);
    bool PlayShape(quint32 type, const ByteReader& in);
    bool PlayPoints(quint32 type, const ByteReader& in);
    bool PlayPath(quint32 type, const ByteReader& in);
    bool PlayBitmap(quint32 type, const ByteReader& in);
    void PlayManyPoints(const ByteReader& in, bool isShort, bool closes);
    void PlayText(const ByteReader& in, bool isWide);
    void SetMapMode(quint32 mode);
    void PlayClip(const ByteReader& in);
    void PutBitmap(const ByteReader& in, std::size_t placesAt, const QRect& source, const QRectF& target,
                   quint32 operation);

    GdiCanvas& canvas_;
    QSizeF unitsPerMillimetre_;
    GdiObjects objects_;
    bool scalesFreely_ = false;
};

} // namespace torvik::rtf
