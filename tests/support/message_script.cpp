#include "support/message_script.h"

namespace torvik {

MessageScript::MessageScript()
{
    SetMessageResponder([this](const MessageRequest& request) { return Reply(request); });
}

MessageScript::~MessageScript()
{
    SetMessageResponder({});
}

int MessageScript::Reply(const MessageRequest& request)
{
    shown_.append(request);
    if (const auto action = std::exchange(action_, nullptr))
        action();
    if (!answers_.isEmpty())
        return answers_.takeFirst();
    const int buttons = request.style & 7;
    if (buttons == msgbox::yesNo)
        return msgbox::answerNo;
    return buttons == msgbox::ok ? msgbox::answerOk : msgbox::answerCancel;
}

} // namespace torvik
