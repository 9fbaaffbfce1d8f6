#include "documents/topic_menus.h"
#include "program/photo_list.h"
#include "program/program_state.h"
#include "support/menu_choice.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/form_window.h"
#include "ui/forms/screen.h"
#include "windows/main_window.h"

#include <QAction>

using namespace Qt::StringLiterals;
using namespace torvik;

/// The entries of the Artwork, Torvik Stuff and Specialty menus, which put a topic on show.
class TopicMenusTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        for (const QString& prefix : {u"67"_s, u"69"_s, u"TD"_s, u"TF"_s, u"VM"_s, u"ZZ"_s, u"SB"_s, u"PT"_s,
                                      u"M1"_s, u"M3"_s, u"MS"_s})
            program_->disc.AddGroup(prefix, 2);
        program_->StartBrowsing();
        program_->Click(Form1->cmdYR(3));
    }
    void cleanup() { program_.reset(); }

    void an_entry_puts_its_topic_on_show_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("menu");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("photo"); // empty for a topic without photos
        const auto row = [](const char* entry, const char* menu, const char* title, const char* photo) {
            QTest::newRow(entry) << QString::fromLatin1(entry) << QString::fromLatin1(menu)
                                 << QString::fromLatin1(title) << QString::fromLatin1(photo);
        };
        row("mnuArt(1)", "Lemuel Ostrand", "Lemuel Ostrand Art Print ", "");
        row("mnuArt(2)", "National Sellark Museum", "National Torvik Museum Print ", "");
        row("mnuStuff(1)", "The Danbury Mint", "Danbury Mint Die Cast Models ", "TDA.JPG");
        row("mnuStuff(3)", "The Franklin Mint Die Cast Models", "Franklin Mint Die Cast Models ", "TFA.JPG");
        row("mnuStuff(5)", "Torvik Metal Signs", "Torvik Metal Signs ", "VMA.JPG");
        row("mnuStuff(7)", "Torvik Postage Stamps", "Torvik Postage Stamps ", "ZZA.JPG");
        row("mnuSpecialty(0)", "The Classic Harwell", "The Classic Harwell ", "SBA.JPG");
        row("mnuSpecialty(1)", "Early Torvik Prototypes", "Early Torvik Prototypes ", "PTA.JPG");
    }
    void an_entry_puts_its_topic_on_show()
    {
        QFETCH(QString, entry);
        QFETCH(QString, menu);
        QFETCH(QString, title);
        QFETCH(QString, photo);
        auto* action = Form1->Window().findChild<QAction*>(entry);
        QVERIFY(action != nullptr);
        QCOMPARE(action->text(), menu);
        action->trigger();
        program_->Settle();
        QCOMPARE(Form1->panYear.Caption(), title);
        QCOMPARE(Form1->Image4.Visible(), !photo.isEmpty());
        if (photo.isEmpty())
            QVERIFY(program_->messages.Last().text.startsWith(u"Error number: ER023"_s));
        else
            QCOMPARE(state.CurrentPhotoFile, u"G:\\Torviks\\"_s + photo);
        CheckBeginning();
    }

    void an_index_without_an_entry_has_its_topic_or_keeps_the_title_data()
    {
        QTest::addColumn<int>("menu"); // 0 artwork, 1 stuff, 2 specialty
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("title");
        QTest::newRow("third art print") << 0 << 3 << u"Arlen Mercer Art Print "_s;
        QTest::newRow("no art print") << 0 << 4 << u"1969"_s;
        QTest::newRow("even stuff 2") << 1 << 2 << u"1969"_s;
        QTest::newRow("even stuff 4") << 1 << 4 << u"1969"_s;
        QTest::newRow("even stuff 6") << 1 << 6 << u"1969"_s;
        QTest::newRow("first Kestra") << 2 << 2 << u"Torvik Kestra I "_s;
        QTest::newRow("third Kestra") << 2 << 3 << u"Torvik Kestra III "_s;
        QTest::newRow("Super Stallion") << 2 << 4 << u"Torvik Super Stallion "_s;
        QTest::newRow("no specialty") << 2 << 5 << u"1969"_s;
    }
    void an_index_without_an_entry_has_its_topic_or_keeps_the_title()
    {
        QFETCH(int, menu);
        QFETCH(int, index);
        QFETCH(QString, title);
        constexpr void (*shows[])(int) = {ShowArtTopic, ShowStuffTopic, ShowSpecialtyTopic};
        shows[menu](index);
        QCOMPARE(Form1->panYear.Caption(), title);
        CheckBeginning();
    }

    void stuff_names_the_details_and_disables_the_buttons_and_specialty_leaves_both_to_the_browser()
    {
        Form1->rtbDetails.Show();
        ShowStuffTopic(5); // its title alone does not rename the button
        QCOMPARE(Form1->cmdStats.Caption(), u"Details"_s);
        QVERIFY(!Form1->cmdColors.Enabled());
        QVERIFY(!Form1->rtbDetails.Visible());

        Form1->cmdStats.SetCaption(u"Statistics"_s);
        ShowSpecialtyTopic(0);
        QVERIFY(Form1->cmdColors.Enabled());
        QVERIFY(Form1->cmdOptions.Enabled());
        QVERIFY(!Form1->cmdNostalgia.Enabled());
    }

    void the_hourglass_stands_and_the_photo_is_cleared_while_the_topic_is_looked_for_data()
    {
        QTest::addColumn<QString>("entry");
        for (const char* entry : {"mnuArt(1)", "mnuStuff(1)", "mnuSpecialty(0)"})
            QTest::newRow(entry) << QString::fromLatin1(entry);
    }
    void the_hourglass_stands_and_the_photo_is_cleared_while_the_topic_is_looked_for()
    {
        QFETCH(QString, entry);
        for (const char* code : {"TD", "SB"}) {
            program_->disc.Remove(u"Torviks/%1A.JPG"_s.arg(QLatin1String(code)));
            program_->disc.Remove(u"Torviks/%1B.JPG"_s.arg(QLatin1String(code)));
        }
        BuildPhotoSet();
        QVERIFY(!Form1->Image4.Picture().IsEmpty());
        MousePointer pointer = MousePointer::Default;
        bool cleared = false;
        program_->messages.WhenAsked([&] {
            pointer = Screen.Pointer();
            cleared = Form1->Image4.Picture().IsEmpty();
        });
        ChooseMenu(*Form1, entry);
        program_->Settle();
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(pointer, MousePointer::Hourglass);
        QVERIFY(cleared);
        QCOMPARE(Screen.Pointer(), MousePointer::Default);
    }

    void a_specialty_leaves_the_buttons_as_its_topic_has_them_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("enabled");
        QTest::newRow("Harwell") << 0 << u"Options Colors Script Emblem Advertisement"_s;
        QTest::newRow("prototypes") << 1 << u"Details"_s;
        QTest::newRow("first Kestra") << 2 << u"Details"_s;
        QTest::newRow("third Kestra") << 3 << u"Description Details"_s;
        QTest::newRow("Super Stallion") << 4 << u"Description Details"_s;
    }
    void a_specialty_leaves_the_buttons_as_its_topic_has_them()
    {
        QFETCH(int, index);
        QFETCH(QString, enabled);
        ShowSpecialtyTopic(index);
        QStringList captions;
        for (const Button* button :
             {&Form1->cmdDesc, &Form1->cmdOptions, &Form1->cmdStats, &Form1->cmdColors, &Form1->cmdScript,
              &Form1->cmdEmblem, &Form1->cmdClipArt, &Form1->cmdAd, &Form1->cmdNostalgia}) {
            if (button->Enabled())
                captions.append(button->Caption());
        }
        QCOMPARE(captions.join(u' '), enabled);
        QCOMPARE(Form1->cmdStats.Caption(), u"Details"_s);
    }

    void two_topics_without_an_entry_clear_even_a_photo_that_bears_their_letters()
    {
        program_->disc.AddPhoto(u"rvA.JPG"_s);
        program_->disc.AddPhoto(u"anA.JPG"_s);
        state.PhotoFiles(1) = u"G:\\Torviks\\rvA.JPG"_s;
        state.PhotoFiles(2) = u"G:\\Torviks\\anA.JPG"_s;
        for (void (*show)() : {ShowCalendars, ShowCollectorPlates}) {
            program_->Click(Form1->cmdYR(3));
            QVERIFY(!Form1->Image4.Picture().IsEmpty());
            show();
            QVERIFY(Form1->Image4.Picture().IsEmpty());
            QVERIFY(Form1->Image4.Visible());
        }
        QCOMPARE(program_->messages.Count(), 0);
    }

    void two_topics_without_an_entry_clear_the_photo()
    {
        for (const auto& [show, title] :
             {std::pair{&ShowCalendars, u"Torvik Calendars "_s},
              std::pair{&ShowCollectorPlates, u"Franklin Mint Collector Plates "_s}}) {
            program_->messages.Clear();
            show();
            QCOMPARE(Form1->panYear.Caption(), title);
            QCOMPARE(program_->messages.Count(), 1); // no photo bears the letters of such a title
            QCOMPARE(int(state.CurrentYearButton), 0);
        }
    }

private:
    static void CheckBeginning()
    {
        QCOMPARE(int(state.PhotoIndex), 0);
        QCOMPARE(Form1->panPhoto.Caption(), u"1"_s);
        QVERIFY(!state.SteppedForward);
        QVERIFY(!state.SteppedBackward);
        QCOMPARE(int(state.CurrentYearButton), 0);
        QVERIFY(Form1->cmdYR(1).Enabled());
        QCOMPARE(Program::Focus(), u"cmdYR(1)"_s);
        QCOMPARE(Screen.Pointer(), MousePointer::Default);
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(TopicMenusTest)
#include "topic_menus_test.moc"
