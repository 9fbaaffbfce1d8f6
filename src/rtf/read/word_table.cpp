#include "rtf/read/word_table.h"

#include <algorithm>
#include <array>
#include <unordered_map>

namespace torvik::rtf {

namespace {

using Words = std::unordered_map<std::string_view, const WordEntry*>;
using Scopes = std::array<Words, static_cast<std::size_t>(WordScope::Count)>;

void AddWords(Scopes& scopes, WordScope scope, std::span<const WordEntry> entries)
{
    for (const WordEntry& entry : entries)
        scopes[static_cast<std::size_t>(scope)].emplace(entry.name, &entry);
}

Scopes MakeScopes()
{
    Scopes scopes;
    AddWords(scopes, WordScope::Everywhere, DocumentWords());
    AddWords(scopes, WordScope::Everywhere, DestinationWords());
    AddWords(scopes, WordScope::Everywhere, SpecialWords());
    AddWords(scopes, WordScope::Text, CharacterWords());
    AddWords(scopes, WordScope::Text, ParagraphWords());
    AddWords(scopes, WordScope::Text, TableWords());
    AddWords(scopes, WordScope::Fonts, FontWords());
    AddWords(scopes, WordScope::Colors, ColorWords());
    AddWords(scopes, WordScope::Lists, ListWords());
    AddWords(scopes, WordScope::Picture, PictureWords());
    AddWords(scopes, WordScope::Numbering, NumberingWords());
    AddWords(scopes, WordScope::Shape, ShapeWords());
    AddWords(scopes, WordScope::Form, FormWords());
    AddWords(scopes, WordScope::Information, InformationWords());
    return scopes;
}

} // namespace

int Argument::Within(int least, int most, int otherwise) const
{
    return std::clamp(Or(otherwise), least, most);
}

const WordEntry* FindWord(WordScope scope, std::string_view name)
{
    static const Scopes scopes = MakeScopes();
    const Words& own = scopes[static_cast<std::size_t>(scope)];
    const auto found = own.find(name);
    if (found != own.end())
        return found->second;
    const Words& everywhere = scopes[static_cast<std::size_t>(WordScope::Everywhere)];
    const auto general = everywhere.find(name);
    return general == everywhere.end() ? nullptr : general->second;
}

} // namespace torvik::rtf
