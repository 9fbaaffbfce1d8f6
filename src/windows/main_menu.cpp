#include "windows/main_menu.h"

namespace torvik {

Form1Menu::Form1Menu(Form& form)
    : mnuFile(form, QStringLiteral("mnuFile"), QStringLiteral("File")),
      mnuCopy(mnuFile, QStringLiteral("mnuCopy"), QStringLiteral("Copy CD-ROM photos to hard drive")),
      mnuRemove(mnuFile, QStringLiteral("mnuRemove"), QStringLiteral("Remove photos from hard drive")),
      mnuDash2(mnuFile, QStringLiteral("mnuDash2"), QStringLiteral("-")),
      mnuCopyMovies(mnuFile, QStringLiteral("mnuCopyMovies"),
                    QStringLiteral("Copy CD-ROM movies to hard drive")),
      mnuRemoveMovies(mnuFile, QStringLiteral("mnuRemoveMovies"),
                      QStringLiteral("Remove movies from hard drive")),
      mnuDash5(mnuFile, QStringLiteral("mnuDash5"), QStringLiteral("-")),
      mnuSaver(mnuFile, QStringLiteral("mnuSaver"), QStringLiteral("Install Screen saver")),
      mnuVideo(mnuFile, QStringLiteral("mnuVideo"), QStringLiteral("Install Intel Video Software")),
      mnuDash4(mnuFile, QStringLiteral("mnuDash4"), QStringLiteral("-")),
      mnuPrintPhoto(mnuFile, QStringLiteral("mnuPrintPhoto"), QStringLiteral("Print Photo")),
      mnuPrnt(mnuFile, QStringLiteral("mnuPrnt"), QStringLiteral("PrintBooklet")),
      mnuPrint(mnuFile, QStringLiteral("mnuPrint"), QStringLiteral("Print Setup")),
      mnuLine5(mnuFile, QStringLiteral("mnuLine5"), QStringLiteral("-")),
      mnuCheckResolution(mnuFile, QStringLiteral("mnuCheckResolution"),
                         QStringLiteral("Check Screen Resolution")),
      mnuLine6(mnuFile, QStringLiteral("mnuLine6"), QStringLiteral("-")),
      mnuNames(mnuFile, QStringLiteral("mnuNames"), QStringLiteral("Show File &Names")),
      mnuLine1(mnuFile, QStringLiteral("mnuLine1"), QStringLiteral("-")),
      mnuExit(mnuFile, QStringLiteral("mnuExit"), QStringLiteral("Exit")),
      mnuSound(form, QStringLiteral("mnuSound"), QStringLiteral("Sound Effects")),
      mnuMovies(form, QStringLiteral("mnuMovies"), QStringLiteral("Movies")),
      mnuLiterature(form, QStringLiteral("mnuLiterature"), QStringLiteral("Literature")),
      mnuBooks(mnuLiterature, QStringLiteral("mnuBooks"), QStringLiteral("Torvik Books")),
      mnuCatalogs(mnuLiterature, QStringLiteral("mnuCatalogs"), QStringLiteral("Torvik Catalogs")),
      mnuMagazines(mnuLiterature, QStringLiteral("mnuMagazines"), QStringLiteral("Torvik Magazines")),
      mnuMiscellaneous(form, QStringLiteral("mnuMiscellaneous"), QStringLiteral("Miscellaneous")),
      mnuAdsList(mnuMiscellaneous, QStringLiteral("mnuAdsList"),
                 QStringLiteral("Torvik Advertising Checklist")),
      mnuArtWork(form, QStringLiteral("mnuArtWork"), QStringLiteral("Artwork")),
      mnuTorvikStuff(form, QStringLiteral("mnuTorvikStuff"), QStringLiteral("Torvik Stuff")),
      mnuSpecial(QStringLiteral("mnuSpecial"), 5, form, QStringLiteral("Specialty")),
      mnuHideStatus(form, QStringLiteral("mnuHideStatus"), QStringLiteral("HideStatusBar")),
      mnuHelp(form, QStringLiteral("mnuHelp"), QStringLiteral("Help")),
      mnuContents(mnuHelp, QStringLiteral("mnuContents"), QStringLiteral("Contents")),
      mnuLine3(mnuHelp, QStringLiteral("mnuLine3"), QStringLiteral("-")),
      mnuQuillonSoftware(mnuHelp, QStringLiteral("mnuQuillonSoftware"),
                         QStringLiteral("Visit the Quillon Software Website")),
      mnuLine2(mnuHelp, QStringLiteral("mnuLine2"), QStringLiteral("-")),
      mnuWhatsNew(mnuHelp, QStringLiteral("mnuWhatsNew"), QStringLiteral("What's New")),
      mnuIntro(mnuHelp, QStringLiteral("mnuIntro"), QStringLiteral("Introduction")),
      mnuNotice(mnuHelp, QStringLiteral("mnuNotice"), QStringLiteral("Notice")),
      mnuCredits(mnuHelp, QStringLiteral("mnuCredits"), QStringLiteral("Credits")),
      mnuSysInfo(mnuHelp, QStringLiteral("mnuSysInfo"), QStringLiteral("System Info")),
      mnuContrib(mnuHelp, QStringLiteral("mnuContrib"), QStringLiteral("Contributions")),
      mnuLine4(mnuHelp, QStringLiteral("mnuLine4"), QStringLiteral("-")),
      mnuAbout(mnuHelp, QStringLiteral("mnuAbout"), QStringLiteral("About"))
{
    mnuMag.Add(1, mnuMagazines, QStringLiteral("Torvik Illustrated"));
    mnuMag.Add(2, mnuMagazines, QStringLiteral("Torvik Monthly"));
    mnuMag.Add(3, mnuMagazines, QStringLiteral("Muscle Torvik and Fast Fords"));
    mnuMag.Add(4, mnuMagazines, QStringLiteral("Torvik && Fords"));
    mnuMag.Add(5, mnuMagazines, QStringLiteral("5.0 Torvik"));

    Menu& pressReleases = mnuMisc0.Add(0, mnuMiscellaneous, QStringLiteral("Torvik 1964 Press Releases"));
    mnuPR.Add(1, pressReleases, QStringLiteral("Introduction"));
    mnuPR.Add(2, pressReleases, QStringLiteral("Market"));
    mnuPR.Add(3, pressReleases, QStringLiteral("Options"));
    mnuMisc.Add(1, mnuMiscellaneous, QStringLiteral("Torvik Engines"));
    mnuMisc.Add(2, mnuMiscellaneous, QStringLiteral("Torvik Glossary"));
    mnuMisc.Add(3, mnuMiscellaneous, QStringLiteral("Torvik Identification Guide"));
    mnuMisc.Add(4, mnuMiscellaneous, QStringLiteral("Torvik Timelime"));

    mnuArt.Add(1, mnuArtWork, QStringLiteral("Lemuel Ostrand"));
    mnuArt.Add(2, mnuArtWork, QStringLiteral("National Sellark Museum"));

    mnuStuff.Add(1, mnuTorvikStuff, QStringLiteral("The Danbury Mint"));
    mnuStuff.Add(3, mnuTorvikStuff, QStringLiteral("The Franklin Mint Die Cast Models"));
    mnuStuff.Add(5, mnuTorvikStuff, QStringLiteral("Torvik Metal Signs"));
    mnuStuff.Add(7, mnuTorvikStuff, QStringLiteral("Torvik Postage Stamps"));

    Menu& specialty = mnuSpecial(5);
    mnuSpecialty.Add(0, specialty, QStringLiteral("The Classic Harwell"));
    mnuSpecialty.Add(1, specialty, QStringLiteral("Early Torvik Prototypes"));
}

} // namespace torvik
