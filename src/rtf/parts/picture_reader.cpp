#include "rtf/parts/picture_reader.h"

#include "rtf/charset/hex_digit.h"
#include "rtf/picture/show_picture.h"

#include <utility>

namespace torvik::rtf {

void PictureReader::Begin()
{
    source_ = PictureSource();
    halfByte_ = -1;
}

void PictureReader::AppendHex(std::string_view digits)
{
    QByteArray& data = source_.data;
    const qsizetype start = data.size();
    data.resize(start + static_cast<qsizetype>(digits.size() / 2) + 1);
    char* out = data.data() + start;
    for (const char c : digits) {
        const int digit = HexDigit(c);
        if (digit < 0)
            continue;
        if (halfByte_ < 0) {
            halfByte_ = digit;
        } else {
            *out++ = static_cast<char>(halfByte_ << 4 | digit);
            halfByte_ = -1;
        }
    }
    data.resize(out - data.constData());
}

void PictureReader::AppendBytes(std::string_view bytes)
{
    source_.data.append(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

int PictureReader::NumberOf(const PictureSource& source)
{
    const int known = numbers_.value(source);
    if (known != 0)
        return known;
    const ShownPicture picture = ShowPicture(source, document_.budget);
    if (picture.image.isNull())
        return 0;
    const int number = document_.pictures.Add(picture.image, picture.size);
    numbers_.insert(source, number);
    return number;
}

bool PictureReader::End(const GroupState& ended)
{
    const PictureSource source = std::move(source_);
    Begin();
    const GroupState& group = document_.group;
    const bool isShown =
        (document_.IsBody() || group.destination == Destination::Hidden ||
         group.destination == Destination::Shape || group.destination == Destination::ShapePropertyValue) &&
        !group.character.hidden;
    if (!isShown)
        return false;
    const int number = NumberOf(source);
    if (number == 0) {
        ++lost_;
        return false;
    }
    if (ended.isShapePicture)
        shapeWasShown_ = true;
    document_.flow.Draft().AppendPicture(number, looks_.Format());
    ++shown_;
    return true;
}

void PictureReader::BeginShape()
{
    document_.group.isShapePicture = true;
    shapeWasShown_ = false;
}

} // namespace torvik::rtf
