#include "platform/paths/program_folder.h"
#include "platform/system/saver_agreement.h"
#include "platform/system/settings_store.h"
#include "program/program_state.h"
#include "support/discs/file_bytes.h"
#include "support/ordinary_user.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/program_end.h"
#include "ui/forms/program_title.h"
#include "windows/main_window.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace torvik;

/// The removal of copied photos, which ends the program, and of copied movies, which does not.
class RemoveCopiesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 2);
        program_->AddToProgramFolder(u"Torviks/67A.JPG"_s, TestDisc::Jpeg(Qt::red, {8, 8}));
        program_->AddToProgramFolder(u"Torviks/67b.jpg"_s, "x");
        program_->AddToProgramFolder(u"movies/DRIVE.AVI"_s, "x");
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void photos_go_with_their_folder_and_the_program_ends()
    {
        QCOMPARE(state.PhotoRoot, ProgramFolder());
        program_->messages.Answer(msgbox::answerYes);
        Form1->mnuRemove.Click.Fire();
        QVERIFY(!Exists(u"Torviks"_s));
        QVERIFY(Exists(u"movies/DRIVE.AVI"_s));
        AssertPhotoMessages();
        QVERIFY(ProgramIsEnding());
        QCOMPARE(state.PhotoRoot, u"G:"_s);
        QCOMPARE(state.CopyTarget, ProgramFolder() + u"\\Torviks\\*.jpg"_s);
        QCOMPARE(state.PhotoFiles(1), ProgramFolder() + u"\\Torviks\\67A.JPG"_s);
    }

    void the_savers_settings_stay_although_they_name_the_folder()
    {
        SaveSetting(saver::settings, saver::section, saver::interval, u"5"_s);
        SaveSetting(saver::settings, saver::section, saver::photoFolder, ProgramFolder() + u"\\Torviks\\"_s);
        program_->messages.Answer(msgbox::answerYes);
        Form1->mnuRemove.Click.Fire();
        QVERIFY(!Exists(u"Torviks"_s));
        QCOMPARE(GetSetting(saver::settings, saver::section, saver::interval), u"5"_s);
        QCOMPARE(GetSetting(saver::settings, saver::section, saver::photoFolder),
                 ProgramFolder() + u"\\Torviks\\"_s);
    }

    void settings_that_cannot_be_written_do_not_spoil_the_end()
    {
        const QByteArray before = qgetenv("XDG_CONFIG_HOME");
        qputenv("XDG_CONFIG_HOME", "/dev/null/nowhere");
        program_->messages.Answer(msgbox::answerYes);
        Form1->mnuRemove.Click.Fire();
        qputenv("XDG_CONFIG_HOME", before);
        AssertPhotoMessages();
        QVERIFY(ProgramIsEnding());
    }

    void movies_go_with_their_folder_and_the_program_stays()
    {
        program_->messages.Answer(msgbox::answerYes);
        Form1->mnuRemoveMovies.Click.Fire();
        QVERIFY(!Exists(u"movies"_s));
        QVERIFY(Exists(u"Torviks/67A.JPG"_s));
        AssertMovieMessages();
        QVERIFY(!ProgramIsEnding());
        QVERIFY(Form1.IsLoaded());
        QCOMPARE(state.PhotoRoot, ProgramFolder());
        QCOMPARE(state.CopyTarget, ProgramFolder() + u"\\movies\\*.avi"_s);
    }

    void no_changes_nothing()
    {
        program_->messages.Answer(msgbox::answerNo);
        Form1->mnuRemove.Click.Fire();
        program_->messages.Answer(msgbox::answerNo);
        Form1->mnuRemoveMovies.Click.Fire();
        QCOMPARE(program_->messages.Count(), 2);
        QCOMPARE(int(state.MessageResult), msgbox::answerNo);
        QCOMPARE(state.PhotoRoot, ProgramFolder());
        QVERIFY(Exists(u"Torviks/67A.JPG"_s));
        QVERIFY(Exists(u"movies/DRIVE.AVI"_s));
        QVERIFY(!ProgramIsEnding());
    }

    void without_copies_both_ask_and_report_success()
    {
        QVERIFY(QDir(program_->InProgramFolder(u"Torviks"_s)).removeRecursively());
        QVERIFY(QDir(program_->InProgramFolder(u"movies"_s)).removeRecursively());
        program_->messages.Answer(msgbox::answerYes);
        Form1->mnuRemoveMovies.Click.Fire();
        AssertMovieMessages();
        program_->messages.Clear();
        program_->messages.Answer(msgbox::answerYes);
        Form1->mnuRemove.Click.Fire();
        AssertPhotoMessages();
        QVERIFY(ProgramIsEnding());
    }

    void files_of_other_kinds_keep_the_folder_alive()
    {
        program_->AddToProgramFolder(u"Torviks/mine.txt"_s, "mine");
        program_->AddToProgramFolder(u"movies/mine.mpg"_s, "mine");
        program_->messages.Answer(msgbox::answerYes);
        Form1->mnuRemoveMovies.Click.Fire();
        program_->messages.Clear();
        program_->messages.Answer(msgbox::answerYes);
        Form1->mnuRemove.Click.Fire();
        AssertPhotoMessages();
        QCOMPARE(BytesOf(program_->InProgramFolder(u"Torviks/mine.txt"_s)), QByteArray("mine"));
        QCOMPARE(BytesOf(program_->InProgramFolder(u"movies/mine.mpg"_s)), QByteArray("mine"));
        QVERIFY(!Exists(u"Torviks/67A.JPG"_s));
        QVERIFY(!Exists(u"movies/DRIVE.AVI"_s));
    }

    void a_folder_that_is_left_over_without_photos_does_not_count_at_the_next_start()
    {
        program_->AddToProgramFolder(u"Torviks/mine.txt"_s, "mine");
        program_->messages.Answer(msgbox::answerYes);
        Form1->mnuRemove.Click.Fire();
        FormHandleBase::DiscardAll();
        ForgetProgramEnd();
        state = ProgramState();
        program_->Start();
        QCOMPARE(state.PhotoRoot, u"G:"_s);
    }

    void what_cannot_be_deleted_stays_and_success_is_reported_all_the_same()
    {
        QCOMPARE(chmod(HostOf(u""_s), 0755), 0);
        QCOMPARE(chmod(HostOf(u"movies"_s), 0555), 0);
        program_->messages.Answer(msgbox::answerYes);
        {
            const OrdinaryUser user;
            QVERIFY2(OrdinaryUser::IsOne(), OrdinaryUser::isNeeded);
            Form1->mnuRemoveMovies.Click.Fire();
        }
        AssertMovieMessages();
        QVERIFY(Exists(u"movies/DRIVE.AVI"_s));
    }

    void the_hourglass_is_off_during_the_photo_message_and_on_during_the_movie_message()
    {
        MousePointer duringMovies = MousePointer::Default;
        AnswerYesThen([&] { duringMovies = Form1->Pointer(); });
        Form1->mnuRemoveMovies.Click.Fire();
        QCOMPARE(duringMovies, MousePointer::Hourglass);
        QCOMPARE(Form1->Pointer(), MousePointer::Default);

        MousePointer duringPhotos = MousePointer::Hourglass;
        AnswerYesThen([&] { duringPhotos = Form1->Pointer(); });
        Form1->mnuRemove.Click.Fire();
        QCOMPARE(duringPhotos, MousePointer::Default);
    }

    void a_program_folder_that_is_the_disc_loses_nothing()
    {
        state.DiscRoot = ProgramFolder();
        program_->messages.Answer(msgbox::answerYes);
        Form1->mnuRemoveMovies.Click.Fire();
        program_->messages.Answer(msgbox::answerYes);
        Form1->mnuRemove.Click.Fire();
        QVERIFY(Exists(u"Torviks/67A.JPG"_s));
        QVERIFY(Exists(u"movies/DRIVE.AVI"_s));
    }

