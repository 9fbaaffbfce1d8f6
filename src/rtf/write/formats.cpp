#include "rtf/write/formats.h"

#include "rtf/bounds/limits.h"

namespace torvik::rtf {

Formats::Formats(const FontTable& fonts, const ColorTable& colors) : fonts_(fonts), colors_(colors)
{
    links_.emplace_back();
    bookmarks_.emplace_back();
}

int Formats::Character(const CharacterState& state)
{
    const auto known = characterNumbers_.find(state);
    if (known != characterNumbers_.end())
        return known->second;
    if (characterFormats_.size() >= static_cast<std::size_t>(maxFormats))
        return 0;
    const int number = static_cast<int>(characterFormats_.size());
    characterFormats_.push_back(MakeCharacterFormat(state));
    characterNumbers_.emplace(state, number);
    return number;
}

int Formats::Paragraph(const ParagraphState& state)
{
    const auto known = paragraphNumbers_.find(state);
    if (known != paragraphNumbers_.end())
        return known->second;
    if (blockFormats_.size() >= static_cast<std::size_t>(maxFormats))
        return 0;
    const int number = static_cast<int>(blockFormats_.size());
    blockFormats_.push_back(MakeBlockFormat(state));
    paragraphStates_.push_back(state);
    paragraphNumbers_.emplace(state, number);
    return number;
}

const QTextCharFormat& Formats::CharacterFormat(int number) const
{
    return characterFormats_.at(static_cast<std::size_t>(number));
}

const QTextBlockFormat& Formats::BlockFormat(int number) const
{
    return blockFormats_.at(static_cast<std::size_t>(number));
}

const ParagraphState& Formats::StateOf(int number) const
{
    return paragraphStates_.at(static_cast<std::size_t>(number));
}

int Formats::AddLink(const QString& target)
{
    if (target.isEmpty() || links_.size() >= static_cast<std::size_t>(maxFormats))
        return 0;
    links_.push_back(target);
    return static_cast<int>(links_.size()) - 1;
}

int Formats::AddBookmark(const QString& name)
{
    if (name.isEmpty() || bookmarks_.size() >= static_cast<std::size_t>(maxFormats))
        return 0;
    bookmarks_.push_back(name);
    return static_cast<int>(bookmarks_.size()) - 1;
}

} // namespace torvik::rtf
