#pragma once

#include "runtime/failure.h"

#include <QString>

#include <map>
#include <memory>
#include <utility>

namespace torvik {

using namespace Qt::StringLiterals;

/// Controls of one name that are told apart by an index; an index may be missing. Each is named "cmdYR(3)".
template <typename T>
class ControlArray {
public:
    explicit ControlArray(QString name) : name_(std::move(name)) {}

    /// An array that begins with a member, where the place among its siblings matters.
    template <typename Parent, typename... Args>
    ControlArray(QString name, int index, Parent& parent, Args&&... args) : name_(std::move(name))
    {
        Add(index, parent, std::forward<Args>(args)...);
    }

    /// Makes the member `index` on a container; the other arguments are those of the control after its name.
    template <typename Parent, typename... Args>
    T& Add(int index, Parent& parent, Args&&... args)
    {
        auto control =
            std::make_unique<T>(parent, u"%1(%2)"_s.arg(name_).arg(index), std::forward<Args>(args)...);
        return *(members_[index] = std::move(control));
    }

    /// Failure 340 for an index that has no member.
    T& operator()(int index)
    {
        const auto member = members_.find(index);
        if (member == members_.end())
            Fail(failure::noSuchElement);
        return *member->second;
    }

    /// Calls `bind(index, member)` for each.
    template <typename Bind>
    void Each(Bind&& bind)
    {
        for (auto& [index, member] : members_)
            bind(index, *member);
    }

    int Count() const { return static_cast<int>(members_.size()); }

private:
    QString name_;
    std::map<int, std::unique_ptr<T>> members_;
};

} // namespace torvik
