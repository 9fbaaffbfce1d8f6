#include "rtf/parts/field_reader.h"

#include "rtf/bounds/limits.h"
#include "rtf/charset/symbol_font.h"

#include <QRegularExpression>

#include <algorithm>
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
    const bool isInside = document_.group.destination == Destination::FieldInstruction;
    if ((!document_.IsBody() && !isInside) || document_.group.opensField)
        return;
    document_.group.opensField = true;
    Field& field = fields_.emplace_back();
    field.isInside = isInside;
    field.start = document_.flow.Draft().text.size();
    field.startParagraphs = document_.endedParagraphs;
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
    fields_.back().hasResult = true;
    if (fields_.back().link != 0)
        document_.group.character.link = fields_.back().link;
}

bool FieldReader::HasResult(const Field& field) const
{
    return document_.flow.Draft().text.size() != field.start ||
           document_.endedParagraphs != field.startParagraphs;
}

/// Gives the value of a field to the instruction around it, as one piece of that.
void FieldReader::HandOut(const QString& value)
{
    QString& around = fields_.back().instruction;
    if (around.size() + value.size() > maxAsideText)
        return;
    const bool isQuoted = around.count(u'"') % 2 != 0;
    const bool hasSpaces = std::any_of(value.begin(), value.end(), [](QChar c) { return c.isSpace(); });
    const bool needsQuotes = !isQuoted && (value.isEmpty() || hasSpaces);
    QString plain = value;
    plain.remove(u'"');
    // The word that names the target of a button ends where the field begins that is the button's text.
    static const QRegularExpression bareButton(QStringLiteral("^\\s*(GOTO|MACRO)BUTTON\\s+\\S+$"),
                                               QRegularExpression::CaseInsensitiveOption);
    if (around.contains(bareButton))
        around += u' ';
    around += needsQuotes ? QString(u'"' + plain + u'"') : plain;
}

void FieldReader::BeginLine()
{
    QString& text = document_.group.destination == Destination::FieldValue ? Value() : Instruction();
    const bool isAtStart = text.isEmpty() || text.back().isSpace() || text.back() == u'"';
    if (!isAtStart && text.size() < maxAsideText)
        text += QChar::LineSeparator;
}

void FieldReader::LookAround()
{
    surroundings_.page = document_.page.number;
    if (!surroundings_.now.isValid())
        surroundings_.now = QDateTime::currentDateTime();
}

void FieldReader::BeginBookmark(const QString& name)
{
    if (document_.IsBody())
        document_.bookmarks.Begin(name, document_.TextPlace(), document_.flow.Draft().text.size());
}

void FieldReader::EndBookmark(const QString& name)
{
    if (document_.IsBody())
        document_.bookmarks.End(name, document_.TextPlace(), document_.flow.Draft().text);
}

QString FieldReader::TextOf(const QString& instruction)
{
    if (!document_.IsBody())
        return {};
    LookAround();
    return ResultOf(ReadInstruction(instruction), FormField(), surroundings_);
}

QString FieldReader::End()
{
    if (fields_.empty())
        return {};
    const Field field = std::move(fields_.back());
    fields_.pop_back();
    LookAround();
    if (field.isInside) {
        if (!fields_.empty())
            HandOut(field.value.isEmpty() ? ResultOf(field.read, field.form, surroundings_) : field.value);
        return {};
    }
    if (!document_.IsBody() || HasResult(field))
        return {};
    // An empty link is a place that nobody sees, not one that shows its address.
    if (field.hasResult && field.read.keyword == QLatin1StringView("HYPERLINK"))
        return {};
    if (field.read.symbol != 0)
        return CharacterOf(field.read);
    return ResultOf(field.read, field.form, surroundings_);
}

} // namespace torvik::rtf
