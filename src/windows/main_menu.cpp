#include "windows/main_menu.h"

using namespace Qt::StringLiterals;

namespace torvik {

Form1Menu::Form1Menu(Form& form)
    : mnuFile(form, u"mnuFile"_s, u"File"_s),
      mnuCopy(mnuFile, u"mnuCopy"_s, u"Copy CD-ROM photos to hard drive"_s),
      mnuRemove(mnuFile, u"mnuRemove"_s, u"Remove photos from hard drive"_s),
      mnuDash2(mnuFile, u"mnuDash2"_s, u"-"_s),
      mnuCopyMovies(mnuFile, u"mnuCopyMovies"_s, u"Copy CD-ROM movies to hard drive"_s),
      mnuRemoveMovies(mnuFile, u"mnuRemoveMovies"_s, u"Remove movies from hard drive"_s),
      mnuDash5(mnuFile, u"mnuDash5"_s, u"-"_s), mnuSaver(mnuFile, u"mnuSaver"_s, u"Install Screen saver"_s),
      mnuVideo(mnuFile, u"mnuVideo"_s, u"Install Intel Video Software"_s),
      mnuDash4(mnuFile, u"mnuDash4"_s, u"-"_s), mnuPrintPhoto(mnuFile, u"mnuPrintPhoto"_s, u"Print Photo"_s),
      mnuPrnt(mnuFile, u"mnuPrnt"_s, u"PrintBooklet"_s), mnuPrint(mnuFile, u"mnuPrint"_s, u"Print Setup"_s),
      mnuLine5(mnuFile, u"mnuLine5"_s, u"-"_s),
      mnuCheckResolution(mnuFile, u"mnuCheckResolution"_s, u"Check Screen Resolution"_s),
      mnuLine6(mnuFile, u"mnuLine6"_s, u"-"_s), mnuNames(mnuFile, u"mnuNames"_s, u"Show File &Names"_s),
      mnuLine1(mnuFile, u"mnuLine1"_s, u"-"_s), mnuExit(mnuFile, u"mnuExit"_s, u"Exit"_s),
      mnuSound(form, u"mnuSound"_s, u"Sound Effects"_s), mnuMovies(form, u"mnuMovies"_s, u"Movies"_s),
      mnuLiterature(form, u"mnuLiterature"_s, u"Literature"_s),
      mnuBooks(mnuLiterature, u"mnuBooks"_s, u"Torvik Books"_s),
      mnuCatalogs(mnuLiterature, u"mnuCatalogs"_s, u"Torvik Catalogs"_s),
      mnuMagazines(mnuLiterature, u"mnuMagazines"_s, u"Torvik Magazines"_s),
      mnuMiscellaneous(form, u"mnuMiscellaneous"_s, u"Miscellaneous"_s),
      mnuAdsList(mnuMiscellaneous, u"mnuAdsList"_s, u"Torvik Advertising Checklist"_s),
      mnuArtWork(form, u"mnuArtWork"_s, u"Artwork"_s),
      mnuTorvikStuff(form, u"mnuTorvikStuff"_s, u"Torvik Stuff"_s),
      mnuSpecial(u"mnuSpecial"_s, 5, form, u"Specialty"_s),
      mnuHideStatus(form, u"mnuHideStatus"_s, u"HideStatusBar"_s), mnuHelp(form, u"mnuHelp"_s, u"Help"_s),
      mnuContents(mnuHelp, u"mnuContents"_s, u"Contents"_s), mnuLine3(mnuHelp, u"mnuLine3"_s, u"-"_s),
      mnuQuillonSoftware(mnuHelp, u"mnuQuillonSoftware"_s, u"Visit the Quillon Software Website"_s),
      mnuLine2(mnuHelp, u"mnuLine2"_s, u"-"_s), mnuWhatsNew(mnuHelp, u"mnuWhatsNew"_s, u"What's New"_s),
      mnuIntro(mnuHelp, u"mnuIntro"_s, u"Introduction"_s), mnuNotice(mnuHelp, u"mnuNotice"_s, u"Notice"_s),
      mnuCredits(mnuHelp, u"mnuCredits"_s, u"Credits"_s),
      mnuSysInfo(mnuHelp, u"mnuSysInfo"_s, u"System Info"_s),
      mnuContrib(mnuHelp, u"mnuContrib"_s, u"Contributions"_s), mnuLine4(mnuHelp, u"mnuLine4"_s, u"-"_s),
      mnuAbout(mnuHelp, u"mnuAbout"_s, u"About"_s)
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
