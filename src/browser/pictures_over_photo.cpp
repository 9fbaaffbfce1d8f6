#include "browser/pictures_over_photo.h"

#include "program/catalogue/pictures.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "runtime/failure.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

void LoadEmblem()
{
    OnError(
        [] {
            PictureBox& pane = Form1->picEmblem;
            pane.Hide();
            state.ErrorCode = u"ER022"_s;
            pane.Load(state.DiscRoot + EmblemOf(Form1->panYear.Caption()));
            pane.SetTop(Form1->Frame1.Top() - pane.Height() - 1);
            pane.SetLeft(Form1->Image4.Width() - pane.Width() + 9);
            pane.ZOrder();
            pane.Show();
        },
        ReportError);
}

void LoadScript()
{
    state.ErrorCode = u"ER021"_s;
    OnError(
        [] {
            PictureBox& pane = Form1->picScript;
            pane.Hide();
            pane.Load(state.DiscRoot + ScriptOf(Form1->panYear.Caption()));
            pane.SetTop(Form1->Image4.Top() + 25);
            pane.SetLeft(Form1->Image4.Left() + 1);
            pane.ZOrder();
            pane.Show();
        },
        ReportError);
}

void LoadClipArt()
{
    const QString file = state.DiscRoot + ClipArtOf(state.YearCode);
    OnError(
        [&] {
            state.ErrorCode = u"ER024"_s;
            Form1->picClipArt.Load(file);
            PlaceClipArt();
        },
        [&] {
            if (state.MissingClipArt != file)
                ReportError();
            state.MissingClipArt = file;
        });
}

void PlaceClipArt()
{
    PictureBox& pane = Form1->picClipArt;
    pane.SetTop(Form1->Image4.Top());
    pane.SetLeft(Form1->Image4.Width() - pane.Width() + 6);
}

} // namespace torvik
