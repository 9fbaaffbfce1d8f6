#include "rtf/model/list_table.h"

#include "rtf/bounds/limits.h"

#include <algorithm>

namespace torvik::rtf {

void ListTable::BeginList()
{
    if (lists_.size() < static_cast<std::size_t>(maxLists))
        lists_.emplace_back();
}

void ListTable::SetListId(int id)
{
    if (!lists_.empty())
        lists_.back().id = id;
}

ListLevel* ListTable::BeginLevel()
{
    if (lists_.empty() || lists_.back().levels.size() >= static_cast<std::size_t>(maxLevels))
        return nullptr;
    return &lists_.back().levels.emplace_back();
}

ListLevel* ListTable::CurrentLevel()
{
    if (lists_.empty() || lists_.back().levels.empty())
        return nullptr;
    return &lists_.back().levels.back();
}

void ListTable::BeginOverride()
{
    current_ = Override();
}

void ListTable::SetOverriddenList(int id)
{
    current_.id = id;
}

void ListTable::BeginOverriddenLevel()
{
    constexpr int asTheList = -1;
    if (current_.starts.size() < static_cast<std::size_t>(maxLevels))
        current_.starts.push_back(asTheList);
}

void ListTable::SetOverriddenStart(int start)
{
    if (current_.starts.empty())
        return;
    current_.starts.back() = start;
    current_.hasStarts = true;
}

void ListTable::SetReference(int number)
{
    if (overrides_.size() < static_cast<std::size_t>(maxLists))
        overrides_[number] = current_;
}

const ListLevel* ListTable::Find(int reference, int level) const
{
    const auto found = overrides_.find(reference);
    if (found == overrides_.end() || level < 0)
        return nullptr;
    const auto list =
        std::find_if(lists_.begin(), lists_.end(), [&](const List& l) { return l.id == found->second.id; });
    if (list == lists_.end() || static_cast<std::size_t>(level) >= list->levels.size())
        return nullptr;
    return &list->levels[static_cast<std::size_t>(level)];
}

int ListTable::StartOf(int reference, int level) const
{
    const auto found = overrides_.find(reference);
    const auto place = static_cast<std::size_t>(std::max(level, 0));
    if (found != overrides_.end() && place < found->second.starts.size() && found->second.starts[place] >= 0)
        return found->second.starts[place];
    const ListLevel* definition = Find(reference, level);
    return definition != nullptr ? definition->startAt : 1;
}

int ListTable::KeyOf(int reference) const
{
    const auto found = overrides_.find(reference);
    if (found == overrides_.end())
        return reference;
    // Numbers of lists are not negative in practice, so these meet none.
    return found->second.hasStarts ? -2 - reference : found->second.id;
}

} // namespace torvik::rtf
