#pragma once

#include "ui/forms/control_array.h"
#include "ui/forms/menu.h"

namespace torvik {

using namespace Qt::StringLiterals;

/// The menu tree of the main window, in its order.
struct Form1Menu {
    explicit Form1Menu(Form& form);

private:
    Form& form_; // first, since all entries below need it

public:
    Menu mnuFile{form_, u"mnuFile"_s, u"File"_s};
    Menu mnuCopy{mnuFile, u"mnuCopy"_s, u"Copy CD-ROM photos to hard drive"_s};
    Menu mnuRemove{mnuFile, u"mnuRemove"_s, u"Remove photos from hard drive"_s};
    Menu mnuDash2{mnuFile, u"mnuDash2"_s, u"-"_s};
    Menu mnuCopyMovies{mnuFile, u"mnuCopyMovies"_s, u"Copy CD-ROM movies to hard drive"_s};
    Menu mnuRemoveMovies{mnuFile, u"mnuRemoveMovies"_s, u"Remove movies from hard drive"_s};
    Menu mnuDash5{mnuFile, u"mnuDash5"_s, u"-"_s};
    Menu mnuSaver{mnuFile, u"mnuSaver"_s, u"Install Screen saver"_s};
    Menu mnuVideo{mnuFile, u"mnuVideo"_s, u"Install Intel Video Software"_s};
    Menu mnuDash4{mnuFile, u"mnuDash4"_s, u"-"_s};
    Menu mnuPrintPhoto{mnuFile, u"mnuPrintPhoto"_s, u"Print Photo"_s};
    Menu mnuPrnt{mnuFile, u"mnuPrnt"_s, u"PrintBooklet"_s};
    Menu mnuPrint{mnuFile, u"mnuPrint"_s, u"Print Setup"_s};
    Menu mnuLine5{mnuFile, u"mnuLine5"_s, u"-"_s};
    Menu mnuCheckResolution{mnuFile, u"mnuCheckResolution"_s, u"Check Screen Resolution"_s};
    Menu mnuLine6{mnuFile, u"mnuLine6"_s, u"-"_s};
    Menu mnuNames{mnuFile, u"mnuNames"_s, u"Show File &Names"_s};
    Menu mnuLine1{mnuFile, u"mnuLine1"_s, u"-"_s};
    Menu mnuExit{mnuFile, u"mnuExit"_s, u"Exit"_s};

    Menu mnuSound{form_, u"mnuSound"_s, u"Sound Effects"_s};
    Menu mnuMovies{form_, u"mnuMovies"_s, u"Movies"_s};

    Menu mnuLiterature{form_, u"mnuLiterature"_s, u"Literature"_s};
    Menu mnuBooks{mnuLiterature, u"mnuBooks"_s, u"Torvik Books"_s};
    Menu mnuCatalogs{mnuLiterature, u"mnuCatalogs"_s, u"Torvik Catalogs"_s};
    Menu mnuMagazines{mnuLiterature, u"mnuMagazines"_s, u"Torvik Magazines"_s};
    ControlArray<Menu> mnuMag{u"mnuMag"_s};

    Menu mnuMiscellaneous{form_, u"mnuMiscellaneous"_s, u"Miscellaneous"_s};
    Menu mnuAdsList{mnuMiscellaneous, u"mnuAdsList"_s, u"Torvik Advertising Checklist"_s};
    ControlArray<Menu> mnuMisc0{u"mnuMisc0"_s};
    ControlArray<Menu> mnuPR{u"mnuPR"_s};
    ControlArray<Menu> mnuMisc{u"mnuMisc"_s};

    Menu mnuArtWork{form_, u"mnuArtWork"_s, u"Artwork"_s};
    ControlArray<Menu> mnuArt{u"mnuArt"_s};

    Menu mnuTorvikStuff{form_, u"mnuTorvikStuff"_s, u"Torvik Stuff"_s};
    ControlArray<Menu> mnuStuff{u"mnuStuff"_s};

    ControlArray<Menu> mnuSpecial{u"mnuSpecial"_s, 5, form_, u"Specialty"_s};
    ControlArray<Menu> mnuSpecialty{u"mnuSpecialty"_s};

    Menu mnuHideStatus{form_, u"mnuHideStatus"_s, u"HideStatusBar"_s};

    Menu mnuHelp{form_, u"mnuHelp"_s, u"Help"_s};
    Menu mnuContents{mnuHelp, u"mnuContents"_s, u"Contents"_s};
    Menu mnuLine3{mnuHelp, u"mnuLine3"_s, u"-"_s};
    Menu mnuQuillonSoftware{mnuHelp, u"mnuQuillonSoftware"_s, u"Visit the Quillon Software Website"_s};
    Menu mnuLine2{mnuHelp, u"mnuLine2"_s, u"-"_s};
    Menu mnuWhatsNew{mnuHelp, u"mnuWhatsNew"_s, u"What's New"_s};
    Menu mnuIntro{mnuHelp, u"mnuIntro"_s, u"Introduction"_s};
    Menu mnuNotice{mnuHelp, u"mnuNotice"_s, u"Notice"_s};
    Menu mnuCredits{mnuHelp, u"mnuCredits"_s, u"Credits"_s};
    Menu mnuSysInfo{mnuHelp, u"mnuSysInfo"_s, u"System Info"_s};
    Menu mnuContrib{mnuHelp, u"mnuContrib"_s, u"Contributions"_s};
    Menu mnuLine4{mnuHelp, u"mnuLine4"_s, u"-"_s};
    Menu mnuAbout{mnuHelp, u"mnuAbout"_s, u"About"_s};
};

} // namespace torvik
