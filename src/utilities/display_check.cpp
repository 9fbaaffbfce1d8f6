#include "program/program_state.h"
#include "program/screen_size.h"
#include "runtime/text.h"
#include "ui/forms/message_box.h"
#include "ui/forms/screen.h"
#include "utilities/bind_utilities.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

QString RightSizeMessage()
{
    return u"Your current screen resolution is set at 800x600.\r\n\r\n"
           "This is the optimum setting for the Torvik Vollandry!"_s;
}

/// Fifteen twips to the pixel, whatever the display says of itself.
QString OtherSizeMessage()
{
    const auto width = static_cast<float>(Screen.Width() / 15);
    const auto height = static_cast<float>(Screen.Height() / 15);
    return u"Your current screen resolution is set at "_s + Str(width) + u" by"_s + Str(height) +
           u" pixles.\r\n\r\n"
           "The optimum setting for the Torvik Vollandry is 800 by 600 pixels.\r\n\r\n"
           "Also, The Torvik Vollandry requires that the Small Fonts display setting is selected.\r\n\r\n"
           "To change your resolution and font size settings perform the following steps:\r\n"
           "    1)  Click the right mouse button while the cursor is on the Windows desktop.\r\n"
           "    2)  Select the Properties option from the window that will be displayed.\r\n"
           "    3)  Select the Settings tab.\r\n"
           "    4)  Adjust the Screen area Slide control to 800x600.\r\n"
           "    5)  You may also want to set the Colors to the highest level allowed by your\r\n"
           "         graphics card.\r\n"
           "    6)  To change the font size setting:\r\n"
           "          Click the Advanced button on the bottom right of the above window.\r\n"
           "          Select Small Fonts from the font size drop-down list box.\r\n\r\n"
           "You may now have to re-start your computer for the new settings to take affect.\r\n"_s;
}

void mnuCheckResolution_Click()
{
    if (IsScreenSize(800, 600)) {
        state.MessageText = RightSizeMessage();
        MsgBox(state.MessageText);
    } else {
        state.MessageText = OtherSizeMessage();
        MsgBox(state.MessageText, msgbox::exclamation);
    }
}

} // namespace

void BindDisplayCheck()
{
    Form1.Bind([](Form1Controls& form) { form.mnuCheckResolution.Click = mnuCheckResolution_Click; });
}

} // namespace torvik
