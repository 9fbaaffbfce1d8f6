#pragma once

#include <QString>

#include <functional>

namespace torvik {

class Form;

/// The numeric styles and answers of a message box, as Windows has them.
namespace msgbox {
inline constexpr int ok = 0;
inline constexpr int okCancel = 1;
inline constexpr int yesNo = 4;
inline constexpr int retryCancel = 5;
inline constexpr int critical = 16;
inline constexpr int question = 32;
inline constexpr int exclamation = 48;
inline constexpr int information = 64;
inline constexpr int systemModal = 4096;

inline constexpr int answerOk = 1;
inline constexpr int answerCancel = 2;
inline constexpr int answerRetry = 4;
inline constexpr int answerYes = 6;
inline constexpr int answerNo = 7;
} // namespace msgbox

/// Shows a modal box and returns the number of the answer. `style` is the sum of buttons, icon and modality;
/// without a title of its own the box bears the application title. The text is shown as it stands, blanks and
/// line ends included. The first button is the default one; Escape and the close box answer Cancel, or No, or
/// what the only button answers.
int MsgBox(const QString& text, int style = msgbox::ok, const QString& title = {});

/// Whether a box stands that came up while this form's window was the active one, so that one of its handlers
/// waits for the answer.
bool MessageBoxStandsOver(const Form& form);

/// A box that was asked for.
struct MessageRequest {
    QString text;
    int style = 0;
    QString title; ///< as shown, so never empty
};

/// Answers boxes in place of the user, for the tests: no box is shown while a responder is set.
using MessageResponder = std::function<int(const MessageRequest&)>;
void SetMessageResponder(MessageResponder responder);

} // namespace torvik
