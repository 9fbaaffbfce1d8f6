#include "platform/files/files.h"
#include "platform/paths/drives.h"
#include "platform/paths/program_folder.h"
#include "platform/system/settings_store.h"
#include "program/program_state.h"
#include "runtime/logging.h"
#include "start/disc_search.h"
#include "support/logged_messages.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/clock.h"
#include "ui/forms/program_end.h"
#include "ui/forms/program_title.h"
#include "ui/pictures/pictures_ahead.h"
#include "windows/main_window.h"
#include "windows/splash.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// Where the disc and the photos are looked for.
class DiscSearchTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { program_ = std::make_unique<Program>(); }
    void cleanup() { program_.reset(); }

    void the_disc_is_found_in_any_drive_from_D_to_Z_data()
    {
        QTest::addColumn<QChar>("letter");
        for (char letter = 'D'; letter <= 'Z'; ++letter)
            QTest::newRow(std::string(1, letter).c_str()) << QChar(QLatin1Char(letter));
    }

    void the_disc_is_found_in_any_drive_from_D_to_Z()
    {
        QFETCH(QChar, letter);
        program_->disc.AddGroup(u"67"_s, 1);
        program_->PutDiscIn(letter);
        program_->Start();
        QCOMPARE(state.DiscRoot, QString(letter) + u":"_s);
        QCOMPARE(state.DriveLetters, u"DEFGHIJKLMNOPQRSTUVWXYZ"_s);
    }

    void the_earlier_letter_wins()
    {
        TestDisc other;
        other.AddGroup(u"70"_s, 1);
        program_->disc.AddGroup(u"67"_s, 1);
        SetDriveOptions({{u'R', other.Folder()}, {u'K', program_->disc.Folder()}});
        program_->Start();
        QCOMPARE(state.DiscRoot, u"K:"_s);
    }

    void a_drive_without_photos_is_passed_over()
    {
        TestDisc other;
        other.AddFile(u"Torviks/readme.txt"_s, "no photo");
        program_->disc.AddGroup(u"67"_s, 1);
        SetDriveOptions(
            {{u'D', other.Folder()}, {u'E', u"/nowhere/at/all"_s}, {u'F', program_->disc.Folder()}});
        program_->Start();
        QCOMPARE(state.DiscRoot, u"F:"_s);
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    void each_drive_that_was_tried_is_logged_with_what_it_lacks()
    {
        TestDisc other;
        other.AddFile(u"Torviks/readme.txt"_s, "no photo");
        program_->disc.AddGroup(u"67"_s, 1);
        SetDriveOptions(
            {{u'E', other.Folder()}, {u'F', u"/nowhere/at/all"_s}, {u'G', program_->disc.Folder()}});
        LoggedMessages log(u"torvik.disc"_s);
        program_->Start();
        const QString disc = u"torvik.disc: "_s;
        QCOMPARE(log.Texts(), (QStringList{disc + ProgramFolder() + u" has no photo in Torviks"_s,
                                           disc + u"drive D: stands for nothing"_s,
                                           disc + u"D: cannot be searched: Device unavailable"_s,
                                           disc + u"drive E: stands for "_s + other.Folder(),
                                           disc + u"E: has no photo in Torviks"_s,
                                           disc + u"drive F: stands for /nowhere/at/all"_s,
                                           disc + u"F: cannot be searched: Device unavailable"_s,
                                           disc + u"drive G: stands for "_s + program_->disc.Folder(),
                                           disc + u"G: has photos, the first is 67A.JPG"_s}));
    }

    void a_search_without_a_find_is_logged_as_one()
    {
        LoggedMessages log(u"torvik.disc"_s);
        program_->Start();
        QCOMPARE(log.Texts().last(), u"torvik.disc: no drive holds the disc"_s);
    }

    void where_photos_and_all_else_come_from_is_logged()
    {
        program_->disc.AddGroup(u"67"_s, 2);
        LoggedMessages log(u"torvik.start"_s);
        program_->Start();
        QCOMPARE(log.Texts(), QStringList(u"torvik.start: 2 photos from G:, all else from G:"_s));
    }

    void nothing_is_logged_unless_it_is_asked_for()
    {
        LoggedMessages log(u"torvik.disc"_s);
        QLoggingCategory::setFilterRules({});
        program_->Start();
        QCOMPARE(log.Texts(), QStringList());
    }

    void all_is_logged_when_everything_is_asked_for()
    {
        LoggedMessages log(u"torvik.start"_s);
        LogEverything();
        for (const QLoggingCategory* category :
             {&logStart(), &logDisc(), &logFiles(), &logMedia(), &logPrint()})
            QVERIFY2(category->isDebugEnabled(), category->categoryName());
        program_->disc.AddGroup(u"67"_s, 1);
        program_->Start();
        QCOMPARE(log.Texts().size(), 1);
    }

    void photos_beside_the_program_are_read_there_and_the_rest_from_the_disc()
    {
        program_->disc.AddGroup(u"67"_s, 1);
        program_->AddToProgramFolder(u"Torviks/68A.JPG"_s, TestDisc::Jpeg(Qt::red, {8, 8}));
        program_->Start();
        QCOMPARE(state.PhotoRoot, ProgramFolder());
        QCOMPARE(state.DiscRoot, u"G:"_s);
        QCOMPARE(state.PhotoFiles(1), ProgramFolder() + u"\\Torviks\\68A.JPG"_s);
    }

    void photos_beside_the_program_do_not_replace_the_disc()
    {
        program_->AddToProgramFolder(u"Torviks/68A.JPG"_s, TestDisc::Jpeg(Qt::red, {8, 8}));
        program_->Start();
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY(program_->messages.Last().text.startsWith(u"Error number: ER001"_s));
        QVERIFY(ProgramIsEnding());
    }

    /// The root of drive C is the machine's own, where a test puts nothing. So two content folders lie deeper
    /// on it, and which roots are searched is read from the log.
    void drive_C_is_never_searched()
    {
        program_->disc.AddGroup(u"67"_s, 1);
        const QString content = DrivePath(program_->disc.Folder());
        QVERIFY(content.startsWith(u"C:\\"_s));
        QCOMPARE(FindFile(content + u"\\Torviks\\*.jpg"_s), u"67A.JPG"_s);
        program_->AddToProgramFolder(u"Torviks/68A.JPG"_s, TestDisc::Jpeg(Qt::red, {8, 8}));
        program_->PutDiscIn({});
        LoggedMessages log(u"torvik.disc"_s);
        program_->Start();
        QVERIFY(ProgramIsEnding());
        QCOMPARE(state.DiscRoot, QString());
        QStringList searched;
        for (const QString& line : log.Texts()) {
            if (line.startsWith(u"torvik.disc: drive "_s))
                searched.append(line.section(u' ', 2, 2));
        }
        QStringList letters;
        for (char letter = 'D'; letter <= 'Z'; ++letter)
            letters.append(QChar(QLatin1Char(letter)) + u":"_s);
        QCOMPARE(searched, letters);
    }

    void no_disc_takes_the_splash_away_and_asks()
    {
        program_->messages.WhenAsked([] {
            QVERIFY(!Form2.IsLoaded());
            QVERIFY(!Form1.IsLoaded());
        });
        program_->Start();
        QCOMPARE(program_->messages.Count(), 1);
        const MessageRequest box = program_->messages.Last();
        QCOMPARE(box.text, u"Error number: ER001\r\n\r\n Unable to detect the Torvik Vollandry CDROM.\r\n\r\n"
                           "Make sure that the Torvik Vollandry is in the CDROM drive."_s);
        QCOMPARE(box.style, 5);
        QCOMPARE(box.title, u"The Torvik Vollandry"_s);
    }

    void cancel_ends_the_program_with_nothing_saved()
    {
        SaveSetting(applicationTitle, u"Settings"_s, u"MainLeft"_s, u"77"_s);
        program_->Start();
        QVERIFY(ProgramIsEnding());
        QVERIFY(!Form1.IsLoaded());
        QCOMPARE(GetSetting(applicationTitle, u"Settings"_s, u"MainLeft"_s), u"77"_s);
    }

    void retry_finds_a_disc_that_was_put_in_meanwhile()
    {
        program_->messages.Answer(msgbox::answerRetry);
        program_->messages.WhenAsked([this] { program_->disc.AddGroup(u"67"_s, 2); });
        program_->Start();
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(state.DiscRoot, u"G:"_s);
        QCOMPARE(int(state.PhotoCount), 2);
        QVERIFY2(Form2->Visible(), "the splash is shown again");
        QCOMPARE(Form2->Timer1.Interval(), 5000);
        program_->PassSplash();
        QCOMPARE(Form1->panYear.Caption(), u"1967"_s);
    }

    void retry_asks_again_as_long_as_there_is_no_disc()
    {
        for (int time = 0; time < 3; ++time)
            program_->messages.Answer(msgbox::answerRetry);
        program_->Start();
        QCOMPARE(program_->messages.Count(), 4);
        QVERIFY(ProgramIsEnding());
    }

    void retry_also_sees_media_that_were_mounted_meanwhile()
    {
        static QString mounted;
        mounted.clear();
        program_->PutDiscIn({});
        SetVolumeLister([] { return mounted.isEmpty() ? QList<QString>() : QList<QString>{mounted}; });
        program_->disc.AddGroup(u"67"_s, 1);
        program_->messages.Answer(msgbox::answerRetry);
        program_->messages.WhenAsked([this] { mounted = program_->disc.Folder(); });
        program_->Start();
        QCOMPARE(state.DiscRoot, u"D:"_s);
    }

    void a_search_drops_the_photos_that_were_read_ahead()
    {
        program_->disc.AddGroup(u"67"_s, 3);
        program_->StartBrowsing();
        QTRY_VERIFY(BytesReadAhead() > 0);
        FindDisc();
        QCOMPARE(BytesReadAhead(), 0);
    }

    void folder_and_extension_are_found_in_any_letter_case()
    {
        program_->disc.AddFile(u"TORVIKS/67a.Jpg"_s, TestDisc::Jpeg(Qt::red, {8, 8}));
        program_->Start();
        QCOMPARE(state.DiscRoot, u"G:"_s);
        QCOMPARE(state.PhotoFiles(1), u"G:\\Torviks\\67A.JPG"_s);
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(DiscSearchTest)
#include "disc_search_test.moc"
