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
    overriddenId_ = 0;
}

void ListTable::SetOverriddenList(int id)
{
    overriddenId_ = id;
}

void ListTable::SetReference(int number)
{
    if (listOfReference_.size() < static_cast<std::size_t>(maxLists))
        listOfReference_[number] = overriddenId_;
}

const ListLevel* ListTable::Find(int reference, int level) const
{
    const auto id = listOfReference_.find(reference);
    if (id == listOfReference_.end() || level < 0)
        return nullptr;
    const auto list =
        std::find_if(lists_.begin(), lists_.end(), [&](const List& l) { return l.id == id->second; });
    if (list == lists_.end() || static_cast<std::size_t>(level) >= list->levels.size())
        return nullptr;
    return &list->levels[static_cast<std::size_t>(level)];
}

int ListTable::KeyOf(int reference) const
{
    const auto id = listOfReference_.find(reference);
    return id == listOfReference_.end() ? reference : id->second;
}

} // namespace torvik::rtf
