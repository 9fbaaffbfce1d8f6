#include "platform/folders/name_pattern.h"

#include "platform/folders/host_name.h"

namespace torvik {

namespace {

/// The text in whole characters, without differences of letter case.
std::u32string Folded(QStringView text)
{
    std::u32string folded;
    folded.reserve(static_cast<std::size_t>(text.size()));
    for (qsizetype i = 0; i < text.size();) {
        const bool isPair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        const char32_t character =
            isPair ? QChar::surrogateToUcs4(text[i], text[i + 1]) : char32_t{text[i].unicode()};
        folded.push_back(QChar::toCaseFolded(character));
        i += isPair ? 2 : 1;
    }
    return folded;
}

char32_t FoldedAscii(char character)
{
    const bool isUpper = character >= 'A' && character <= 'Z';
    return static_cast<char32_t>(isUpper ? character + ('a' - 'A') : character);
}

/// Matches in one pass: on a difference the last `*` takes one character more. `at` gives the name's
/// characters.
template <typename At>
bool Match(std::u32string_view pattern, std::size_t length, At at)
{
    std::size_t p = 0;
    std::size_t n = 0;
    std::size_t star = std::u32string_view::npos;
    std::size_t afterStar = 0;
    while (n < length) {
        if (p < pattern.size() && pattern[p] == U'*') {
            star = p++;
            afterStar = n;
        } else if (p < pattern.size() && (pattern[p] == U'?' || pattern[p] == at(n))) {
            ++p;
            ++n;
        } else if (star != std::u32string_view::npos) {
            p = star + 1;
            n = ++afterStar;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == U'*')
        ++p;
    return p == pattern.size();
}

} // namespace

NamePattern::NamePattern(QStringView pattern)
    : pattern_(Folded(pattern == u"*.*" ? QStringView(u"*") : pattern))
{}

bool NamePattern::Matches(std::string_view hostName) const
{
    if (IsAscii(hostName) && hostName.find('\\') == std::string_view::npos)
        return Match(pattern_, hostName.size(),
                     [hostName](std::size_t i) { return FoldedAscii(hostName[i]); });
    const std::u32string name = Folded(NameFromHost(hostName));
    return Match(pattern_, name.size(), [&name](std::size_t i) { return name[i]; });
}

bool NamePattern::HasWildcards(QStringView text)
{
    return text.contains(u'*') || text.contains(u'?');
}

} // namespace torvik
