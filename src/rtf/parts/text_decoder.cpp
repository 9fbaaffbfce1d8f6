#include "rtf/parts/text_decoder.h"

#include "rtf/charset/symbol_font.h"

#include <algorithm>
#include <utility>

namespace torvik::rtf {

void TextDecoder::PutBytes(std::string_view bytes)
{
    const CodePage& page = *document_.group.page;
    if (page.PageKind() == CodePage::Kind::MultiByte) {
        pendingBytes_.append(bytes);
        CountPairs(bytes);
        return;
    }
    if (router_.PutPlainBytes(bytes))
        return;
    scratch_.resize(0);
    page.Decode(bytes, scratch_);
    Put(scratch_);
}

void TextDecoder::CountPairs(std::string_view bytes)
{
    for (const char byte : bytes) {
        pendingPairs_ += endsInHalf_ ? 1 : 0;
        endsInHalf_ = !endsInHalf_ && document_.group.page->IsLead(byte);
    }
}

/// A lone byte above 127 is more often a letter in a font of the wrong kind, so a pair must have come before.
bool TextDecoder::IsCompletedBy(char byte) const
{
    if (!endsInHalf_ || pendingPairs_ == 0)
        return false;
    QString character;
    const char pair[] = {pendingBytes_.back(), byte};
    document_.group.page->Decode({pair, sizeof pair}, character);
    return character.size() == 1 && character.at(0) != QChar(QChar::ReplacementCharacter);
}

std::string_view TextDecoder::WithoutStandIn(std::string_view bytes)
{
    const std::size_t passed = std::min(bytes.size(), static_cast<std::size_t>(standInLeft_));
    standInLeft_ -= static_cast<int>(passed);
    bytes.remove_prefix(passed);
    return bytes;
}

void TextDecoder::Flush()
{
    FlushBytes();
    FlushHalfCharacter();
}

void TextDecoder::FlushHalfCharacter()
{
    if (highSurrogate_ == 0)
        return;
    highSurrogate_ = 0;
    PutUnknown();
}

void TextDecoder::FlushBytes()
{
    if (pendingBytes_.empty())
        return;
    QString text;
    document_.group.page->Decode(pendingBytes_, text);
    pendingBytes_.clear();
    pendingPairs_ = 0;
    endsInHalf_ = false;
    Put(text);
}

void TextDecoder::Put(const QString& text)
{
    const GroupState& group = document_.group;
    const bool isFontName =
        group.destination == Destination::Fonts || group.destination == Destination::AlternativeFont;
    if (group.page->PageKind() != CodePage::Kind::Symbol || isFontName)
        return router_.Put(text);
    const FontEntry* font = document_.fonts.Find(group.character.font);
    QString shown = text;
    for (QChar& c : shown)
        c = SymbolCharacter(font != nullptr ? font->family : QString(), c.unicode());
    router_.Put(shown);
}

void TextDecoder::PutUnknown()
{
    Put(QString(QChar(QChar::ReplacementCharacter)));
}

void TextDecoder::PutCharacter(char16_t unit)
{
    Flush();
    Put(QString(QChar(unit)));
}

void TextDecoder::PutUnicode(int value)
{
    const char16_t held = std::exchange(highSurrogate_, u'\0');
    standInLeft_ = document_.group.fallbackLength;
    const int code = value < 0 ? value + 0x10000 : value;
    if (code <= 0 || code > 0x10ffff)
        return PutUnknown();
    const auto point = static_cast<char32_t>(code);
    if (held != 0 && QChar::isLowSurrogate(point)) {
        const QChar pair[] = {QChar(held), QChar(static_cast<char16_t>(code))};
        return Put(QString(pair, 2));
    }
    if (held != 0)
        PutUnknown();
    if (QChar::isHighSurrogate(point))
        highSurrogate_ = static_cast<char16_t>(code);
    else if (QChar::isLowSurrogate(point))
        PutUnknown();
    else
        Put(QString::fromUcs4(&point, 1));
}

} // namespace torvik::rtf
