#include "browser/restore_main_window.h"

#include "browser/pictures_over_photo.h"
#include "program/catalogue/topics.h"
#include "program/program_state.h"
#include "runtime/text.h"
#include "windows/article_window.h"
#include "windows/main_window.h"
#include "windows/slide_window.h"

namespace torvik {

namespace {

void SetDocumentButtons(const Topic* topic)
{
    Form1Controls& form = *Form1;
    const bool ownTopic = topic != nullptr && !topic->keepsYearButtons;
    for (Button* button : {&form.cmdColors, &form.cmdOptions, &form.cmdClipArt, &form.cmdEmblem,
                           &form.cmdScript, &form.cmdAd, &form.cmdNostalgia})
        button->SetEnabled(!ownTopic);
    form.cmdStats.SetEnabled(!ownTopic || topic->hasStatistics);
    if (ownTopic)
        form.cmdDesc.SetEnabled(topic->hasDescription);
}

void DropOverlays()
{
    Form1->picClipArt.Hide();
    Form1->picEmblem.Hide();
    Form1->picScript.Hide();
}

void RefreshOverlays(const Topic* topic)
{
    Form1Controls& form = *Form1;
    if (topic != nullptr && topic->keepsYearButtons) {
        form.picClipArt.Hide();
        for (Button* button : {&form.cmdStats, &form.cmdDesc, &form.cmdClipArt, &form.cmdNostalgia})
            button->SetEnabled(false);
    }
    if (form.picClipArt.Visible())
        LoadClipArt();
    if (form.picScript.Visible())
        LoadScript();
    if (form.picEmblem.Visible())
        LoadEmblem();
}

} // namespace

void RestoreMainWindow()
{
    Form1Controls& form = *Form1;
    state.SlideRestorePending = false;
    form.SetEnabled(true);
    form.cmdDesc.SetEnabled(true);
    if (form.panYear.Caption() != nothingChosen) {
        form.SpinButton1.Show();
        form.panPhoto.Show();
        form.panYear.Show();
        const Topic* topic = BrowsedTopicOf(form.panYear.Caption());
        SetDocumentButtons(topic);
        state.YearCode = Mid(form.panYear.Caption(), 3, 2);
        if (topic != nullptr && !topic->keepsOverlays)
            DropOverlays();
        else
            RefreshOverlays(topic);
        for (state.LoopIndex = 1; state.LoopIndex <= yearCount; state.LoopIndex += 1)
            form.cmdYR(state.LoopIndex).SetEnabled(true);
    }
    frmSlide.Unload();
    txtForm.Unload();
}

} // namespace torvik
