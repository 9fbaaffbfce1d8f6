#pragma once

#include <string_view>

namespace torvik::rtf {

enum class TokenKind { End, GroupOpen, GroupClose, Word, Symbol, Hex, Text, Binary };

/// One piece of rich text. Views point into the bytes that the tokenizer was given.
struct Token {
    TokenKind kind = TokenKind::End;
    /// Word: its letters. Text: the bytes as they stand. Binary: the raw payload.
    std::string_view text;
    /// Word: the number after the letters, 0 when there is none. Hex: the byte.
    int value = 0;
    bool hasValue = false;
    /// Symbol: the character after the backslash; a line end of either kind is '\n'.
    char symbol = 0;

    static Token Of(TokenKind kind, std::string_view text = {})
    {
        Token token;
        token.kind = kind;
        token.text = text;
        return token;
    }
};

/// Cuts bytes into tokens. Never fails: damaged escapes yield what can be made of them, and the end of the
/// bytes is an endless run of End tokens.
class Tokenizer {
public:
    explicit Tokenizer(std::string_view bytes) : bytes_(bytes) {}

    Token Next();
    /// The brace or backslash that comes next, 0 for anything else and for a backslash that escapes a
    /// character.
    char StopAhead() const;
    /// The next byte as it stands; only where there is one.
    std::string_view TakeByte() { return bytes_.substr(at_++, 1); }
    /// Passes over everything up to and including the brace that closes the group that the tokenizer is in.
    /// Returns false when the bytes end first.
    bool SkipGroup();

private:
    Token ReadEscape();
    Token ReadWord();
    Token ReadText();

    std::string_view bytes_;
    std::size_t at_ = 0;
};

} // namespace torvik::rtf
