#include "rtf/parts/field_reader.h"

#include "rtf/charset/symbol_font.h"

#include <utility>

namespace torvik::rtf {

namespace {

QString CharacterOf(const FieldInstruction& instruction)
{
    const auto unit = static_cast<char16_t>(instruction.symbol);
    const QString& font = instruction.symbolFont;
    const bool isSymbolFont =
        font == QLatin1StringView("Symbol") || font.startsWith(QLatin1StringView("Wingdings"));
    return QString(QChar(isSymbolFont ? SymbolCharacter(font, unit) : unit));
}

} // namespace

void FieldReader::Begin()
{
    if (!document_.IsBody() || document_.group.opensField)
        return;
    document_.group.opensField = true;
    fields_.emplace_back().start = document_.flow.Draft().text.size();
}

void FieldReader::EndInstruction()
{
    if (fields_.empty())
        return;
    Field& field = fields_.back();
    field.read = ReadInstruction(field.instruction);
    field.link = document_.formats.AddLink(field.read.target);
}

void FieldReader::BeginResult()
{
    if (fields_.empty() || !document_.IsBody())
        return;
    if (fields_.back().link != 0)
        document_.group.character.link = fields_.back().link;
}

QString FieldReader::End()
{
    if (fields_.empty())
        return {};
    const Field field = std::move(fields_.back());
    fields_.pop_back();
    const bool hasResult = document_.flow.Draft().text.size() != field.start;
    if (field.read.symbol == 0 || hasResult || !document_.IsBody())
        return {};
    return CharacterOf(field.read);
}

} // namespace torvik::rtf
