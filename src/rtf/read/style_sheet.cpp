#include "rtf/read/style_sheet.h"

#include "rtf/bounds/limits.h"

#include <algorithm>

namespace torvik::rtf {

namespace {

constexpr std::size_t maxStyleWords = 64;
/// Stands for no style where a style could be named.
constexpr int noBase = 222;

bool IsOf(std::span<const WordEntry> words, const WordEntry* word)
{
    return word >= words.data() && word < words.data() + words.size();
}

} // namespace

/// Words that reset all looks are no part of a style, and every item of a list names its list itself.
bool IsLook(const WordEntry* word)
{
    if (word == nullptr)
        return false;
    const std::string_view name(word->name);
    const bool isOther = name == "plain" || name == "pard" || name == "ls" || name == "ilvl";
    return !isOther && (IsOf(CharacterWords(), word) || IsOf(ParagraphWords(), word));
}

bool StyleSheet::Take(std::string_view name, const Argument& argument)
{
    if (name == "s" || name == "cs" || name == "ds" || name == "ts") {
        entry_.kind = name == "s"    ? &StyleSheet::paragraphs_
                      : name == "cs" ? &StyleSheet::characters_
                                     : &StyleSheet::others_;
        entry_.number = argument.value;
        return true;
    }
    if (name == "sbasedon") {
        entry_.style.base = argument.Within(0, noBase) == noBase ? -1 : argument.value;
        return true;
    }
    const WordEntry* word = FindWord(WordScope::Text, name);
    if (!IsLook(word))
        return false;
    if (entry_.style.words.size() < maxStyleWords)
        entry_.style.words.push_back({word, argument});
    return true;
}

void StyleSheet::EndEntry()
{
    Styles& styles = this->*entry_.kind;
    if (styles.size() < static_cast<std::size_t>(maxStyles))
        styles[entry_.number] = std::move(entry_.style);
    entry_ = Entry();
}

/// Number 0 is the style of text that names none: it has no looks of its own, but others are based on it.
const StyleWords* StyleSheet::Find(Styles& styles, int number)
{
    const auto found = number != 0 ? styles.find(number) : styles.end();
    if (found == styles.end())
        return nullptr;
    Style& style = found->second;
    if (style.isWhole)
        return &style.whole;
    constexpr int mostBases = 16; // a style that is based on itself ends here too
    std::vector<const StyleWords*> chain{&style.words};
    for (auto base = styles.find(style.base); base != styles.end() && chain.size() < mostBases;
         base = styles.find(base->second.base))
        chain.push_back(&base->second.words);
    std::for_each(chain.rbegin(), chain.rend(), [&style](const StyleWords* words) {
        style.whole.insert(style.whole.end(), words->begin(), words->end());
    });
    style.isWhole = true;
    return &style.whole;
}

} // namespace torvik::rtf
