#include "rtf/model/list_table.h"

#include "rtf/bounds/limits.h"

#include <algorithm>

namespace torvik::rtf {

namespace {

/// The levels, and one that takes what is told about levels beyond them.
constexpr std::size_t keptLevels = ListTable::maxLevels + 1;

} // namespace

void ListTable::BeginList()
{
    inOverride_ = false;
    if (lists_.size() < static_cast<std::size_t>(maxLists))
        lists_.emplace_back();
}

void ListTable::SetListId(int id)
{
    if (!lists_.empty())
        lists_.back().id = id;
}

void ListTable::BeginLevel()
{
    if (inOverride_) {
        if (!current_.levels.empty())
            current_.levels.back().definition.emplace();
    } else if (!lists_.empty() && lists_.back().levels.size() < keptLevels) {
        lists_.back().levels.emplace_back();
    }
}

ListLevel* ListTable::CurrentLevel()
{
    if (inOverride_) {
        const bool isDefined = !current_.levels.empty() && current_.levels.back().definition.has_value();
        return isDefined ? &*current_.levels.back().definition : nullptr;
    }
    if (lists_.empty() || lists_.back().levels.empty())
        return nullptr;
    return &lists_.back().levels.back();
}

void ListTable::BeginOverride()
{
    current_ = Override();
    inOverride_ = true;
}

void ListTable::SetOverriddenList(int id)
{
    current_.id = id;
}

void ListTable::BeginOverriddenLevel()
{
    if (current_.levels.size() < keptLevels)
        current_.levels.emplace_back();
}

void ListTable::RestartOverriddenLevel()
{
    if (!current_.levels.empty())
        current_.levels.back().restarts = true;
}

void ListTable::SetStart(int start)
{
    if (ListLevel* level = CurrentLevel())
        level->startAt = start;
    else if (inOverride_ && !current_.levels.empty())
        current_.levels.back().start = start;
}

void ListTable::SetReference(int number)
{
    if (overrides_.size() < static_cast<std::size_t>(maxLists))
        overrides_[number] = current_;
}

const ListTable::OverriddenLevel* ListTable::Override::LevelAt(int level) const
{
    const auto place = static_cast<std::size_t>(level);
    return level >= 0 && place < levels.size() ? &levels[place] : nullptr;
}

bool ListTable::Override::Restarts() const
{
    return std::any_of(levels.begin(), levels.end(), [](const OverriddenLevel& level) {
        return level.restarts || level.start.has_value();
    });
}

const ListLevel* ListTable::Find(int reference, int level) const
{
    const auto found = overrides_.find(reference);
    if (found == overrides_.end() || level < 0)
        return nullptr;
    const OverriddenLevel* changed = found->second.LevelAt(level);
    if (changed != nullptr && changed->definition.has_value())
        return &*changed->definition;
    const auto list =
        std::find_if(lists_.begin(), lists_.end(), [&](const List& l) { return l.id == found->second.id; });
    if (list == lists_.end() || static_cast<std::size_t>(level) >= list->levels.size())
        return nullptr;
    return &list->levels[static_cast<std::size_t>(level)];
}

int ListTable::StartOf(int reference, int level) const
{
    const auto found = overrides_.find(reference);
    const OverriddenLevel* changed = found != overrides_.end() ? found->second.LevelAt(level) : nullptr;
    if (changed != nullptr && changed->start.has_value())
        return *changed->start;
    const ListLevel* definition = Find(reference, level);
    return definition != nullptr ? definition->startAt : 1;
}

ListKey ListTable::KeyOf(int reference) const
{
    const auto found = overrides_.find(reference);
    if (found == overrides_.end() || found->second.Restarts())
        return {ListKey::Kind::Reference, reference};
    return {ListKey::Kind::List, found->second.id};
}

} // namespace torvik::rtf
