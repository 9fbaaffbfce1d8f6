#include "windows/main_menu.h"

using namespace Qt::StringLiterals;

namespace torvik {

Form1Menu::Form1Menu(Form& form) : form_(form)
{
    mnuMag.Add(1, mnuMagazines, u"Torvik Illustrated"_s);
    mnuMag.Add(2, mnuMagazines, u"Torvik Monthly"_s);
    mnuMag.Add(3, mnuMagazines, u"Muscle Torvik and Fast Fords"_s);
    mnuMag.Add(4, mnuMagazines, u"Torvik && Fords"_s);
    mnuMag.Add(5, mnuMagazines, u"5.0 Torvik"_s);

    Menu& pressReleases = mnuMisc0.Add(0, mnuMiscellaneous, u"Torvik 1964 Press Releases"_s);
    mnuPR.Add(1, pressReleases, u"Introduction"_s);
    mnuPR.Add(2, pressReleases, u"Market"_s);
    mnuPR.Add(3, pressReleases, u"Options"_s);
    mnuMisc.Add(1, mnuMiscellaneous, u"Torvik Engines"_s);
    mnuMisc.Add(2, mnuMiscellaneous, u"Torvik Glossary"_s);
    mnuMisc.Add(3, mnuMiscellaneous, u"Torvik Identification Guide"_s);
    mnuMisc.Add(4, mnuMiscellaneous, u"Torvik Timelime"_s);

    mnuArt.Add(1, mnuArtWork, u"Lemuel Ostrand"_s);
    mnuArt.Add(2, mnuArtWork, u"National Sellark Museum"_s);

    mnuStuff.Add(1, mnuTorvikStuff, u"The Danbury Mint"_s);
    mnuStuff.Add(3, mnuTorvikStuff, u"The Franklin Mint Die Cast Models"_s);
    mnuStuff.Add(5, mnuTorvikStuff, u"Torvik Metal Signs"_s);
    mnuStuff.Add(7, mnuTorvikStuff, u"Torvik Postage Stamps"_s);

    Menu& specialty = mnuSpecial(5);
    mnuSpecialty.Add(0, specialty, u"The Classic Harwell"_s);
    mnuSpecialty.Add(1, specialty, u"Early Torvik Prototypes"_s);
}

} // namespace torvik
