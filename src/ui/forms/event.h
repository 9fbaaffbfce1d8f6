#pragma once

#include <functional>
#include <utility>

namespace torvik {

/// Stands on the stack while a handler runs. What a handler ends (a form that it unloads) must not go away
/// under the handlers that are still running, its own or those below it.
class HandlerScope {
public:
    HandlerScope();
    ~HandlerScope();
    HandlerScope(const HandlerScope&) = delete;
    HandlerScope& operator=(const HandlerScope&) = delete;

    /// Runs `work`, which must not throw, when the last of the running handlers is done; at once while none
    /// runs.
    static void WhenAllAreDone(std::function<void()> work);
};

/// Runs a handler at the edge between Qt and the program. A failure that no trap of the handler met
/// is shown with its number and ends the program; while the program is ending no handler runs any more.
void RunHandler(const std::function<void()>& handler);

/// An event of a control or form: holds the one handler that is bound to it.
template <typename... Args>
class Event {
public:
    using Handler = std::function<void(Args...)>;

    Event& operator=(Handler handler)
    {
        handler_ = std::move(handler);
        return *this;
    }
    bool IsBound() const { return static_cast<bool>(handler_); }

    /// Runs the handler for something that the user or the system did.
    void Fire(Args... args) const
    {
        if (handler_)
            RunHandler([&] { handler_(args...); });
    }
    /// Runs the handler as a part of the caller's own statement: its failures are the caller's.
    void Call(Args... args) const
    {
        if (!handler_)
            return;
        const HandlerScope running;
        handler_(args...);
    }

private:
    Handler handler_;
};

} // namespace torvik
