#pragma once

#include "ui/forms/control_array.h"
#include "ui/forms/menu.h"

namespace torvik {

using namespace Qt::StringLiterals;

/// The menu tree of the main window, in its order.
struct Form1Menu {
    explicit Form1Menu(Form& form);

    Menu mnuFile;
    Menu mnuCopy;
    Menu mnuRemove;
    Menu mnuDash2;
    Menu mnuCopyMovies;
    Menu mnuRemoveMovies;
    Menu mnuDash5;
    Menu mnuSaver;
    Menu mnuVideo;
    Menu mnuDash4;
    Menu mnuPrintPhoto;
    Menu mnuPrnt;
    Menu mnuPrint;
    Menu mnuLine5;
    Menu mnuCheckResolution;
    Menu mnuLine6;
    Menu mnuNames;
    Menu mnuLine1;
    Menu mnuExit;

    Menu mnuSound;
    Menu mnuMovies;

    Menu mnuLiterature;
    Menu mnuBooks;
    Menu mnuCatalogs;
    Menu mnuMagazines;
    ControlArray<Menu> mnuMag{u"mnuMag"_s};

    Menu mnuMiscellaneous;
    Menu mnuAdsList;
    ControlArray<Menu> mnuMisc0{u"mnuMisc0"_s};
    ControlArray<Menu> mnuPR{u"mnuPR"_s};
    ControlArray<Menu> mnuMisc{u"mnuMisc"_s};

    Menu mnuArtWork;
    ControlArray<Menu> mnuArt{u"mnuArt"_s};

    Menu mnuTorvikStuff;
    ControlArray<Menu> mnuStuff{u"mnuStuff"_s};

    ControlArray<Menu> mnuSpecial;
    ControlArray<Menu> mnuSpecialty{u"mnuSpecialty"_s};

    Menu mnuHideStatus;

    Menu mnuHelp;
    Menu mnuContents;
    Menu mnuLine3;
    Menu mnuQuillonSoftware;
    Menu mnuLine2;
    Menu mnuWhatsNew;
    Menu mnuIntro;
    Menu mnuNotice;
    Menu mnuCredits;
    Menu mnuSysInfo;
    Menu mnuContrib;
    Menu mnuLine4;
    Menu mnuAbout;
};

} // namespace torvik
