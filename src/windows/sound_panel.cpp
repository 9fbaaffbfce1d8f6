#include "windows/sound_panel.h"

#include "ui/forms/form.h"
#include "ui/pictures/picture.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

const QString soundLabels[soundCount] = {
    u"Backfiring"_s,
    u"Car Door"_s,
    u"Car Horns"_s,
    u"Traffic"_s,
    u"Police Car"_s,
    u"Taxi Horns"_s,
    u"Sport Car"_s,
    u"18 Wheeler"_s,
    u"Race Car Takeoff"_s,
    u"At the Track"_s,
    u"Race Car Passby"_s,
    u"Race Car 1"_s,
    u"Race Car 2"_s,
    u"Motorcycle"_s,
    u"Batmobile"_s,
    u"Dornhall"_s,
    u"Torvik"_s,
    u"Cars Starting"_s,
    u"Passby"_s,
    u"Sellark C5"_s,
    u"QR-7 Starting"_s,
    u"Motorcycle 2"_s,
    u"Hot Rod"_s,
    u"Red Light"_s,
    u"Dornhall Kestra I"_s,
    u"Ford Cobra"_s,
    u"Stuck on Ice"_s,
    u"Rev n' Run"_s,
    u"Going By"_s,
};

/// Three columns, each from the first row on.
Twips PlaceOfButton(int index)
{
    constexpr double rowHeight = 360;
    constexpr double firstRow = 600;
    double left = 360;
    int row = index;
    if (index >= 21) {
        left = 5520;
        row = index - 21;
    } else if (index >= 13) {
        left = 3240;
        row = index - 13;
    }
    return {left, firstRow + row * rowHeight, 420, 330};
}

ControlArray<Button> MakeButtons(Panel& panel)
{
    ControlArray<Button> buttons(u"SSCommand2"_s);
    for (int index = 0; index < soundCount; ++index)
        buttons.Add(index, panel, PlaceOfButton(index))
            .SetPicture(u":/assets/button_sound.png"_s, soundLabels[index]);
    return buttons;
}

ControlArray<Label> MakeLabels(Panel& panel)
{
    ControlArray<Label> labels(u"lblSound"_s);
    for (int index = 0; index < soundCount; ++index) {
        const Twips button = PlaceOfButton(index);
        labels.Add(index, panel, Twips{button.left + 510, button.top, 1680, button.height},
                   soundLabels[index]);
    }
    return labels;
}

} // namespace

QString SoundLabel(int index)
{
    return soundLabels[index];
}

SoundPanel::SoundPanel(Form& form)
    : pnlSound(form, u"pnlSound"_s, {2000, 1200, 7980, 5580}),
      Label10(pnlSound, u"Label10"_s, {360, 150, 7260, 330}, u"Automobile Sound Effects"_s),
      SSCommand2(MakeButtons(pnlSound)), lblSound(MakeLabels(pnlSound)),
      Picture5(pnlSound, u"Picture5"_s, {3240, 3600, 4380, 1050}),
      SSCommand3(pnlSound, u"SSCommand3"_s, {3240, 4830, 2100, 420}, u"Stop"_s),
      SSCommand1(pnlSound, u"SSCommand1"_s, {5520, 4830, 2100, 420}, u"Close"_s)
{
    Label10.SetCaptionFont(look::panelTitleSize, true, look::accent);
    Picture5.ShowWhenSeen(Picture::FromResource(u":/assets/sound_wave.png"_s));
    pnlSound.Hide();
}

} // namespace torvik
