#pragma once

#include <QPointer>

namespace torvik {

class Form;

/// While it lives its form takes no input, even when one of the handlers that run meanwhile enables the form.
/// For long work that no other handler of the form may overtake.
class InputHold {
public:
    explicit InputHold(Form& form);
    ~InputHold();
    InputHold(const InputHold&) = delete;
    InputHold& operator=(const InputHold&) = delete;

private:
    QPointer<Form> form_;
};

} // namespace torvik
