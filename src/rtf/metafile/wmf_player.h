#pragma once

#include "rtf/bitmap/byte_reader.h"
#include "rtf/metafile/gdi_canvas.h"
#include "rtf/metafile/gdi_objects.h"
#include "rtf/metafile/wmf_record_numbers.h"

#include <string_view>

namespace torvik::rtf {

struct WmfRecord {
    WmfFunction function = WmfFunction::EndOfFile;
    std::string_view parameters;
};

/// Walks along the records; stops at the end mark, at the end of the bytes and at a record of no size.
class WmfRecords {
public:
    explicit WmfRecords(std::string_view bytes) : in_(bytes) {}
    bool Next(WmfRecord& record);

private:
    ByteReader in_;
    std::size_t at_ = 0;
};

/// Plays the records of a metafile of the older kind onto a canvas. Records that it does not know change
/// nothing.
class WmfPlayer {
public:
    explicit WmfPlayer(GdiCanvas& canvas) : canvas_(canvas) {}
    void Play(std::string_view records);

private:
    void Play(const WmfRecord& record);
    bool PlayState(WmfFunction function, const ByteReader& in);
    bool PlayWindow(WmfFunction function, const ByteReader& in);
    bool PlayObject(WmfFunction function, const ByteReader& in);
    bool PlayShape(WmfFunction function, const ByteReader& in);
    bool PlayBitmap(WmfFunction function, const ByteReader& in);
    void PlayPolyPolygon(const ByteReader& in);
    void PlayText(const ByteReader& in);
    void PlayExtendedText(const ByteReader& in);
    void PutText(const QPointF& at, std::string_view bytes, std::vector<double> advances);
    void AddPattern(WmfFunction function, const ByteReader& in);
    /// What the records of bitmaps do that bring none: they fill with the brush, black or white.
    void FillBlock(const ByteReader& in, bool scales);
    void PlayDib(const ByteReader& in, std::size_t sizesAt, std::size_t dibAt, bool scales);
    void PlayDeviceBitmap(const ByteReader& in, std::size_t sizesAt, std::size_t bitmapAt, bool scales);

    GdiCanvas& canvas_;
    GdiObjects objects_;
};

} // namespace torvik::rtf
