#include "windows/sound_panel.h"

#include "ui/forms/form.h"
#include "ui/pictures/picture.h"

namespace torvik {

namespace {

const QString soundLabels[soundCount] = {
    QStringLiteral("Backfiring"),
    QStringLiteral("Car Door"),
    QStringLiteral("Car Horns"),
    QStringLiteral("Traffic"),
    QStringLiteral("Police Car"),
    QStringLiteral("Taxi Horns"),
    QStringLiteral("Sport Car"),
    QStringLiteral("18 Wheeler"),
    QStringLiteral("Race Car Takeoff"),
    QStringLiteral("At the Track"),
    QStringLiteral("Race Car Passby"),
    QStringLiteral("Race Car 1"),
    QStringLiteral("Race Car 2"),
    QStringLiteral("Motorcycle"),
    QStringLiteral("Batmobile"),
    QStringLiteral("Dornhall"),
    QStringLiteral("Torvik"),
    QStringLiteral("Cars Starting"),
    QStringLiteral("Passby"),
    QStringLiteral("Sellark C5"),
    QStringLiteral("QR-7 Starting"),
    QStringLiteral("Motorcycle 2"),
    QStringLiteral("Hot Rod"),
    QStringLiteral("Red Light"),
    QStringLiteral("Dornhall Kestra I"),
    QStringLiteral("Ford Cobra"),
    QStringLiteral("Stuck on Ice"),
    QStringLiteral("Rev n' Run"),
    QStringLiteral("Going By"),
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
    ControlArray<Button> buttons(QStringLiteral("SSCommand2"));
    for (int index = 0; index < soundCount; ++index)
        buttons.Add(index, panel, PlaceOfButton(index))
            .SetPicture(QStringLiteral(":/assets/button_sound.png"), soundLabels[index]);
    return buttons;
}

ControlArray<Label> MakeLabels(Panel& panel)
{
    ControlArray<Label> labels(QStringLiteral("lblSound"));
    for (int index = 0; index < soundCount; ++index) {
        const Twips button = PlaceOfButton(index);
        labels.Add(index, panel, Twips{button.Left + 510, button.Top, 1680, button.Height},
                   soundLabels[index]);
    }
    return labels;
}

} // namespace

SoundPanel::SoundPanel(Form& form)
    : pnlSound(form, QStringLiteral("pnlSound"), {2000, 1200, 7980, 5580}),
      Label10(pnlSound, QStringLiteral("Label10"), {360, 150, 7260, 330},
              QStringLiteral("Automobile Sound Effects")),
      SSCommand2(MakeButtons(pnlSound)), lblSound(MakeLabels(pnlSound)),
      Picture5(pnlSound, QStringLiteral("Picture5"), {3240, 3600, 4380, 1050}),
      SSCommand3(pnlSound, QStringLiteral("SSCommand3"), {3240, 4830, 2100, 420}, QStringLiteral("Stop")),
      SSCommand1(pnlSound, QStringLiteral("SSCommand1"), {5520, 4830, 2100, 420}, QStringLiteral("Close"))
{
    constexpr int titleSize = 20; // pixels
    Label10.SetCaptionFont(titleSize, true, look::accent);
    Picture5.Show(Picture::FromResource(QStringLiteral(":/assets/sound_wave.png")));
    pnlSound.Hide();
}

} // namespace torvik
