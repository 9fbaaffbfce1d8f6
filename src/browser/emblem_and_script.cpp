#include "browser/emblem_and_script.h"

#include "program/program_state.h"
#include "program/report_error.h"
#include "program/topic_catalogue.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "windows/main_window.h"

namespace torvik {

namespace {

/// Two topics have pictures of their own; everything else goes by the title's third and fourth character.
QString PictureOfTitle(const QString& harwell, const QString& prototypes, const QString& stem)
{
    const QString title = Form1->panYear.Caption();
    if (title == classicHarwell)
        return state.DiscRoot + harwell;
    if (title == QStringLiteral("Early Torvik Prototypes "))
        return state.DiscRoot + prototypes;
    return state.DiscRoot + stem + Mid(title, 3, 2) + QStringLiteral(".jpg");
}

} // namespace

void LoadEmblem()
{
    OnError(
        [] {
            PictureBox& pane = Form1->picEmblem;
            pane.Hide();
            state.ErrorCode = QStringLiteral("ER022");
            pane.Load(PictureOfTitle(QStringLiteral("\\emblems\\embsb.jpg"),
                                     QStringLiteral("\\emblems\\EMBpt.jpg"),
                                     QStringLiteral("\\emblems\\emb")));
            pane.SetTop(Form1->Frame1.Top() - pane.Height() - 1);
            pane.SetLeft(Form1->Image4.Width() - pane.Width() + 9);
            pane.ZOrder();
            pane.Show();
        },
        ReportError);
}

void LoadScript()
{
    state.ErrorCode = QStringLiteral("ER021");
    OnError(
        [] {
            PictureBox& pane = Form1->picScript;
            pane.Hide();
            pane.Load(PictureOfTitle(QStringLiteral("\\SCRIPTS\\SCRISB.jpg"),
                                     QStringLiteral("\\SCRIPTS\\SCRIpt.jpg"),
                                     QStringLiteral("\\scripts\\scri")));
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
            state.ErrorCode = QStringLiteral("ER024");
            Form1->picClipArt.Load(state.DiscRoot + QStringLiteral("\\ClipArt\\") + state.YearCode +
                                   QStringLiteral("clip.jpg"));
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
