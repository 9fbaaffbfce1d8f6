#include "browser/emblem_and_script.h"

#include "program/program_state.h"
#include "program/report_error.h"
#include "program/topic_catalogue.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// Two topics have pictures of their own; everything else goes by the title's third and fourth character.
QString PictureOfTitle(const QString& harwell, const QString& prototypes, const QString& stem)
{
    const QString title = Form1->panYear.Caption();
    if (title == classicHarwell)
        return state.DiscRoot + harwell;
    if (title == u"Early Torvik Prototypes "_s)
        return state.DiscRoot + prototypes;
    return state.DiscRoot + stem + Mid(title, 3, 2) + u".jpg"_s;
}

} // namespace

void LoadEmblem()
{
    OnError(
        [] {
            PictureBox& pane = Form1->picEmblem;
            pane.Hide();
            state.ErrorCode = u"ER022"_s;
            pane.Load(
                PictureOfTitle(u"\\emblems\\embsb.jpg"_s, u"\\emblems\\EMBpt.jpg"_s, u"\\emblems\\emb"_s));
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
            pane.Load(
                PictureOfTitle(u"\\SCRIPTS\\SCRISB.jpg"_s, u"\\SCRIPTS\\SCRIpt.jpg"_s, u"\\scripts\\scri"_s));
            pane.SetTop(Form1->Image4.Top() + 25);
            pane.SetLeft(Form1->Image4.Left() + 1);
            pane.ZOrder();
            pane.Show();
        },
        ReportError);
}

void LoadClipArt()
{
    OnError(
        [] {
            state.ErrorCode = u"ER024"_s;
            Form1->picClipArt.Load(state.DiscRoot + u"\\ClipArt\\"_s + state.YearCode + u"clip.jpg"_s);
            PlaceClipArt();
        },
        ReportError);
}

void PlaceClipArt()
{
    PictureBox& pane = Form1->picClipArt;
    pane.SetTop(Form1->Image4.Top());
    pane.SetLeft(Form1->Image4.Width() - pane.Width() + 6);
}

} // namespace torvik
