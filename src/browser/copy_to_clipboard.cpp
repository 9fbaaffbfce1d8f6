#include "browser/copy_to_clipboard.h"

#include "program/program_state.h"
#include "runtime/text.h"
#include "ui/controls/combo_box.h"
#include "ui/controls/image.h"
#include "ui/controls/list_box.h"
#include "ui/controls/picture_box.h"
#include "ui/controls/text_box.h"
#include "ui/desktop/clipboard.h"
#include "ui/forms/message_box.h"
#include "ui/forms/screen.h"

using namespace Qt::StringLiterals;

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
    state.MessageResult = MsgBox(u"Would you like to copy this image to the Windows Clipboard?"_s,
                                 msgbox::question + msgbox::yesNo);
    if (state.MessageResult != msgbox::answerYes)
        return;
    Clipboard.Clear();
    CopyContentOf(Screen.ActiveControl());
}

} // namespace torvik
