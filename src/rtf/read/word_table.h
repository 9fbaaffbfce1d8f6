#pragma once

#include <span>
#include <string_view>

namespace torvik::rtf {

class Interpreter;

/// The number after a control word, if there is one.
struct Argument {
    bool isGiven = false;
    int value = 0;

    int Or(int otherwise) const { return isGiven ? value : otherwise; }
    /// Within bounds, for everything that is a length, a size or a number of something.
    int Within(int least, int most, int otherwise = 0) const;
    /// "\b" and "\b1" switch on, "\b0" switches off.
    bool IsOn() const { return !isGiven || value != 0; }
};

/// One control word and what it does.
struct WordEntry {
    const char* name;
    void (*apply)(Interpreter& interpreter, const Argument& argument);
};

/// Where a control word is read: the same word has different meanings in different tables.
enum class WordScope {
    Everywhere,
    Text,
    Fonts,
    Colors,
    Lists,
    Picture,
    Numbering,
    Shape,
    Form,
    Information,
    Count
};

// Each table is in the file of its name.
std::span<const WordEntry> DocumentWords();
std::span<const WordEntry> DestinationWords();
std::span<const WordEntry> CharacterWords();
std::span<const WordEntry> ParagraphWords();
std::span<const WordEntry> TableWords();
std::span<const WordEntry> SpecialWords();
std::span<const WordEntry> FontWords();
std::span<const WordEntry> ColorWords();
std::span<const WordEntry> ListWords();
std::span<const WordEntry> PictureWords();
std::span<const WordEntry> NumberingWords();
std::span<const WordEntry> ShapeWords();
std::span<const WordEntry> FormWords();
std::span<const WordEntry> InformationWords();

/// What a word does in a scope, or else everywhere; nullptr for a word that nobody knows.
const WordEntry* FindWord(WordScope scope, std::string_view name);

} // namespace torvik::rtf
