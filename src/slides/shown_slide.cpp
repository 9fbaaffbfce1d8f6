#include "slides/shown_slide.h"

#include "program/catalogue/topics.h"
#include "program/photo_name.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "runtime/failure.h"
#include "windows/slide_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// The next two in the direction of the walk, and the one before; the show goes round.
QStringList NeighboursOf(int index, int step)
{
    const int count = state.PhotoCount;
    QStringList paths;
    for (const int distance : {step, -step, 2 * step}) {
        const int place = (index - 1 + distance) % count;
        const QString& path = state.PhotoFiles((place + count) % count + 1);
        if (path != state.PhotoFiles(index) && !paths.contains(path))
            paths.append(path);
    }
    return paths;
}

} // namespace

void LoadSlide(SlideWalk walk)
{
    frmSlide->Image1.Load(state.PhotoFiles(state.PhotoIndex));
    const int index = state.PhotoIndex;
    if (index <= state.PhotoCount)
        ResumeNext(
            [&] { frmSlide->Image1.ReadAhead(NeighboursOf(index, walk == SlideWalk::Forward ? 1 : -1)); });
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
