#include "documents/article_of_button.h"
#include "documents/article_viewer.h"
#include "documents/bind_documents.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "ui/forms/screen.h"
#include "windows/article_window.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// The colours and the options.
void ShowArticle(ArticleButton button)
{
    if (Form1->panYear.Caption() == nothingChosen)
        return;
    state.ErrorCode = ArticleErrorCode(button);
    OnError(
        [&] {
            state.DocumentTitle = FindArticle(button);
            if (state.DocumentFile.isEmpty())
                ReportError();
            else
                OpenViewer();
        },
        ReportError);
}

/// The titles of the introduction and of this century's years wait for the viewer's Load; the others are
/// written on the window at once, which loads it before the file is known to exist.
bool WaitsForLoad(const QString& title)
{
    return title == nothingChosen || Left(title, 2) == u"20"_s;
}

void ShowDescription()
{
    const QString windowTitle =
        FindArticle(ArticleButton::Description); // may fail before the viewer is touched
    if (WaitsForLoad(Form1->panYear.Caption()))
        state.DocumentTitle = windowTitle;
    else
        txtForm->SetCaption(windowTitle);
    if (state.DocumentFile.isEmpty()) {
        ReportError();
        return;
    }
    txtForm->SSCommand2.Hide();
    txtForm->SSCommand3.Hide();
    WidenOkButton();
    txtForm->rtbText.SetFileName(state.DocumentFile);
    txtForm->ShowModal();
}

void cmdDesc_Click()
{
    state.ErrorCode = ArticleErrorCode(ArticleButton::Description);
    OnError(ShowDescription, ReportError);
}

void ShowNostalgia()
{
    const QString title = Form1->panYear.Caption();
    if (title == nothingChosen)
        return;
    const Article article = NostalgiaOf(title);
    state.YearCode = Mid(title, 3, 2);
    state.DocumentFile = state.DiscRoot + article.file;
    txtForm->SetCaption(article.windowTitle);
    txtForm->rtbText.SetFileName(state.DocumentFile);
    txtForm->ZOrder();
    PutWaveButtonsAway();
    WidenOkButton();
    txtForm->ShowModal();
}

void cmdNostalgia_Click()
{
    OnError(ShowNostalgia, [] {
        state.ErrorCode = u"ER005"_s;
        ReportError();
        Screen.SetMousePointer(MousePointer::Default);
    });
}

} // namespace

void BindYearArticles()
{
    Form1.Bind([](Form1Controls& form) {
        form.cmdDesc.Click = cmdDesc_Click;
        form.cmdColors.Click = [] { ShowArticle(ArticleButton::Colors); };
        form.cmdOptions.Click = [] { ShowArticle(ArticleButton::Options); };
        form.cmdNostalgia.Click = cmdNostalgia_Click;
    });
}

} // namespace torvik
