#include "program/report_error.h"

#include "program/box_title.h"
#include "program/error_catalogue.h"
#include "program/next_year_button.h"
#include "program/program_state.h"
#include "runtime/failure.h"
#include "ui/forms/message_box.h"
#include "ui/forms/program_end.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

const QString blankLine = u"\r\n\r\n"_s;

QString MessageOf(const CatalogueEntry& entry)
{
    QString message = u"Error number: "_s + state.ErrorCode + blankLine + entry.text;
    if (entry.discHint)
        message += blankLine + u"Make sure that the Torvik Vollandry is in the CDROM drive."_s;
    return message;
}

void AskForRetry()
{
    const int answer = MsgBox(state.MessageText, msgbox::retryCancel, boxTitle);
    state.MessageAnswer = QString::number(answer);
    if (answer == msgbox::answerCancel)
        EndProgram();
}

} // namespace

void ReportError()
{
    const CatalogueEntry entry = CatalogueEntryOf(state.ErrorCode);
    state.MessageText = MessageOf(entry);
    if (entry.retry) {
        AskForRetry();
        return;
    }
    MsgBox(state.MessageText, msgbox::critical, boxTitle);
    if (PendingErrorNumber() <= 0)
        FocusNextYearButton();
    Form1->SetEnabled(true);
}

} // namespace torvik
