#include "rtf/bounds/limits.h"
#include "rtf/read/reader.h"
#include "rtf/read/word_table.h"

// Words that describe a picture.

namespace torvik::rtf {

namespace {

constexpr int LargestNumber = 0x7fffffff;

template <PictureKind kind>
void SetKind(Reader& reader, const Argument&)
{
    reader.Picture().kind = kind;
}

template <int PictureSource::*member, int least, int most>
void SetNumber(Reader& reader, const Argument& argument)
{
    reader.Picture().*member = argument.Within(least, most);
}

constexpr WordEntry Entries[] = {
    {"pngblip", SetKind<PictureKind::Png>},
    {"jpegblip", SetKind<PictureKind::Jpeg>},
    {"dibitmap", SetKind<PictureKind::Dib>},
    {"wbitmap", SetKind<PictureKind::DeviceBitmap>},
    {"wmetafile", SetKind<PictureKind::Wmf>},
    {"emfblip", SetKind<PictureKind::Emf>},
    {"picw", SetNumber<&PictureSource::width, 0, LargestNumber>},
    {"pich", SetNumber<&PictureSource::height, 0, LargestNumber>},
    {"picwgoal", SetNumber<&PictureSource::goalWidth, 0, MaxTwips>},
    {"pichgoal", SetNumber<&PictureSource::goalHeight, 0, MaxTwips>},
    {"picscalex", SetNumber<&PictureSource::scaleX, 1, 10000>},
    {"picscaley", SetNumber<&PictureSource::scaleY, 1, 10000>},
    {"piccropl", SetNumber<&PictureSource::cropLeft, -MaxTwips, MaxTwips>},
    {"piccropt", SetNumber<&PictureSource::cropTop, -MaxTwips, MaxTwips>},
    {"piccropr", SetNumber<&PictureSource::cropRight, -MaxTwips, MaxTwips>},
    {"piccropb", SetNumber<&PictureSource::cropBottom, -MaxTwips, MaxTwips>},
    {"wbmbitspixel", SetNumber<&PictureSource::bitsPerPixel, 1, 32>},
    {"wbmwidthbytes", SetNumber<&PictureSource::lineBytes, 0, LargestNumber>},
};

} // namespace

std::span<const WordEntry> PictureWords()
{
    return Entries;
}

} // namespace torvik::rtf
