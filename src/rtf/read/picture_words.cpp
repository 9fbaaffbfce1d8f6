#include "rtf/bounds/limits.h"
#include "rtf/read/interpreter.h"
#include "rtf/read/word_table.h"

// Words that describe a picture.

namespace torvik::rtf {

namespace {

constexpr int largestPictureNumber = 0x7fffffff;

template <PictureKind kind>
void SetPictureKind(Interpreter& interpreter, const Argument&)
{
    interpreter.Pictures().Source().kind = kind;
}

template <int PictureSource::*member, int least, int most>
void SetNumber(Interpreter& interpreter, const Argument& argument)
{
    interpreter.Pictures().Source().*member = argument.Within(least, most);
}

constexpr WordEntry pictureEntries[] = {
    {"pngblip", SetPictureKind<PictureKind::Png>},
    {"jpegblip", SetPictureKind<PictureKind::Jpeg>},
    {"dibitmap", SetPictureKind<PictureKind::Dib>},
    {"wbitmap", SetPictureKind<PictureKind::DeviceBitmap>},
    {"wmetafile", SetPictureKind<PictureKind::Wmf>},
    {"emfblip", SetPictureKind<PictureKind::Emf>},
    {"picw", SetNumber<&PictureSource::width, 0, largestPictureNumber>},
    {"pich", SetNumber<&PictureSource::height, 0, largestPictureNumber>},
    {"picwgoal", SetNumber<&PictureSource::goalWidth, 0, maxTwips>},
    {"pichgoal", SetNumber<&PictureSource::goalHeight, 0, maxTwips>},
    {"picscalex", SetNumber<&PictureSource::scaleX, 1, 10000>},
    {"picscaley", SetNumber<&PictureSource::scaleY, 1, 10000>},
    {"piccropl", SetNumber<&PictureSource::cropLeft, -maxTwips, maxTwips>},
    {"piccropt", SetNumber<&PictureSource::cropTop, -maxTwips, maxTwips>},
    {"piccropr", SetNumber<&PictureSource::cropRight, -maxTwips, maxTwips>},
    {"piccropb", SetNumber<&PictureSource::cropBottom, -maxTwips, maxTwips>},
    {"wbmbitspixel", SetNumber<&PictureSource::bitsPerPixel, 1, 32>},
    {"wbmwidthbytes", SetNumber<&PictureSource::lineBytes, 0, largestPictureNumber>},
};

} // namespace

std::span<const WordEntry> PictureWords()
{
    return pictureEntries;
}

} // namespace torvik::rtf
