#include "rtf/bitmap/dib_runs.h"

#include "rtf/bitmap/byte_reader.h"

namespace torvik::rtf {

namespace {

class RunDecoder {
public:
    RunDecoder(std::string_view runs, int bits, bool topDown, QImage& image)
        : in_(runs), bits_(bits), topDown_(topDown), image_(image)
    {}

    void Decode()
    {
        while (in_.Has(at_, 2) && y_ < image_.height()) {
            const int count = in_.U8(at_);
            const int value = in_.U8(at_ + 1);
            at_ += 2;
            if (count > 0)
                PutRun(count, value);
            else if (value == EndOfLine)
                MoveTo(0, y_ + 1);
            else if (value == EndOfBitmap)
                return;
            else if (value == Move)
                Jump();
            else
                PutLiteral(value);
        }
    }

private:
    enum Escape { EndOfLine = 0, EndOfBitmap = 1, Move = 2 };

    void MoveTo(int x, int y)
    {
        x_ = x;
        y_ = y;
    }
    void Jump()
    {
        MoveTo(x_ + in_.U8(at_), y_ + in_.U8(at_ + 1));
        at_ += 2;
    }
    void Put(int value)
    {
        if (x_ < image_.width() && y_ < image_.height())
            image_.scanLine(topDown_ ? y_ : image_.height() - 1 - y_)[x_] = static_cast<uchar>(value);
        ++x_;
    }
    void PutRun(int count, int value)
    {
        for (int i = 0; i < count; ++i)
            Put(bits_ == 8 ? value : Nibble(value, i));
    }
    void PutLiteral(int count)
    {
        for (int i = 0; i < count; ++i) {
            const auto place = static_cast<std::size_t>(bits_ == 8 ? i : i / 2);
            const int value = in_.U8(at_ + place);
            Put(bits_ == 8 ? value : Nibble(value, i));
        }
        const auto bytes = static_cast<std::size_t>(bits_ == 8 ? count : (count + 1) / 2);
        at_ += (bytes + 1) / 2 * 2;
    }
    static int Nibble(int value, int place) { return place % 2 == 0 ? value >> 4 : value & 15; }

    ByteReader in_;
    int bits_;
    bool topDown_;
    QImage& image_;
    std::size_t at_ = 0;
    int x_ = 0;
    int y_ = 0;
};

} // namespace

void DecodeRuns(std::string_view runs, int bitsPerPixel, bool topDown, QImage& image)
{
    RunDecoder(runs, bitsPerPixel, topDown, image).Decode();
}

} // namespace torvik::rtf
