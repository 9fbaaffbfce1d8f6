#include "ui/printer/slim_font.h"

#include <QRawFont>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <hb-subset.h>
#include <map>
#include <memory>
#include <utility>

namespace torvik {

namespace {

struct Releaser {
    void operator()(hb_blob_t* blob) const { hb_blob_destroy(blob); }
    void operator()(hb_face_t* face) const { hb_face_destroy(face); }
    void operator()(hb_subset_input_t* input) const { hb_subset_input_destroy(input); }
};
using Blob = std::unique_ptr<hb_blob_t, Releaser>;
using Face = std::unique_ptr<hb_face_t, Releaser>;
using SubsetInput = std::unique_ptr<hb_subset_input_t, Releaser>;
using Tables = std::map<hb_tag_t, QByteArray>;

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

/// Pictures and outlines that change with a setting are more than one outline a glyph.
bool HasOneOutlineEach(const QRawFont& font)
{
    const auto tags = {"CBDT", "COLR", "SVG ", "fvar", "sbix"};
    return std::none_of(tags.begin(), tags.end(),
                        [&](const char* tag) { return !font.fontTable(tag).isEmpty(); });
}

/// What letters are drawn, measured and joined with.
Tables TablesOf(const QRawFont& font)
{
    Tables tables;
    for (const char* tag : {"GDEF", "GPOS", "GSUB", "OS/2", "cmap", "glyf", "head", "hhea", "hmtx", "kern",
                            "loca", "maxp", "post"}) {
        QByteArray table = font.fontTable(tag);
        if (!table.isEmpty())
            tables[hb_tag_from_string(tag, -1)] = std::move(table);
    }
    return tables;
}

QByteArray BytesOf(const Blob& blob)
{
    unsigned length = 0;
    const char* bytes = hb_blob_get_data(blob.get(), &length);
    return {bytes, static_cast<qsizetype>(length)};
}

Tables TablesOf(const Face& face)
{
    std::array<hb_tag_t, 64> tags{};
    auto count = static_cast<unsigned>(tags.size());
    hb_face_get_table_tags(face.get(), 0, &count, tags.data());
    Tables tables;
    for (unsigned index = 0; index < count; ++index)
        tables[tags.at(index)] = BytesOf(Blob(hb_face_reference_table(face.get(), tags.at(index))));
    return tables;
}

Blob FileOf(const Tables& tables)
{
    const Face file(hb_face_builder_create());
    for (const auto& [tag, table] : tables) {
        const Blob blob(hb_blob_create(table.constData(), static_cast<unsigned>(table.size()),
                                       HB_MEMORY_MODE_DUPLICATE, nullptr, nullptr));
        hb_face_builder_add_table(file.get(), tag, blob.get());
    }
    return Blob(hb_face_reference_blob(file.get()));
}

/// The tables with the characters of slim fonts alone, without programs; glyphs keep their numbers. Empty
/// where the tables are damaged.
Tables SlimTables(const Tables& tables)
{
    const SubsetInput input(hb_subset_input_create_or_fail());
    if (input == nullptr)
        return {};
    hb_subset_input_set_flags(input.get(), HB_SUBSET_FLAGS_NO_HINTING | HB_SUBSET_FLAGS_RETAIN_GIDS |
                                               HB_SUBSET_FLAGS_NO_PRUNE_UNICODE_RANGES);
    hb_set_t* characters = hb_subset_input_unicode_set(input.get());
    hb_set_add_range(characters, firstCharacter, firstFarCharacter - 1);
    hb_set_add_range(characters, firstNearCharacter, lastCharacter);
    hb_set_t* unchanged = hb_subset_input_set(input.get(), HB_SUBSET_SETS_NO_SUBSET_TABLE_TAG);
    for (const char* tag : {"GDEF", "GPOS", "GSUB", "kern", "post"})
        hb_set_add(unchanged, hb_tag_from_string(tag, -1));
    // Between files, since some versions of the library lose the tables of other faces on the way.
    const Face whole(hb_face_create(FileOf(tables).get(), 0));
    const Face slim(hb_subset_or_fail(whole.get(), input.get()));
    if (slim == nullptr)
        return {};
    const Blob file(hb_face_reference_blob(slim.get()));
    return TablesOf(Face(hb_face_create(file.get(), 0)));
}

/// A font that says it has no programs would get them made up, letter by letter.
void SetProgramSize(QByteArray& maxp)
{
    constexpr qsizetype place = 26;
    constexpr quint16 smallest = 1;
    if (maxp.size() >= place + static_cast<qsizetype>(sizeof smallest))
        qToBigEndian(smallest, maxp.data() + place);
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
    const qsizetype outlines = font.fontTable("glyf").size();
    if (outlines == 0 || outlines > mostOutlines || !HasOneOutlineEach(font))
        return {};
    const QByteArray characters = CharacterTable(font);
    Tables tables = SlimTables(TablesOf(font));
    if (tables.empty() || characters.isEmpty())
        return {};
    tables[HB_TAG('c', 'm', 'a', 'p')] = characters;
    tables[HB_TAG('n', 'a', 'm', 'e')] = NameTable(font, family);
    SetProgramSize(tables[HB_TAG('m', 'a', 'x', 'p')]);
    return BytesOf(FileOf(tables));
}

} // namespace torvik
