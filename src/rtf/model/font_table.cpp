#include "rtf/model/font_table.h"

#include "rtf/bounds/limits.h"

namespace torvik::rtf {

namespace {

struct CharsetSuffix {
    const char* tail;
    int charset;
};

constexpr CharsetSuffix charsetSuffixes[] = {{" CE", 238},     {" CYR", 204},          {" Cyr", 204},
                                             {" Greek", 161},  {" TUR", 162},          {" Tur", 162},
                                             {" Baltic", 186}, {" (Hebrew)", 177},     {" (Arabic)", 178},
                                             {" (Thai)", 222}, {" (Vietnamese)", 163}, {" (Cyrillic)", 204}};

/// The name without what ends its entry.
QString BareName(const QString& written)
{
    return written.left(written.indexOf(u';')).trimmed();
}

const CharsetSuffix* SuffixOf(const QString& name)
{
    for (const CharsetSuffix& suffix : charsetSuffixes) {
        const QLatin1StringView tail(suffix.tail);
        if (name.endsWith(tail) && name.size() > tail.size())
            return &suffix;
    }
    return nullptr;
}

} // namespace

void FontEntry::SetName(const QString& written)
{
    family = CleanFontName(written);
    const CharsetSuffix* suffix = SuffixOf(BareName(written));
    if (suffix == nullptr)
        return;
    hasCharset = true;
    charset = suffix->charset;
    codePage = 0;
}

bool FontEntry::IsSymbolFont() const
{
    return (hasCharset && charset == symbolCharset) || family == QLatin1StringView("Symbol") ||
           family.startsWith(QLatin1StringView("Wingdings"));
}

QStringList FontEntry::Families() const
{
    QStringList names;
    if (IsSymbolFont())
        return names;
    if (!family.isEmpty())
        names.append(family);
    if (!alternative.isEmpty() && alternative != family)
        names.append(alternative);
    return names;
}

FontEntry& FontTable::Define(int number)
{
    const auto found = fonts_.find(number);
    if (found != fonts_.end())
        return found->second;
    if (fonts_.size() >= static_cast<std::size_t>(maxFonts))
        return overflow_;
    return fonts_[number];
}

const FontEntry* FontTable::Find(int number) const
{
    const auto found = fonts_.find(number);
    return found == fonts_.end() ? nullptr : &found->second;
}

const CodePage& FontTable::PageOf(int number, int documentPage) const
{
    const FontEntry* font = Find(number);
    if (font == nullptr)
        return CodePage::Of(documentPage);
    if (font->IsSymbolFont())
        return CodePage::OfSymbols();
    if (font->codePage != 0)
        return CodePage::Of(font->codePage);
    const int page = font->hasCharset ? CodePage::NumberForCharset(font->charset) : 0;
    return CodePage::Of(page != 0 ? page : documentPage);
}

QString CleanFontName(const QString& written)
{
    const QString name = BareName(written);
    const CharsetSuffix* suffix = SuffixOf(name);
    return suffix != nullptr ? name.chopped(QLatin1StringView(suffix->tail).size()) : name;
}

} // namespace torvik::rtf
