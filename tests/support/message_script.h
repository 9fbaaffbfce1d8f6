#pragma once

#include "ui/forms/message_box.h"

#include <QList>

namespace torvik {

/// Answers the program's message boxes in a test and keeps what was asked.
class MessageScript {
public:
    MessageScript();
    ~MessageScript();
    MessageScript(const MessageScript&) = delete;
    MessageScript& operator=(const MessageScript&) = delete;

    /// Queues an answer for the next box that has none yet. A box without one gets OK, or Cancel where it has
    /// it.
    void Answer(int answer) { answers_.append(answer); }
    /// Runs when the next box comes up, before it is answered.
    void WhenAsked(std::function<void()> action) { action_ = std::move(action); }

    const QList<MessageRequest>& Shown() const { return shown_; }
    int Count() const { return static_cast<int>(shown_.size()); }
    /// The last box; an empty one when none was shown.
    MessageRequest Last() const { return shown_.isEmpty() ? MessageRequest() : shown_.last(); }
    void Clear() { shown_.clear(); }

private:
    int Reply(const MessageRequest& request);

    QList<int> answers_;
    QList<MessageRequest> shown_;
    std::function<void()> action_;
};

} // namespace torvik
