#include "rtf/read/tokenizer.h"

#include "rtf/charset/hex_digit.h"

#include <algorithm>
#include <array>

namespace torvik::rtf {

namespace {

constexpr int longestWord = 32;
constexpr int largestValue = 0x7fffffff;
/// Bytes below this one are line ends, the end mark of an old system, or damage.
constexpr unsigned char firstPrinted = 0x20;

bool IsLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

constexpr std::array<bool, 256> MakeStops()
{
    std::array<bool, 256> stops{};
    for (const char c : {'\\', '{', '}'})
        stops[static_cast<unsigned char>(c)] = true;
    std::fill_n(stops.begin(), firstPrinted, true);
    return stops;
}

Token SymbolToken(char symbol)
{
    Token token = Token::Of(TokenKind::Symbol);
    token.symbol = symbol;
    return token;
}

/// The bytes that end a stretch of plain text.
constexpr std::array<bool, 256> stops = MakeStops();

} // namespace

Token Tokenizer::Next()
{
    while (at_ < bytes_.size()) {
        switch (bytes_[at_]) {
        case '{':
            ++at_;
            return Token::Of(TokenKind::GroupOpen);
        case '}':
            ++at_;
            return Token::Of(TokenKind::GroupClose);
        case '\\':
            return ReadEscape();
        case '\t':
            ++at_;
            return Token::Of(TokenKind::Word, "tab");
        default:
            if (static_cast<unsigned char>(bytes_[at_]) >= firstPrinted)
                return ReadText();
            ++at_;
            break;
        }
    }
    return {};
}

Token Tokenizer::ReadText()
{
    const std::size_t start = at_;
    while (at_ < bytes_.size() && !stops[static_cast<unsigned char>(bytes_[at_])])
        ++at_;
    return Token::Of(TokenKind::Text, bytes_.substr(start, at_ - start));
}

Token Tokenizer::ReadEscape()
{
    ++at_;
    if (at_ >= bytes_.size())
        return {};
    const char c = bytes_[at_];
    if (IsLetter(c))
        return ReadWord();
    ++at_;
    if (c == '\r') {
        if (at_ < bytes_.size() && bytes_[at_] == '\n')
            ++at_;
        return SymbolToken('\n');
    }
    if (c != '\'')
        return SymbolToken(c);
    Token hex = Token::Of(TokenKind::Hex);
    int digits = 0;
    while (digits < 2 && at_ < bytes_.size() && HexDigit(bytes_[at_]) >= 0) {
        hex.value = hex.value * 16 + HexDigit(bytes_[at_]);
        ++at_;
        ++digits;
    }
    hex.hasValue = digits == 2;
    // What stands for the second digit belongs to the damaged escape, unless it has a meaning of its own.
    if (digits == 1 && at_ < bytes_.size() && !stops[static_cast<unsigned char>(bytes_[at_])])
        ++at_;
    return hex;
}

Token Tokenizer::ReadWord()
{
    const std::size_t start = at_;
    while (at_ < bytes_.size() && at_ - start < longestWord && IsLetter(bytes_[at_]))
        ++at_;
    Token word = Token::Of(TokenKind::Word, bytes_.substr(start, at_ - start));
    const bool negative = at_ + 1 < bytes_.size() && bytes_[at_] == '-' && IsDigit(bytes_[at_ + 1]);
    if (negative)
        ++at_;
    long long value = 0;
    while (at_ < bytes_.size() && IsDigit(bytes_[at_])) {
        value = std::min<long long>(value * 10 + (bytes_[at_] - '0'), largestValue);
        word.hasValue = true;
        ++at_;
    }
    word.value = static_cast<int>(negative ? -value : value);
    if (at_ < bytes_.size() && bytes_[at_] == ' ')
        ++at_;
    if (word.text == "bin") {
        const std::size_t length = word.value > 0 ? static_cast<std::size_t>(word.value) : 0;
        const Token binary = Token::Of(TokenKind::Binary, bytes_.substr(at_, length));
        at_ += binary.text.size();
        return binary;
    }
    return word;
}

char Tokenizer::StopAhead() const
{
    if (at_ >= bytes_.size())
        return 0;
    const char c = bytes_[at_];
    if (c == '\\') {
        const char escaped = at_ + 1 < bytes_.size() ? bytes_[at_ + 1] : '\'';
        return escaped == '\'' || escaped == '\\' || escaped == '{' || escaped == '}' ? '\0' : c;
    }
    return c == '{' || c == '}' ? c : '\0';
}

bool Tokenizer::SkipGroup()
{
    int depth = 1;
    while (depth > 0) {
        switch (Next().kind) {
        case TokenKind::End:
            return false;
        case TokenKind::GroupOpen:
            ++depth;
            break;
        case TokenKind::GroupClose:
            --depth;
            break;
        default:
            break;
        }
    }
    return true;
}

} // namespace torvik::rtf
