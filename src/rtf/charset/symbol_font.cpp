#include "rtf/charset/symbol_font.h"

namespace torvik::rtf {

namespace {

// Places 0x20 to 0x7e and 0xa0 to 0xfe of the Greek and mathematical symbol font.
constexpr char16_t lowSymbols[] = u" !∀#∃%&∋()∗+,−./0123456789:;<=>?"
                                  u"≅ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟΠΘΡΣΤΥςΩΞΨΖ[∴]⊥_"
                                  u"‾αβχδεφγηιϕκλμνοπθρστυϖωξψζ{|}∼";
constexpr char16_t highSymbols[] = u"€ϒ′≤⁄∞ƒ♣♦♥♠↔←↑→↓"
                                   u"°±″≥×∝∂•÷≠≡≈…⏐⎯↵"
                                   u"ℵℑℜ℘⊗⊕∅∩∪⊃⊇⊄⊂⊆∈∉"
                                   u"∠∇®©™∏√⋅¬∧∨⇔⇐⇑⇒⇓"
                                   u"◊〈®©™∑⎛⎜⎝⎡⎢⎣⎧⎨⎩⎪"
                                   u"\uf0f0〉∫⌠⎮⌡⎞⎟⎠⎤⎥⎦⎫⎬⎭";

struct Ornament {
    char16_t place;
    char16_t character;
};

constexpr Ornament ornaments[] = {
    {0x28, u'☎'}, {0x29, u'✆'}, {0x2a, u'✉'}, {0x36, u'⌛'}, {0x45, u'☜'}, {0x46, u'☞'}, {0x47, u'☝'},
    {0x48, u'☟'}, {0x4a, u'☺'}, {0x4b, u'☹'}, {0x4e, u'☠'}, {0x51, u'✈'}, {0x6c, u'●'}, {0x6d, u'❍'},
    {0x6e, u'■'}, {0x6f, u'□'}, {0x70, u'□'}, {0x71, u'❑'}, {0x72, u'❒'}, {0x73, u'◆'}, {0x74, u'◆'},
    {0x75, u'◆'}, {0x76, u'❖'}, {0x77, u'◆'}, {0x9e, u'·'}, {0x9f, u'•'}, {0xa1, u'○'}, {0xa2, u'○'},
    {0xa4, u'◉'}, {0xa7, u'▪'}, {0xa8, u'◻'}, {0xaa, u'✦'}, {0xab, u'★'}, {0xac, u'✶'}, {0xae, u'✹'},
    {0xd8, u'➢'}, {0xdf, u'←'}, {0xe0, u'→'}, {0xe1, u'↑'}, {0xe2, u'↓'}, {0xe8, u'➔'}, {0xf0, u'⇨'},
    {0xfb, u'✗'}, {0xfc, u'✓'}, {0xfd, u'☒'}, {0xfe, u'☑'},
};

char16_t GreekSymbol(char16_t place)
{
    if (place >= 0x20 && place <= 0x7e)
        return lowSymbols[place - 0x20];
    if (place >= 0xa0 && place <= 0xfe)
        return highSymbols[place - 0xa0];
    return place;
}

char16_t OrnamentSymbol(char16_t place)
{
    for (const Ornament& ornament : ornaments) {
        if (ornament.place == place)
            return ornament.character;
    }
    return place;
}

} // namespace

char16_t SymbolCharacter(const QString& family, char16_t unit)
{
    const bool isPrivate = unit >= 0xf020 && unit <= 0xf0ff;
    if (unit > 0xff && !isPrivate)
        return unit;
    const auto place = static_cast<char16_t>(unit & 0xff);
    // The many ornament fonts agree on the most common ones; none of them has Greek letters.
    const bool isGreek =
        family.isEmpty() || family.contains(QLatin1StringView("Symbol"), Qt::CaseInsensitive);
    const char16_t found = isGreek ? GreekSymbol(place) : OrnamentSymbol(place);
    return found == place && isPrivate ? unit : found;
}

} // namespace torvik::rtf
