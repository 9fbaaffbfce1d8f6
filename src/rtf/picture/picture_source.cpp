#include "rtf/picture/picture_source.h"

#include "rtf/read/tokenizer.h"

namespace torvik::rtf {

void PictureSource::AppendHex(const char* digits, std::size_t count)
{
    const qsizetype start = data.size();
    data.resize(start + static_cast<qsizetype>(count / 2) + 1);
    char* out = data.data() + start;
    for (std::size_t i = 0; i < count; ++i) {
        const int digit = HexDigit(digits[i]);
        if (digit < 0)
            continue;
        if (halfByte < 0) {
            halfByte = digit;
        } else {
            *out++ = static_cast<char>(halfByte << 4 | digit);
            halfByte = -1;
        }
    }
    data.resize(out - data.constData());
}

} // namespace torvik::rtf
