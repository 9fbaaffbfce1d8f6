#include "rtf/parts/text_router.h"

#include "rtf/bounds/limits.h"

namespace torvik::rtf {

namespace {

constexpr char16_t frameStart = 0xfdd0;
constexpr char16_t frameEnd = 0xfdd1;

/// Characters that the document would take for its own structure.
char16_t Harmless(char16_t unit)
{
    switch (unit) {
    case u'\n':
    case u'\r':
    case 0x2029:
        return 0x2028;
    case frameStart:
    case frameEnd:
    case QChar::ObjectReplacementCharacter:
    case 0:
        return QChar::ReplacementCharacter;
    default:
        return unit;
    }
}

} // namespace

bool TextRouter::PutPlainBytes(std::string_view bytes)
{
    const CodePage& page = *document_.group.page;
    if (page.PageKind() != CodePage::Kind::SingleByte || !document_.IsBody() || looks_.HasBookmark() ||
        looks_.VariesByLetter())
        return false;
    if (document_.group.character.hidden)
        return true;
    Paragraph& draft = document_.flow.Draft();
    page.Decode(bytes, draft.text);
    if (bytes.size() == 1) // only an escape can stand for a line end
        draft.text.back() = Harmless(draft.text.back().unicode());
    draft.CoverTail(looks_.Format());
    return true;
}

void TextRouter::Put(const QString& text)
{
    if (QString* aside = AsideText()) {
        if (aside->size() < maxAsideText)
            aside->append(text);
        return;
    }
    if (!document_.IsBody() || document_.group.character.hidden)
        return;
    QString shown = text;
    for (QChar& c : shown)
        c = Harmless(c.unicode());
    if (looks_.VariesByLetter())
        PutLetterByLetter(shown);
    else
        document_.flow.Draft().Append(shown, looks_.Format());
    looks_.SetBookmark(0);
}

/// Signs between letters, and figures, look like the letters before them.
void TextRouter::PutLetterByLetter(const QString& text)
{
    Paragraph& draft = document_.flow.Draft();
    bool isComplex = document_.group.character.rightToLeft;
    for (qsizetype begin = 0; begin < text.size();) {
        const bool isSpace = text.at(begin).isSpace();
        qsizetype end = begin;
        bool endsComplex = isComplex;
        while (end < text.size() && text.at(end).isSpace() == isSpace) {
            const QChar c = text.at(end);
            if (c.isLetter() || IsComplexLetter(c))
                endsComplex = IsComplexLetter(c);
            if (endsComplex != isComplex && end > begin)
                break;
            isComplex = endsComplex;
            ++end;
        }
        draft.Append(text.mid(begin, end - begin), looks_.FormatOf(isSpace, isComplex));
        begin = end;
    }
}

QString* TextRouter::AsideText()
{
    switch (document_.group.destination) {
    case Destination::Fonts:
    case Destination::LevelText:
    case Destination::Bookmark:
    case Destination::BookmarkEnd:
    case Destination::ShapePropertyName:
    case Destination::ShapePropertyValue:
        return &document_.aside;
    case Destination::AlternativeFont:
        return &fonts_.AlternativeName();
    case Destination::FieldInstruction:
        return &fields_.Instruction();
    case Destination::FieldValue:
        return &fields_.Value();
    case Destination::FormText:
        return &fields_.Form().text;
    case Destination::FormChoice:
    case Destination::InformationEntry:
        return &document_.aside;
    case Destination::Mark:
        return &paragraphs_.Mark();
    case Destination::NumberingBefore:
        return &document_.group.paragraph.numbering.before;
    case Destination::NumberingAfter:
        return &document_.group.paragraph.numbering.after;
    default:
        return nullptr;
    }
}

} // namespace torvik::rtf
