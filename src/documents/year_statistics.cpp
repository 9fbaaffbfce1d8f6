#include "browser/photo_caption.h"
#include "documents/article_of_button.h"
#include "documents/article_viewer.h"
#include "documents/bind_documents.h"
#include "program/next_year_button.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

void ShowNote(const QString& file)
{
    state.DocumentFile = state.DiscRoot + file;
    Form1->rtbDetails.SetFileName(state.DocumentFile);
    Form1->rtbDetails.Show();
}

void ShowStatisticsArticle()
{
    state.DocumentTitle = FindArticle(ArticleButton::Statistics);
    if (state.DocumentFile.isEmpty())
        ReportError();
    else
        OpenViewer();
}

void ShowStatistics()
{
    FocusNextYearButton();
    if (Form1->rtbDetails.Visible()) {
        Form1->rtbDetails.Hide();
        return;
    }
    PrepareDetails();
    const QString note = NoteOf(Form1->panYear.Caption(), Val(Form1->panPhoto.Caption()));
    if (note.isEmpty())
        ShowStatisticsArticle();
    else
        ShowNote(note);
}

void cmdStats_Click()
{
    if (Form1->panYear.Caption() == nothingChosen)
        return;
    state.ErrorCode = ArticleErrorCode(ArticleButton::Statistics);
    OnError(ShowStatistics, ReportError);
}

void rtbDetails_Click()
{
    Form1->rtbDetails.Hide();
    FocusNextYearButton();
}

} // namespace

void BindYearStatistics()
{
    Form1.Bind([](Form1Controls& form) {
        form.cmdStats.Click = cmdStats_Click;
        form.rtbDetails.Click = rtbDetails_Click;
    });
}

} // namespace torvik
