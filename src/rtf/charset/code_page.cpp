#include "rtf/charset/code_page.h"

#include <QLatin1StringView>

#include <algorithm>
#include <cerrno>
#include <iconv.h>
#include <iterator>
#include <map>
#include <memory>
#include <mutex>

namespace torvik::rtf {

namespace {

using Kind = CodePage::Kind;

struct Known {
    int number;
    const char* name;
    Kind kind;
};

// The names that iconv has for them.
constexpr Known knownPages[] = {
    {437, "CP437", Kind::SingleByte},
    {850, "CP850", Kind::SingleByte},
    {852, "CP852", Kind::SingleByte},
    {855, "CP855", Kind::SingleByte},
    {857, "CP857", Kind::SingleByte},
    {860, "CP860", Kind::SingleByte},
    {861, "CP861", Kind::SingleByte},
    {862, "CP862", Kind::SingleByte},
    {863, "CP863", Kind::SingleByte},
    {864, "CP864", Kind::SingleByte},
    {865, "CP865", Kind::SingleByte},
    {866, "CP866", Kind::SingleByte},
    {874, "CP874", Kind::SingleByte},
    {1250, "CP1250", Kind::SingleByte},
    {1251, "CP1251", Kind::SingleByte},
    {1252, "CP1252", Kind::SingleByte},
    {1253, "CP1253", Kind::SingleByte},
    {1254, "CP1254", Kind::SingleByte},
    {1255, "CP1255", Kind::SingleByte},
    {1256, "CP1256", Kind::SingleByte},
    {1257, "CP1257", Kind::SingleByte},
    {1258, "CP1258", Kind::SingleByte},
    {10000, "MACINTOSH", Kind::SingleByte},
    {10007, "MAC-CYRILLIC", Kind::SingleByte},
    {10029, "MACCENTRALEUROPE", Kind::SingleByte},
    {20866, "KOI8-R", Kind::SingleByte},
    {932, "CP932", Kind::MultiByte},
    {936, "CP936", Kind::MultiByte},
    {949, "CP949", Kind::MultiByte},
    {950, "CP950", Kind::MultiByte},
    {1361, "CP1361", Kind::MultiByte},
    {10001, "CP932", Kind::MultiByte},
    {65001, "UTF-8", Kind::MultiByte},
};

struct Charset {
    int charset;
    int page;
};

constexpr Charset charsets[] = {
    {0, 1252},   {77, 10000}, {78, 10001}, {128, 932},  {129, 949},  {130, 1361}, {134, 936},
    {136, 950},  {161, 1253}, {162, 1254}, {163, 1258}, {177, 1255}, {178, 1256}, {186, 1257},
    {204, 1251}, {222, 874},  {238, 1250}, {254, 437},  {255, 850},
};

/// A conversion by iconv. It works on texts alone and touches nothing of the machine.
class Converter {
public:
    explicit Converter(const char* from) : handle_(iconv_open("UTF-16LE", from)) {}
    ~Converter()
    {
        if (Usable())
            iconv_close(handle_);
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    /// iconv reports a failure as the pointer -1.
    bool Usable() const
    {
        return handle_ != reinterpret_cast<iconv_t>(-1); // NOLINT(performance-no-int-to-ptr)
    }

    void Append(std::string_view bytes, QString& text)
    {
        // iconv asks for a pointer to writable bytes, but never writes to them.
        char* in = const_cast<char*>(bytes.data());
        std::size_t inLeft = bytes.size();
        char16_t chunk[512];
        while (inLeft > 0) {
            char* out = reinterpret_cast<char*>(chunk);
            std::size_t outLeft = sizeof chunk;
            const std::size_t done = iconv(handle_, &in, &inLeft, &out, &outLeft);
            const bool failed = done == static_cast<std::size_t>(-1) && errno != E2BIG;
            AppendUnits(chunk, (sizeof chunk - outLeft) / 2, text);
            if (failed) {
                text.append(QChar(QChar::ReplacementCharacter));
                ++in;
                --inLeft;
            }
        }
        // Some pages hold a letter back until they know whether an accent follows.
        char* out = reinterpret_cast<char*>(chunk);
        std::size_t outLeft = sizeof chunk;
        iconv(handle_, nullptr, nullptr, &out, &outLeft);
        AppendUnits(chunk, (sizeof chunk - outLeft) / 2, text);
    }

private:
    static void AppendUnits(const char16_t* units, std::size_t count, QString& text)
    {
        text.append(reinterpret_cast<const QChar*>(units), static_cast<qsizetype>(count));
    }

    iconv_t handle_;
};

bool IsAscii(std::string_view bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<signed char>(c) >= 0; });
}

} // namespace

CodePage::CodePage(const char* name, Kind kind) : name_(name), kind_(kind), table_()
{
    Converter converter(name);
    for (int byte = 0; byte < 256; ++byte) {
        char16_t unit = static_cast<char16_t>(byte);
        if (byte >= 128 && kind == Kind::SingleByte && converter.Usable()) {
            const char c = static_cast<char>(byte);
            QString decoded;
            converter.Append({&c, 1}, decoded);
            // Bytes without a meaning in the western page still stand for themselves in old documents.
            const bool known = decoded.size() == 1 && decoded.at(0) != QChar(QChar::ReplacementCharacter);
            if (known)
                unit = decoded.at(0).unicode();
        }
        table_[byte] = unit;
    }
}

const CodePage& CodePage::Of(int number)
{
    static std::mutex guard;
    static std::map<int, std::unique_ptr<CodePage>> pages;
    const std::lock_guard lock(guard);
    const auto* known = std::find_if(std::begin(knownPages), std::end(knownPages),
                                     [&](const Known& page) { return page.number == number; });
    if (known == std::end(knownPages))
        known = std::find_if(std::begin(knownPages), std::end(knownPages),
                             [](const Known& page) { return page.number == 1252; });
    std::unique_ptr<CodePage>& page = pages[known->number];
    if (!page)
        page.reset(new CodePage(known->name, known->kind));
    return *page;
}

const CodePage& CodePage::OfSymbols()
{
    static const CodePage page("ISO-8859-1", Kind::Symbol);
    return page;
}

int CodePage::NumberForCharset(int charset)
{
    for (const Charset& known : charsets) {
        if (known.charset == charset)
            return known.page;
    }
    return 0;
}

bool CodePage::IsLead(char byte) const
{
    const auto value = static_cast<unsigned char>(byte);
    if (kind_ != Kind::MultiByte || value < 0x81 || value == 0xff || std::string_view(name_) == "UTF-8")
        return false;
    const bool isHalfWidth = value >= 0xa0 && value < 0xe0;
    return std::string_view(name_) != "CP932" || (!isHalfWidth && value < 0xfd);
}

void CodePage::Decode(std::string_view bytes, QString& text) const
{
    const auto length = static_cast<qsizetype>(bytes.size());
    if (IsAscii(bytes)) {
        text.append(QLatin1StringView(bytes.data(), length));
        return;
    }
    if (kind_ == Kind::MultiByte) {
        Converter converter(name_);
        if (converter.Usable())
            converter.Append(bytes, text);
        else
            text.append(QLatin1StringView(bytes.data(), length));
        return;
    }
    const qsizetype start = text.size();
    text.resize(start + length);
    QChar* out = text.data() + start;
    for (const char c : bytes)
        *out++ = QChar(table_[static_cast<unsigned char>(c)]);
}

} // namespace torvik::rtf
