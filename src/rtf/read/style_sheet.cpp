#include "rtf/read/style_sheet.h"

#include "rtf/bounds/limits.h"

namespace torvik::rtf {

namespace {

constexpr std::size_t maxStyleWords = 64;

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
    const WordEntry* word = FindWord(WordScope::Text, name);
    if (!IsLook(word))
        return false;
    if (entry_.words.size() < maxStyleWords)
        entry_.words.push_back({word, argument});
    return true;
}

void StyleSheet::EndEntry()
{
    Styles& styles = this->*entry_.kind;
    if (entry_.number != 0 && styles.size() < static_cast<std::size_t>(maxStyles))
        styles[entry_.number] = std::move(entry_.words);
    entry_ = Entry();
}

const StyleWords* StyleSheet::Find(const Styles& styles, int number)
{
    const auto found = styles.find(number);
    return found == styles.end() ? nullptr : &found->second;
}

} // namespace torvik::rtf
