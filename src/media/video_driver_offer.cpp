#include "media/video_driver_offer.h"

#include "media/bind_media.h"
#include "program/catalogue/other_files.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "program/run_and_wait.h"
#include "runtime/failure.h"
#include "ui/forms/message_box.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

const QString question = u"If you are experiencing difficulties running the Torvik movies,\r\n"
                         "you may need to install the Intel Indeo Video Software.\r\n"
                         "\r\n"
                         "Would you like to install this software now?"_s;

void Install()
{
    Form1->SetEnabled(false);
    RunAndWait(state.DiscRoot + movieDriver);
    Form1->SetEnabled(true);
}

void ReportDriver()
{
    state.ErrorCode = u"ER003"_s;
    ReportError();
}

} // namespace

void OfferDriver(const std::function<void()>& afterwards)
{
    state.MessageResult = MsgBox(question, msgbox::question | msgbox::yesNo);
    if (state.MessageResult != msgbox::answerYes)
        return;
    OnError(
        [&] {
            Install();
            afterwards();
        },
        ReportDriver);
}

void BindVideoDriverOffer()
{
    Form1.Bind([](Form1Controls& form) { form.mnuVideo.Click = [] { OfferDriver([] {}); }; });
}

} // namespace torvik
