#include "slides/shown_slide.h"

#include "program/catalogue/topics.h"
#include "program/photo_name.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "windows/slide_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

void LoadSlide()
{
    frmSlide->Image1.Load(state.PhotoFiles(state.PhotoIndex));
}

void ShowSlidePosition()
{
    frmSlide->pnlPhotoNumber.SetCaption(u"%1 of %2"_s.arg(state.PhotoIndex).arg(state.PhotoCount));
}

void ReportSlideFailure(const QString& code)
{
    state.ErrorCode = code;
    ReportError();
}

void SetSlideCaption()
{
    frmSlide->panYear.SetCaption(TitleOfCode(CodeOfPhoto(state.PhotoFiles(state.PhotoIndex))));
}

} // namespace torvik
