#include "platform/folders/host_name.h"

#include <algorithm>

namespace torvik {

namespace {

constexpr char16_t escapeBase = 0xF700;

bool IsEscape(char16_t unit)
{
    return unit == escapeBase + u'\\' || unit == standInBlank.unicode() ||
           (unit >= escapeBase + 0x80 && unit <= escapeBase + 0xFF);
}

QChar Escape(char byte)
{
    return QChar(static_cast<char16_t>(escapeBase + static_cast<unsigned char>(byte)));
}

/// The length in bytes of the valid UTF-8 sequence at the beginning of `bytes`, 0 when there is none. The
/// characters that are used as escapes count as none.
std::size_t ValidSequence(std::string_view bytes)
{
    const auto at = [&bytes](std::size_t i) -> unsigned {
        return i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0;
    };
    const unsigned lead = at(0);
    if (lead < 0x80)
        return 1;
    const std::size_t length = lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
    for (std::size_t i = 1; i < length; ++i) {
        if ((at(i) & 0xC0) != 0x80)
            return 0;
    }
    const bool overlong = (lead == 0xE0 && at(1) < 0xA0) || (lead == 0xF0 && at(1) < 0x90);
    const bool surrogate = lead == 0xED && at(1) >= 0xA0;
    const bool tooHigh = lead == 0xF4 && at(1) >= 0x90;
    const bool escape = lead == 0xEF && at(1) >= 0x9C && at(1) <= 0x9F;
    return overlong || surrogate || tooHigh || escape ? 0 : length;
}

} // namespace

bool IsAscii(std::string_view bytes)
{
    return std::none_of(bytes.begin(), bytes.end(), [](char byte) { return (byte & 0x80) != 0; });
}

QString NameFromHost(std::string_view name)
{
    const bool plain = name.find('\\') == std::string_view::npos;
    if (plain && IsAscii(name))
        return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
    QString text;
    text.reserve(static_cast<qsizetype>(name.size()));
    for (std::size_t i = 0; i < name.size();) {
        const std::size_t length = name[i] == '\\' ? 0 : ValidSequence(name.substr(i));
        if (length == 0)
            text.append(Escape(name[i]));
        else
            text.append(QString::fromUtf8(name.data() + i, static_cast<qsizetype>(length)));
        i += length == 0 ? 1 : length;
    }
    return text;
}

std::string NameToHost(QStringView name)
{
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(name.size()));
    qsizetype i = 0;
    while (i < name.size()) {
        const char16_t unit = name[i].unicode();
        if (unit < 0x80) {
            bytes.push_back(static_cast<char>(unit));
            ++i;
            continue;
        }
        const bool pair = QChar::isHighSurrogate(unit) && i + 1 < name.size() && name[i + 1].isLowSurrogate();
        if (!pair && IsEscape(unit))
            bytes.push_back(static_cast<char>(unit - escapeBase));
        else if (!pair && QChar::isSurrogate(unit))
            bytes += "\xEF\xBF\xBD"; // half of a character stands for nothing
        else
            bytes += name.mid(i, pair ? 2 : 1).toUtf8().toStdString();
        i += pair ? 2 : 1;
    }
    return bytes;
}

QString HostText(std::string_view path)
{
    return NameFromHost(path).replace(Escape('\\'), u'\\');
}

std::string FoldedName(std::string_view name)
{
    if (!IsAscii(name)) {
        // By way of the upper case, so that a name that was turned to capitals is found again: "ß" by "SS".
        return NameToHost(NameFromHost(name).toUpper().toCaseFolded());
    }
    std::string folded(name);
    for (char& character : folded) {
        if (character >= 'A' && character <= 'Z')
            character = static_cast<char>(character + ('a' - 'A'));
    }
    return folded;
}

} // namespace torvik
