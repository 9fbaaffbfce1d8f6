#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/form_window.h"
#include "windows/main_window.h"

#include <QMenu>
#include <QMenuBar>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// The tree as lines, "> " for each level: name and caption.
QString Lines(const QList<QAction*>& actions, const QString& indent)
{
    QString lines;
    for (const QAction* action : actions) {
        lines += indent + action->objectName() + u" "_s + action->text() + u"\n"_s;
        if (action->menu() != nullptr)
            lines += Lines(action->menu()->actions(), indent + u"> "_s);
    }
    return lines;
}

} // namespace

/// The menu tree of the main window, entry by entry.
class MainMenuTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_tree_stands_in_its_order_with_its_captions()
    {
        Program program;
        program.disc.AddGroup(u"67"_s, 1);
        program.StartBrowsing();
        const QString expected = u"mnuFile File\n"
                                 "> mnuCopy Copy CD-ROM photos to hard drive\n"
                                 "> mnuRemove Remove photos from hard drive\n"
                                 "> mnuDash2 -\n"
                                 "> mnuCopyMovies Copy CD-ROM movies to hard drive\n"
                                 "> mnuRemoveMovies Remove movies from hard drive\n"
                                 "> mnuDash5 -\n"
                                 "> mnuSaver Install Screen saver\n"
                                 "> mnuVideo Install Intel Video Software\n"
                                 "> mnuDash4 -\n"
                                 "> mnuPrintPhoto Print Photo\n"
                                 "> mnuPrnt PrintBooklet\n"
                                 "> mnuPrint Print Setup\n"
                                 "> mnuLine5 -\n"
                                 "> mnuCheckResolution Check Screen Resolution\n"
                                 "> mnuLine6 -\n"
                                 "> mnuNames Show File &Names\n"
                                 "> mnuLine1 -\n"
                                 "> mnuExit Exit\n"
                                 "mnuSound Sound Effects\n"
                                 "mnuMovies Movies\n"
                                 "mnuLiterature Literature\n"
                                 "> mnuBooks Torvik Books\n"
                                 "> mnuCatalogs Torvik Catalogs\n"
                                 "> mnuMagazines Torvik Magazines\n"
                                 "> > mnuMag(1) Torvik Illustrated\n"
                                 "> > mnuMag(2) Torvik Monthly\n"
                                 "> > mnuMag(3) Muscle Torvik and Fast Fords\n"
                                 "> > mnuMag(4) Torvik && Fords\n"
                                 "> > mnuMag(5) 5.0 Torvik\n"
                                 "mnuMiscellaneous Miscellaneous\n"
                                 "> mnuAdsList Torvik Advertising Checklist\n"
                                 "> mnuMisc0(0) Torvik 1964 Press Releases\n"
                                 "> > mnuPR(1) Introduction\n"
                                 "> > mnuPR(2) Market\n"
                                 "> > mnuPR(3) Options\n"
                                 "> mnuMisc(1) Torvik Engines\n"
                                 "> mnuMisc(2) Torvik Glossary\n"
                                 "> mnuMisc(3) Torvik Identification Guide\n"
                                 "> mnuMisc(4) Torvik Timelime\n"
                                 "mnuArtWork Artwork\n"
                                 "> mnuArt(1) Lemuel Ostrand\n"
                                 "> mnuArt(2) National Sellark Museum\n"
                                 "mnuTorvikStuff Torvik Stuff\n"
                                 "> mnuStuff(1) The Danbury Mint\n"
                                 "> mnuStuff(3) The Franklin Mint Die Cast Models\n"
                                 "> mnuStuff(5) Torvik Metal Signs\n"
                                 "> mnuStuff(7) Torvik Postage Stamps\n"
                                 "mnuSpecial(5) Specialty\n"
                                 "> mnuSpecialty(0) The Classic Harwell\n"
                                 "> mnuSpecialty(1) Early Torvik Prototypes\n"
                                 "mnuHideStatus HideStatusBar\n"
                                 "mnuHelp Help\n"
                                 "> mnuContents Contents\n"
                                 "> mnuLine3 -\n"
                                 "> mnuQuillonSoftware Visit the Quillon Software Website\n"
                                 "> mnuLine2 -\n"
                                 "> mnuWhatsNew What's New\n"
                                 "> mnuIntro Introduction\n"
                                 "> mnuNotice Notice\n"
                                 "> mnuCredits Credits\n"
                                 "> mnuSysInfo System Info\n"
                                 "> mnuContrib Contributions\n"
                                 "> mnuLine4 -\n"
                                 "> mnuAbout About\n"_s;
        QCOMPARE(Lines(Form1->Window().MenuBar()->actions(), {}), expected);
    }
};

TORVIK_TEST(MainMenuTest)
#include "main_menu_test.moc"
