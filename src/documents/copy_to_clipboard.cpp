#include "documents/copy_to_clipboard.h"

#include "platform/text.h"
#include "shell/program_state.h"
#include "ui/clipboard.h"
#include "ui/combo_box.h"
#include "ui/image.h"
#include "ui/list_box.h"
#include "ui/message_box.h"
#include "ui/picture_box.h"
#include "ui/screen.h"
#include "ui/text_box.h"

namespace torvik {

namespace {

void CopyContentOf(const Control* active)
{
    if (const auto* text = dynamic_cast<const TextBox*>(active))
        Clipboard.SetText(text->SelText());
    else if (const auto* combo = dynamic_cast<const ComboBox*>(active))
        Clipboard.SetText(combo->Text());
    else if (const auto* picture = dynamic_cast<const PictureBox*>(active))
        Clipboard.SetPicture(picture->Picture());
    else if (const auto* list = dynamic_cast<const ListBox*>(active))
        Clipboard.SetText(list->Text());
    else if (const auto* image = dynamic_cast<const Image*>(active))
        Clipboard.SetPicture(image->Picture());
}

} // namespace

void CopyToClipboard()
{
    if (Val(state.ClipboardRequest) != 2)
        return;
    state.MessageResult =
        MsgBox(QStringLiteral("Would you like to copy this image to the Windows Clipboard?"),
               msgbox::question + msgbox::yesNo);
    if (state.MessageResult != msgbox::answerYes)
        return;
    Clipboard.Clear();
    CopyContentOf(Screen.ActiveControl());
}

} // namespace torvik
