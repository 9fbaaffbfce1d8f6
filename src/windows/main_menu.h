#pragma once

#include "ui/forms/control_array.h"
#include "ui/forms/menu.h"

namespace torvik {

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
    ControlArray<Menu> mnuMag{QStringLiteral("mnuMag")};

    Menu mnuMiscellaneous;
    Menu mnuAdsList;
    ControlArray<Menu> mnuMisc0{QStringLiteral("mnuMisc0")};
    ControlArray<Menu> mnuPR{QStringLiteral("mnuPR")};
    ControlArray<Menu> mnuMisc{QStringLiteral("mnuMisc")};

    Menu mnuArtWork;
    ControlArray<Menu> mnuArt{QStringLiteral("mnuArt")};

    Menu mnuTorvikStuff;
    ControlArray<Menu> mnuStuff{QStringLiteral("mnuStuff")};

    ControlArray<Menu> mnuSpecial;
    ControlArray<Menu> mnuSpecialty{QStringLiteral("mnuSpecialty")};

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