private:
    bool Exists(const QString& name) const { return QFileInfo::exists(program_->InProgramFolder(name)); }

    const char* HostOf(const QString& name)
    {
        host_ = QFile::encodeName(program_->InProgramFolder(name));
        return host_.constData();
    }

    /// Answers the question, and does `action` when the message behind it is up.
    void AnswerYesThen(const std::function<void()>& action)
    {
        program_->messages.Answer(msgbox::answerYes);
        program_->messages.WhenAsked([this, action] { program_->messages.WhenAsked(action); });
    }

    void AssertPhotoMessages()
    {
        QCOMPARE(program_->messages.Count(), 2);
        AssertQuestion(u"photos"_s);
        AssertPlain(u"All Photos Successfully Removed!\r\n\r\n"
                    "You must now exit and re-enter the Torvik Vollandry to allow \r\n"
                    "the software to find the photos on the cdrom drive.\r\n\r\n"
                    "You must also re-install the Torvik Vollandry Screen Saver \r\n"
                    "if you have previously installed it."_s);
    }

    void AssertMovieMessages()
    {
        QCOMPARE(program_->messages.Count(), 2);
        AssertQuestion(u"movies"_s);
        AssertPlain(u"All movies successfully removed!"_s);
    }

    void AssertQuestion(const QString& what)
    {
        const MessageRequest box = program_->messages.Shown().first();
        QCOMPARE(box.text,
                 u"Would you like to remove all Torvik Vollandry "_s + what + u" from your hard drive?"_s);
        QCOMPARE(box.style, msgbox::question + msgbox::yesNo);
        QCOMPARE(box.title, applicationTitle);
        QCOMPARE(int(state.MessageResult), msgbox::answerYes);
    }

    void AssertPlain(const QString& text)
    {
        const MessageRequest box = program_->messages.Last();
        QCOMPARE(box.text, text);
        QCOMPARE(box.style, msgbox::ok);
        QCOMPARE(box.title, applicationTitle);
        QCOMPARE(state.MessageText, text);
    }

    QByteArray host_;
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(RemoveCopiesTest)
#include "remove_copies_test.moc"
