#include "rtf/bounds/limits.h"
#include "rtf/charset/symbol_font.h"
#include "rtf/read/interpreter.h"

#include <algorithm>

// How the reader turns bytes and character codes into the text of paragraphs.

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

void Interpreter::PutBytes(std::string_view bytes)
{
    if (fallbackLeft_ > 0) {
        const std::size_t skipped = std::min(bytes.size(), static_cast<std::size_t>(fallbackLeft_));
        fallbackLeft_ -= static_cast<int>(skipped);
        bytes.remove_prefix(skipped);
        if (bytes.empty())
            return;
    }
    if (highSurrogate_ != 0)
        FlushText();
    switch (state_.destination) {
    case Destination::Picture:
        picture_.AppendHex(bytes.data(), bytes.size());
        return;
    case Destination::Colors:
        for (const char c : bytes) {
            if (c == ';')
                colors_.EndEntry();
        }
        return;
    case Destination::Hidden:
    case Destination::Styles:
        return;
    default:
        break;
    }
    if (state_.page->PageKind() == CodePage::Kind::MultiByte) {
        // The halves of a character may come in several tokens.
        pendingBytes_.append(bytes);
        return;
    }
    const bool isPlain = state_.page->PageKind() == CodePage::Kind::SingleByte;
    if (isPlain && IsBody() && bookmark_ == 0) {
        if (state_.character.hidden)
            return;
        Paragraph& draft = flow_.Draft();
        state_.page->Decode(bytes, draft.text);
        if (bytes.size() == 1) // only an escape gives out line ends
            draft.text.back() = Harmless(draft.text.back().unicode());
        draft.CoverTail(CurrentFormat());
        return;
    }
    scratch_.resize(0);
    state_.page->Decode(bytes, scratch_);
    PutText(scratch_);
}

void Interpreter::FlushText()
{
    FlushBytes();
    if (highSurrogate_ == 0)
        return;
    highSurrogate_ = 0;
    PutText(QString(QChar(QChar::ReplacementCharacter)));
}

void Interpreter::FlushBytes()
{
    if (pendingBytes_.empty())
        return;
    QString text;
    state_.page->Decode(pendingBytes_, text);
    pendingBytes_.clear();
    PutText(text);
}

void Interpreter::PutText(const QString& text)
{
    QString shown = text;
    const bool isFontName =
        state_.destination == Destination::Fonts || state_.destination == Destination::AlternativeFont;
    if (state_.page->PageKind() == CodePage::Kind::Symbol && !isFontName) {
        const FontEntry* font = fonts_.Find(state_.character.font);
        for (QChar& c : shown)
            c = SymbolCharacter(font != nullptr ? font->family : QString(), c.unicode());
    }
    if (QString* aside = AsideText()) {
        if (aside->size() < maxAsideText)
            aside->append(shown);
        return;
    }
    if (!IsBody() || state_.character.hidden)
        return;
    for (QChar& c : shown)
        c = Harmless(c.unicode());
    flow_.Draft().Append(shown, CurrentFormat());
    bookmark_ = 0;
}

void Interpreter::PutCharacter(char16_t unit)
{
    FlushText();
    PutText(QString(QChar(unit)));
}

void Interpreter::PutUnicode(int value)
{
    const char16_t held = highSurrogate_;
    highSurrogate_ = 0;
    fallbackLeft_ = state_.fallbackLength;
    const int code = value < 0 ? value + 0x10000 : value;
    if (code <= 0 || code > 0x10ffff) {
        PutText(QString(QChar(QChar::ReplacementCharacter)));
        return;
    }
    const auto point = static_cast<char32_t>(code);
    if (held != 0 && QChar::isLowSurrogate(point)) {
        const QChar pair[] = {QChar(held), QChar(static_cast<char16_t>(code))};
        PutText(QString(pair, 2));
        return;
    }
    if (held != 0)
        PutText(QString(QChar(QChar::ReplacementCharacter)));
    if (QChar::isHighSurrogate(point))
        highSurrogate_ = static_cast<char16_t>(code);
    else if (QChar::isLowSurrogate(point))
        PutText(QString(QChar(QChar::ReplacementCharacter)));
    else
        PutText(QString::fromUcs4(&point, 1));
}

void Interpreter::PutSymbol(const FieldInstruction& symbol)
{
    char16_t unit = static_cast<char16_t>(symbol.symbol);
    const bool isSymbolFont = symbol.symbolFont == QLatin1StringView("Symbol") ||
                              symbol.symbolFont.startsWith(QLatin1StringView("Wingdings"));
    if (isSymbolFont)
        unit = SymbolCharacter(symbol.symbolFont, unit);
    PutText(QString(QChar(unit)));
}

QString* Interpreter::AsideText()
{
    switch (state_.destination) {
    case Destination::Fonts:
    case Destination::LevelText:
    case Destination::Bookmark:
        return &aside_;
    case Destination::AlternativeFont:
        return currentFont_ != nullptr ? &currentFont_->alternative : &aside_;
    case Destination::FieldInstruction:
        return fields_.empty() ? &aside_ : &fields_.back().instruction;
    case Destination::Mark:
        return &mark_;
    case Destination::NumberingBefore:
        return &state_.paragraph.numbering.before;
    case Destination::NumberingAfter:
        return &state_.paragraph.numbering.after;
    default:
        return nullptr;
    }
}

int Interpreter::CurrentFormat()
{
    if (bookmark_ != 0) {
        CharacterState marked = state_.character;
        marked.bookmark = bookmark_;
        return formats_.Character(marked);
    }
    if (lastFormat_ < 0 || !(lastCharacter_ == state_.character)) {
        lastCharacter_ = state_.character;
        lastFormat_ = formats_.Character(state_.character);
    }
    return lastFormat_;
}

} // namespace torvik::rtf
