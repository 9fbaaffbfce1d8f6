#include "rtf/model/font_table.h"

#include "rtf/bounds/limits.h"

namespace torvik::rtf {

namespace {

constexpr const char* charsetSuffixes[] = {" CE",       " CYR",          " Cyr",    " Greek",
                                           " TUR",      " Tur",          " Baltic", " (Hebrew)",
                                           " (Arabic)", " (Vietnamese)", " (Thai)", " (Cyrillic)"};

} // namespace

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
    QString name = written;
    const qsizetype end = name.indexOf(u';');
    if (end >= 0)
        name.truncate(end);
    name = name.trimmed();
    for (const char* suffix : charsetSuffixes) {
        const QLatin1StringView tail(suffix);
        if (name.endsWith(tail) && name.size() > tail.size())
            return name.chopped(tail.size());
    }
    return name;
}

} // namespace torvik::rtf
