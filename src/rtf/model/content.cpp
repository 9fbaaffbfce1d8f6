#include "rtf/model/content.h"

#include <utility>

namespace torvik::rtf {

Block::Block() = default;
Block::Block(Paragraph text) : paragraph(std::move(text)) {}
Block::Block(std::unique_ptr<Table> inner) : table(std::move(inner)) {}
Block::Block(std::unique_ptr<Box> inner) : box(std::move(inner)) {}
Block::Block(Block&& other) noexcept = default;
Block& Block::operator=(Block&& other) noexcept = default;
Block::~Block() = default;

void Paragraph::Append(const QString& piece, int characterFormat)
{
    text.append(piece);
    CoverTail(characterFormat);
}

void Paragraph::CoverTail(int characterFormat)
{
    const qsizetype added = text.size() - covered_;
    if (added <= 0)
        return;
    covered_ = text.size();
    if (!spans.empty() && spans.back().format == characterFormat && spans.back().picture == 0)
        spans.back().length += added;
    else
        spans.push_back({added, characterFormat, 0});
}

void Paragraph::AppendPicture(int picture, int characterFormat)
{
    text.append(QChar(QChar::ObjectReplacementCharacter));
    covered_ = text.size();
    spans.push_back({1, characterFormat, picture});
}

void Paragraph::ClearText()
{
    text.resize(0);
    spans.clear();
    covered_ = 0;
}

} // namespace torvik::rtf
