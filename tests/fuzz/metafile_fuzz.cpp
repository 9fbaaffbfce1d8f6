// Feeds any bytes to the players of metafiles and to the decoder of bitmaps.

#include "rtf/bitmap/dib.h"
#include "rtf/metafile/metafile.h"

#include <QGuiApplication>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "metafile_fuzz";
    static char* argv[] = {name, nullptr};
    new QGuiApplication(argc, argv); // Lives as long as the process.
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr qint64 mostBytes = 1024 * 1024;
    const QSizeF shown(40, 30);
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const torvik::rtf::MetafileImage older = torvik::rtf::DrawWmf(bytes, shown, mostBytes);
    const torvik::rtf::MetafileImage newer = torvik::rtf::DrawEmf(bytes, shown, mostBytes);
    const QImage bitmap = torvik::rtf::DecodePackedDib(bytes, mostBytes);
    for (const QImage& image : {older.image, newer.image, bitmap}) {
        if (image.sizeInBytes() > 2 * mostBytes)
            std::abort();
    }
    return 0;
}
