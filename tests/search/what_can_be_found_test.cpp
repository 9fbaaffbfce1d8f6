#include "program/program_state.h"
#include "search/what_can_be_found.h"
#include "support/program.h"
#include "support/test_class.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace torvik;

/// What there is to be found on a disc, by the tables of the screens.
class WhatCanBeFoundTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { program_ = std::make_unique<Program>(); }
    void cleanup() { program_.reset(); }

    void articles_of_a_year_are_titled_as_the_viewer_titles_them_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("told");
        const auto row = [](const char* file, const QString& told) {
            QTest::newRow(file) << QString::fromLatin1(file) << told;
        };
        row("69desc.rtf", u"The Torvik Vollandry 1969 Description | 1969 > Description"_s);
        row("69opts.rtf", u"The Torvik Vollandry 1969 Options | 1969 > Options"_s);
        row("69stats.rtf", u"The Torvik Vollandry 1969 Statistics | 1969 > Statistics"_s);
        row("69colors.rtf", u"The Torvik Vollandry 1969 Colors | 1969 > Colors"_s);
        row("nostalgia69.rtf", u"The Torvik Vollandry Nostalgia 1969 | 1969 > Nostalgia"_s);
        row("A1OPTS.rtf", u"The Torvik Vollandry 2001 Options | 2001 > Options"_s);
        row("nostalgia01.rtf", u"The Torvik Vollandry Nostalgia 2001 | 2001 > Nostalgia"_s);
        row("magmm.rtf",
            u"The Torvik Vollandry Magazines | Literature > Torvik Magazines > Torvik Monthly"_s);
        row("credits.rtf", u"The Torvik Vollandry Credits | Help > Credits"_s);
        row("engines.rtf", u"The Torvik Vollandry Torvik Engines | Library"_s);
    }
    void articles_of_a_year_are_titled_as_the_viewer_titles_them()
    {
        QFETCH(QString, file);
        QFETCH(QString, told);
        program_->disc.AddDocument(file, u"words"_s);
        Start();
        QCOMPARE(Told(WhatCanBeFound()), QStringList{told});
    }

    void topics_are_there_when_they_have_photos()
    {
        program_->disc.AddDocument(u"danbury.rtf"_s, u"words"_s);
        program_->disc.AddDocument(u"knives.rtf"_s, u"words"_s);
        program_->disc.AddDocument(u"sbcolors.rtf"_s, u"words"_s);
        program_->disc.AddDocument(u"carstuff.rtf"_s, u"words"_s);
        program_->disc.AddGroup(u"TD"_s, 1);
        program_->disc.AddGroup(u"SB"_s, 1);
        program_->disc.AddGroup(u"TC"_s, 1);
        Start();
        QCOMPARE(
            Told(WhatCanBeFound()),
            QStringList({u"The Torvik Vollandry The Classic Harwell Colors | The Classic Harwell > Colors"_s,
                         u"The Torvik Vollandry Danbury Mint Die Cast Models | "
                         "Danbury Mint Die Cast Models > Description"_s}));
    }

    void captions_and_notes_belong_to_their_photos()
    {
        program_->disc.AddGroup(u"69"_s, 3);
        program_->disc.AddGroup(u"A0"_s, 1);
        program_->disc.AddGroup(u"TD"_s, 5);
        program_->disc.AddGroup(u"CW"_s, 1);
        for (const char* name :
             {"69b.rtf", "a0a.rtf", "tda.rtf", "tdm004.rtf", "tdm010.rtf", "tdm012.rtf", "cwa.rtf"})
            program_->disc.AddDocument(QString::fromLatin1(name), u"words"_s);
        Start();
        QCOMPARE(Told(WhatCanBeFound()),
                 QStringList({u"1969, photo 2 | Caption"_s, u"2000, photo 1 | Caption"_s,
                              u"Danbury Mint Die Cast Models, photo 1 | Caption"_s,
                              u"Danbury Mint Die Cast Models, photo 2 | Details"_s,
                              u"Danbury Mint Die Cast Models, photo 5 | Details"_s}));
    }

    void a_first_year_without_photos_hides_nothing()
    {
        program_->disc.AddGroup(u"69"_s, 2);
        program_->disc.AddGroup(u"TE"_s, 1);
        program_->disc.AddDocument(u"69b.rtf"_s, u"words"_s);
        program_->disc.AddDocument(u"knives.rtf"_s, u"words"_s);
        program_->StartBrowsing();
        QCOMPARE(state.CurrentPhotoFile, QString());
        const Integer ofBrowser = state.TorviksPathPos;
        QCOMPARE(Told(WhatCanBeFound()),
                 QStringList({u"The Torvik Vollandry Franklin Mint Collector Knives | "
                              "Franklin Mint Collector Knives > Description"_s,
                              u"1969, photo 2 | Caption"_s}));
        // The year that the space bar chooses goes by it.
        QCOMPARE(int(state.TorviksPathPos), int(ofBrowser));
    }

    void movies_and_sounds_are_there_by_their_titles()
    {
        program_->disc.AddFile(u"movies/Torvik69.avi"_s, "movie");
        program_->disc.AddFile(u"wav/taxi.wav"_s, "sound");
        program_->AddToProgramFolder(u"movies/Q44.avi"_s, "movie");
        Start();
        const FoundCatalogue catalogue = WhatCanBeFound();
        QCOMPARE(Told(catalogue),
                 QStringList({u"Torvik Movies - The 1969 Torvik | Movies"_s,
                              u"Torvik Movies - Q44 | Movies"_s, u"Taxi Horns | Sound Effects"_s}));
        for (const Findable& findable : catalogue.findables)
            QCOMPARE(findable.file, QString());
    }

    void articles_that_are_not_there_are_counted_and_captions_are_not()
    {
        program_->disc.AddGroup(u"69"_s, 3);
        Start();
        // 35 years of five articles, and the 20 documents of the library that a menu entry leads to.
        QCOMPARE(WhatCanBeFound().missing, 35 * 5 + 20);
        program_->disc.AddDocument(u"books.rtf"_s, u"words"_s);
        QCOMPARE(WhatCanBeFound().missing, 35 * 5 + 19);
    }

    void what_grey_buttons_would_open_is_found_but_not_missed()
    {
        program_->disc.AddGroup(u"SB"_s, 1);
        program_->disc.AddGroup(u"PT"_s, 1);
        program_->disc.AddGroup(u"M3"_s, 1);
        program_->disc.AddDocument(u"sbopts.rtf"_s, u"words"_s);
        program_->disc.AddDocument(u"sbcolors.rtf"_s, u"words"_s);
        program_->disc.AddDocument(u"m3stats.rtf"_s, u"words"_s);
        Start();
        QCOMPARE(WhatCanBeFound().missing, 35 * 5 + 20); // neither sbstats.rtf nor ptdesc.rtf
        program_->disc.AddDocument(u"sbstats.rtf"_s, u"words"_s);
        const QStringList told = Told(WhatCanBeFound());
        QVERIFY(told.contains(
            u"The Torvik Vollandry The Classic Harwell Specifications | The Classic Harwell > Details"_s));
        QVERIFY(told.contains(
            u"The Torvik Vollandry Torvik Kestra III Specifications | Torvik Kestra III > Details"_s));
    }

private:
    void Start()
    {
        program_->disc.AddGroup(u"67"_s, 1);
        program_->StartBrowsing();
    }

    static QStringList Told(const FoundCatalogue& catalogue)
    {
        QStringList told;
        for (const Findable& findable : catalogue.findables)
            told.append(findable.title + u" | "_s + findable.place);
        return told;
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(WhatCanBeFoundTest)
#include "what_can_be_found_test.moc"
