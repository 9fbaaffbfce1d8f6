#include "rtf/model/list_counter.h"

#include <algorithm>

namespace torvik::rtf {

namespace {

// Lists of the older kind have no number of their own.
constexpr int keyOfNumbering = -1;

int NumberFormatOf(const ParagraphState& paragraph, const ListLevel* level)
{
    if (level != nullptr)
        return level->format;
    switch (paragraph.numbering.kind) {
    case ParagraphNumbering::Kind::Bullet:
        return ListTable::bulletFormat;
    case ParagraphNumbering::Kind::Number:
        return paragraph.numbering.format;
    case ParagraphNumbering::Kind::None:
        break;
    }
    return -1;
}

} // namespace

ListMark ListCounter::MarkOf(const ParagraphState& paragraph, const QString& written)
{
    const ListLevel* level = lists_.Find(paragraph.list, paragraph.listLevel);
    const bool isNumbered = paragraph.numbering.kind != ParagraphNumbering::Kind::None;
    numbering_ = isNumbered ? numbering_ + 1 : 0;
    ListMark mark;
    if (!written.trimmed().isEmpty()) {
        mark = MarkFromText(written, NumberFormatOf(paragraph, level));
        if (level != nullptr)
            Count(paragraph, values_[lists_.KeyOf(paragraph.list)]);
    } else if (level != nullptr) {
        mark = CountedMark(paragraph);
    } else if (isNumbered) {
        mark = MarkFromNumbering(paragraph.numbering, paragraph.numbering.start + numbering_ - 1);
    }
    mark.listKey = paragraph.list != 0 ? lists_.KeyOf(paragraph.list) : keyOfNumbering;
    mark.level = paragraph.listLevel;
    return mark;
}

void ListCounter::Count(const ParagraphState& paragraph, Values& values) const
{
    const auto place = static_cast<std::size_t>(paragraph.listLevel);
    for (std::size_t i = 0; i < values.size(); ++i) {
        const ListLevel* level = lists_.Find(paragraph.list, static_cast<int>(i));
        const int start = level != nullptr ? std::clamp(level->startAt, 0, 30000) : 1;
        if (i == place)
            values[i] = values[i] == 0 ? start : values[i] + 1;
        else if (i < place)
            values[i] = values[i] == 0 ? start : values[i];
        else
            values[i] = 0;
    }
}

ListMark ListCounter::CountedMark(const ParagraphState& paragraph)
{
    Values& values = values_[lists_.KeyOf(paragraph.list)];
    Count(paragraph, values);
    const ListLevel* level = lists_.Find(paragraph.list, paragraph.listLevel);
    return MarkFromLevel(*level, values.data(), paragraph.listLevel + 1);
}

} // namespace torvik::rtf
