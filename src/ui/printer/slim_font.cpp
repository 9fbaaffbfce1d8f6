#include "ui/printer/slim_font.h"

#include "ui/printer/glyph_outlines.h"

#include <QRawFont>
#include <QtEndian>

#include <algorithm>
#include <map>

namespace torvik {

namespace {

using Tables = std::map<QByteArray, QByteArray>;

constexpr qsizetype mostOutlines = 2LL * 1024 * 1024; // bytes: a copy of a font for all the world is too dear
constexpr int firstCharacter = 0x20;
constexpr int firstFarCharacter = 0x0590;  // of the scripts of Asia and Africa
constexpr int firstNearCharacter = 0x1E00; // more letters of Europe, then signs and symbols
constexpr int lastCharacter = 0x26FF;

/// Numbers of font files are big-endian.
template <typename Number>
void Append(QByteArray& bytes, Number number)
{
    const Number swapped = qToBigEndian(number);
    bytes.append(reinterpret_cast<const char*>(&swapped), sizeof swapped);
}

quint16 NumberAt(const QByteArray& table, qsizetype at)
{
    return qFromBigEndian<quint16>(table.constData() + at);
}

void SetNumberAt(QByteArray& table, qsizetype at, quint16 number)
{
    qToBigEndian(number, table.data() + at);
}

/// The characters as one row of glyphs: Qt asks a font for 65,536 of them for each job that it is used in,
/// and in a row nothing is searched for.
QByteArray CharacterTable(const QRawFont& font)
{
    QString characters;
    for (int code = firstCharacter; code <= lastCharacter; ++code)
        characters += QChar(code);
    const QList<quint32> glyphs = font.glyphIndexesForString(characters);
    if (glyphs.size() != characters.size())
        return {};

    constexpr quint16 row = 6; // the kind of table
    constexpr quint16 heads = 10;
    QByteArray table;
    for (const quint16 number : {quint16{0}, quint16{1}, quint16{3}, quint16{1}}) // one table, of Unicode
        Append(table, number);
    Append(table, quint32{12}); // where it begins
    Append(table, row);
    Append(table, static_cast<quint16>(heads + 2 * glyphs.size()));
    Append(table, quint16{0});
    Append(table, static_cast<quint16>(firstCharacter));
    Append(table, static_cast<quint16>(glyphs.size()));
    for (qsizetype index = 0; index < glyphs.size(); ++index)
        Append(table, static_cast<quint16>(IsInSlimFonts(characters.at(index)) ? glyphs.at(index) : 0));
    return table;
}

QString Letters(QString text)
{
    text.removeIf([](QChar letter) { return letter.unicode() <= ' ' || letter.unicode() > '~'; });
    return text;
}

/// Family, style, both together, and the name that a printed file gives: the one of the font itself.
QByteArray NameTable(const QRawFont& font, const QString& family)
{
    const QString& style = font.styleName();
    const std::map<quint16, QString> names{{1, family},
                                           {2, style},
                                           {4, family + u' ' + style},
                                           {6, Letters(font.familyName()) + u'-' + Letters(style)}};
    QByteArray table;
    QByteArray texts;
    Append(table, quint16{0});
    Append(table, static_cast<quint16>(names.size()));
    Append(table, static_cast<quint16>(6 + 12 * names.size()));
    for (const auto& [kind, name] : names) {
        constexpr quint16 english = 0x0409;
        for (const quint16 number : {quint16{3}, quint16{1}, english, kind})
            Append(table, number);
        Append(table, static_cast<quint16>(2 * name.size()));
        Append(table, static_cast<quint16>(texts.size()));
        for (const QChar letter : name)
            Append(texts, letter.unicode());
    }
    return table + texts;
}

/// The tables that go over as they are; empty when one without which there is no font is missing.
Tables CopiedTables(const QRawFont& font)
{
    Tables tables;
    for (const char* tag : {"head", "hhea", "hmtx", "maxp", "OS/2"})
        tables[tag] = font.fontTable(tag);
    const bool isWhole =
        std::all_of(tables.begin(), tables.end(), [](const auto& table) { return !table.second.isEmpty(); });
    if (!isWhole)
        return {};
    for (const char* tag : {"GDEF", "GPOS", "GSUB", "kern", "post"}) {
        const QByteArray table = font.fontTable(tag);
        if (!table.isEmpty())
            tables[tag] = table;
    }
    return tables;
}

/// Pictures and outlines that change with a setting are more than one outline a glyph.
bool HasOneOutlineEach(const QRawFont& font)
{
    const auto tags = {"CBDT", "COLR", "SVG ", "fvar", "sbix"};
    return std::none_of(tags.begin(), tags.end(),
                        [&](const char* tag) { return !font.fontTable(tag).isEmpty(); });
}

bool SetOutlines(Tables& tables, const QRawFont& font)
{
    constexpr qsizetype headSize = 54;
    constexpr qsizetype placeSize = 50; // in `head`: whether a place in `loca` has four bytes
    constexpr qsizetype maxpSize = 32;
    constexpr qsizetype glyphCount = 4; // in `maxp`
    constexpr qsizetype programSize = 26;
    QByteArray& head = tables["head"];
    QByteArray& maxp = tables["maxp"];
    const QByteArray glyf = font.fontTable("glyf");
    if (head.size() < headSize || maxp.size() < maxpSize || glyf.isEmpty() || glyf.size() > mostOutlines)
        return false;
    const auto outlines =
        OutlinesWithoutPrograms(glyf, font.fontTable("loca"), NumberAt(head, placeSize) != 0);
    if (!outlines || outlines->loca.size() != (qsizetype{NumberAt(maxp, glyphCount)} + 1) * 4)
        return false;
    SetNumberAt(head, placeSize, 1);
    // A font without programs would get them made up, letter by letter.
    SetNumberAt(maxp, programSize, std::max<quint16>(1, NumberAt(maxp, programSize)));
    tables["glyf"] = outlines->glyf;
    tables["loca"] = outlines->loca;
    return true;
}

/// Nobody who reads a font in memory asks for its sums, so they stay 0.
QByteArray FontFile(const Tables& tables)
{
    constexpr quint32 trueType = 0x00010000;
    const auto count = static_cast<quint16>(tables.size());
    quint16 powerOfTwo = 1;
    quint16 power = 0;
    for (; powerOfTwo * 2 <= count; powerOfTwo = static_cast<quint16>(powerOfTwo * 2))
        ++power;
    QByteArray heads;
    QByteArray bodies;
    Append(heads, trueType);
    for (const int number : {int{count}, powerOfTwo * 16, int{power}, (count - powerOfTwo) * 16})
        Append(heads, static_cast<quint16>(number));
    const qsizetype begin = heads.size() + 16 * qsizetype{count};
    for (const auto& [tag, table] : tables) {
        heads += tag;
        Append(heads, quint32{0});
        Append(heads, static_cast<quint32>(begin + bodies.size()));
        Append(heads, static_cast<quint32>(table.size()));
        bodies += table;
        bodies.append((4 - bodies.size() % 4) % 4, '\0');
    }
    return heads + bodies;
}

} // namespace

bool IsInSlimFonts(QChar character)
{
    const int code = character.unicode();
    return code >= firstCharacter && code <= lastCharacter &&
           (code < firstFarCharacter || code >= firstNearCharacter);
}

QByteArray SlimFont(const QRawFont& font, const QString& family)
{
    Tables tables = CopiedTables(font);
    if (tables.empty() || !HasOneOutlineEach(font) || !SetOutlines(tables, font))
        return {};
    tables["cmap"] = CharacterTable(font);
    if (tables["cmap"].isEmpty())
        return {};
    tables["name"] = NameTable(font, family);
    return FontFile(tables);
}

} // namespace torvik
