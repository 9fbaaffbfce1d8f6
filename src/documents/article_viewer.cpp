#include "documents/article_viewer.h"

#include "documents/bind_documents.h"
#include "documents/find_in_article.h"
#include "platform/files/files.h"
#include "printing/rich_text_printing.h"
#include "program/box_title.h"
#include "program/catalogue/other_files.h"
#include "program/next_year_button.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "ui/forms/message_box.h"
#include "ui/forms/screen.h"
#include "windows/article_window.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr int printMargin = 1440; // twips

void txtForm_Load()
{
    txtForm->SetTop((Screen.Height() - txtForm->Height()) / 2);
    txtForm->SetLeft((Screen.Width() - txtForm->Width()) / 2);
    txtForm->SetCaption(state.DocumentTitle);
    PutWaveButtonsAway();
    WidenOkButton();
}

/// The window goes in the middle of this, so its buttons are reset before that.
void CloseViewer()
{
    txtForm->SSCommand2.SetWidth(353);
    txtForm->SSCommand2.SetEnabled(true);
    txtForm->SSCommand3.SetEnabled(true);
    txtForm.Unload();
    Form1->SetEnabled(true);
    FocusNextYearButton();
}

void cmdPrint_Click()
{
    state.MessageText = u"Would you like to print the \r\n\r\n"_s + txtForm->Caption() + u"?"_s;
    state.MessageAnswer =
        QString::number(MsgBox(state.MessageText, msgbox::question | msgbox::yesNo, boxTitle));
    if (ToNumber(state.MessageAnswer) != msgbox::answerYes)
        return;
    PrintRichText(txtForm->rtbText, printMargin, printMargin, printMargin, printMargin);
    MsgBox(u"Printing complete!"_s, msgbox::exclamation, boxTitle);
}

/// The narration of what the main window shows.
QString NarrationFile()
{
    const QString title = Form1->panYear.Caption();
    return state.DiscRoot + (title == nothingChosen ? startNarration : NarrationOf(title));
}

void PlayNarration()
{
    state.SoundFile = NarrationFile();
    state.LoopIndex = static_cast<int>(state.SoundFile.size());
    if (PendingErrorNumber() != 0 || FindFile(Left(state.SoundFile, state.LoopIndex)).isEmpty()) {
        ReportError();
        return;
    }
    PlayWave(Form1->MMControl1, state.SoundFile);
}

void SSCommand2_Click()
{
    state.ErrorCode = u"ER032"_s;
    OnError(PlayNarration, ReportError);
}

} // namespace

void PutWaveButtonsAway()
{
    txtForm->SSCommand2.SetEnabled(false);
    txtForm->SSCommand3.SetEnabled(false);
    txtForm->SSCommand2.Hide();
    txtForm->SSCommand3.Hide();
}

void WidenOkButton()
{
    txtForm->SSCommand1.SetWidth(txtForm->rtbText.Width() - txtForm->cmdPrint.Width() - 4);
}

void OpenViewer()
{
    txtForm->rtbText.SetFileName(state.DocumentFile);
    PutWaveButtonsAway();
    WidenOkButton();
    txtForm->ShowModal();
}

void BindArticleViewer()
{
    txtForm.Bind([](txtFormControls& form) {
        form.Load = txtForm_Load;
        form.Activate = [] {
            txtForm->SSCommand1.SetFocus();
            FindWhatWasAskedFor();
        };
        form.SSCommand1.Click = CloseViewer;
        form.rtbText.DblClick = CloseViewer;
        form.cmdPrint.Click = cmdPrint_Click;
        form.SSCommand2.Click = SSCommand2_Click;
        form.SSCommand3.Click = [] { Form1->MMControl1.Command(u"close"_s); };
    });
}

} // namespace torvik
