#include "rtf/model/list_counter.h"

#include "rtf/model/number_signs.h"

#include <algorithm>

namespace torvik::rtf {

namespace {

/// Instead of the last number of a level; 0 is a number that lists may begin with.
constexpr int noneYet = -1;

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
    case ParagraphNumbering::Kind::Skipped:
        break;
    }
    return -1;
}

} // namespace

ListCounter::ListCounter(const ListTable& lists) : lists_(lists)
{
    numbering_.fill(noneYet);
}

ListCounter::Values& ListCounter::ValuesOf(int list)
{
    Values none;
    none.fill(noneYet);
    return values_.try_emplace(lists_.KeyOf(list), none).first->second;
}

ListMark ListCounter::MarkOf(const ParagraphState& paragraph, const QString& written)
{
    const ListLevel* level = lists_.Find(paragraph.list, paragraph.listLevel);
    const bool isNumbered = paragraph.numbering.HasMark();
    if (paragraph.numbering.kind == ParagraphNumbering::Kind::None)
        numbering_.fill(noneYet);
    const int number = isNumbered ? NextNumber(paragraph.numbering) : 0;
    ListMark mark;
    // Writers for readers that know no lists often put plain numbers where the list has signs of its own.
    const bool isCounted = written.trimmed().isEmpty() || (level != nullptr && HasOwnSigns(level->format));
    if (!isCounted) {
        mark = MarkFromText(written, NumberFormatOf(paragraph, level));
        if (level != nullptr)
            Count(paragraph, ValuesOf(paragraph.list));
    } else if (level != nullptr) {
        mark = CountedMark(paragraph);
    } else if (isNumbered) {
        mark = MarkFromNumbering(paragraph.numbering, number);
    }
    constexpr int blank = 1;
    if (level != nullptr && level->follow != 0 && written.isEmpty())
        mark.gap = level->follow == blank ? QStringLiteral(" ") : QString();
    mark.listKey = paragraph.list != 0 ? lists_.KeyOf(paragraph.list) : ListKey();
    mark.level = paragraph.listLevel;
    mark.rightToLeft = paragraph.rightToLeft;
    return mark;
}

/// A bullet between two numbers does not count, and a number ends those of the levels below it.
int ListCounter::NextNumber(const ParagraphNumbering& numbering)
{
    if (numbering.kind == ParagraphNumbering::Kind::Bullet)
        return 0;
    const std::size_t level = std::min<std::size_t>(numbering.level, numbering_.size() - 1);
    int& last = numbering_[level];
    last = last == noneYet ? numbering.start : last + 1;
    std::fill(numbering_.begin() + static_cast<std::ptrdiff_t>(level) + 1, numbering_.end(), noneYet);
    return last;
}

void ListCounter::Count(const ParagraphState& paragraph, Values& values) const
{
    const auto place = static_cast<std::size_t>(paragraph.listLevel);
    for (std::size_t i = 0; i < values.size(); ++i) {
        const int start = std::clamp(lists_.StartOf(paragraph.list, static_cast<int>(i)), 0, 30000);
        if (i == place)
            values[i] = values[i] == noneYet ? start : values[i] + 1;
        else if (i < place)
            values[i] = values[i] == noneYet ? start : values[i];
        else if (!GoesOn(paragraph.list, static_cast<int>(i)))
            values[i] = noneYet;
    }
}

bool ListCounter::GoesOn(int list, int level) const
{
    const ListLevel* definition = lists_.Find(list, level);
    return definition != nullptr && definition->goesOn;
}

ListMark ListCounter::CountedMark(const ParagraphState& paragraph)
{
    Values& values = ValuesOf(paragraph.list);
    Count(paragraph, values);
    std::array<LevelNumber, ListTable::maxLevels> numbers;
    for (int i = 0; i <= paragraph.listLevel; ++i) {
        const ListLevel* level = lists_.Find(paragraph.list, i);
        const auto place = static_cast<std::size_t>(i);
        numbers[place] = {values[place], level != nullptr ? level->format : 0};
    }
    return MarkFromLevel(*lists_.Find(paragraph.list, paragraph.listLevel), numbers.data(),
                         paragraph.listLevel + 1);
}

} // namespace torvik::rtf
