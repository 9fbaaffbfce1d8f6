#include "program/program_state.h"
#include "support/discs/test_movie.h"
#include "support/movie_visit.h"
#include "support/test_class.h"
#include "ui/forms/program_end.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

const QString question = u"If you are experiencing difficulties running the Torvik movies,\r\n"
                         "you may need to install the Intel Indeo Video Software.\r\n\r\n"
                         "Would you like to install this software now?"_s;
const QString driverReport =
    u"Error number: ER003\r\n\r\n Unable to load Intel Video driver install software."
    "\r\n\r\nMake sure that the Torvik Vollandry is in the CDROM drive."_s;

} // namespace

/// The offer to install the video driver.
class VideoDriverOfferTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 2);
        program_->disc.AddFile(u"movies/Torvik67.avi"_s, TestMovie::Avi());
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void the_menu_asks_and_no_changes_nothing()
    {
        AddInstaller();
        program_->messages.Answer(msgbox::answerNo);
        AskFromMenu();
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(program_->messages.Last().text, question);
        QCOMPARE(program_->messages.Last().style, msgbox::question | msgbox::yesNo);
        QCOMPARE(program_->messages.Last().title, u"The Torvik Vollandry 2001"_s);
        QCOMPARE(int(state.MessageResult), 7);
        QVERIFY(!Installed());
        QVERIFY(!frmMovie.IsLoaded());
    }

    void yes_from_the_menu_runs_the_installer_with_the_main_window_disabled()
    {
        AddInstaller("while [ ! -e \"$(dirname \"$0\")/seen\" ]; do sleep 0.01; done\n");
        program_->messages.Answer(msgbox::answerYes);
        bool enabledMeanwhile = true;
        program_->messages.WhenAsked([&] {
            // Runs in the loop that waits for the installer, which goes on when it has.
            QMetaObject::invokeMethod(
                qApp,
                [&] {
                    enabledMeanwhile = Form1->Enabled();
                    program_->disc.AddFile(u"IndeoVideo/seen"_s, "seen");
                },
                Qt::QueuedConnection);
        });
        AskFromMenu();
        QVERIFY(Installed());
        QCOMPARE(int(state.MessageResult), 6);
        QVERIFY(!enabledMeanwhile);
        QVERIFY(Form1->Enabled());
        QVERIFY(!frmMovie.IsLoaded());
        QCOMPARE(program_->messages.Count(), 1);
    }

    void a_missing_installer_is_reported()
    {
        program_->messages.Answer(msgbox::answerYes);
        AskFromMenu();
        QCOMPARE(program_->messages.Count(), 2);
        QCOMPARE(program_->messages.Last().text, driverReport);
        QCOMPARE(program_->messages.Last().style, 16);
        QCOMPARE(state.ErrorCode, u"ER003"_s);
        QVERIFY(Form1->Enabled());
    }

    void an_installer_that_cannot_be_started_is_reported_data()
    {
        QTest::addColumn<bool>("mayRun");
        QTest::newRow("no leave to run") << false;
        QTest::newRow("no program") << true;
    }

    void an_installer_that_cannot_be_started_is_reported()
    {
        QFETCH(bool, mayRun);
        const QString file = u"IndeoVideo/iv5play.exe"_s;
        program_->disc.AddFile(file, "MZ\x90 no program of this machine");
        if (mayRun)
            QVERIFY(QFile::setPermissions(program_->disc.PathOf(file),
                                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        program_->messages.Answer(msgbox::answerYes);
        AskFromMenu();
        QCOMPARE(program_->messages.Count(), 2);
        QCOMPARE(program_->messages.Last().text, driverReport);
        QCOMPARE(Form1->Enabled(), true);
        program_->Click(Form1->cmdYR(2));
        QVERIFY(!ProgramIsEnding());
    }

    void help_asks_the_same_and_no_leaves_the_player_as_it_was()
    {
        QVERIFY(VisitMovies(*program_, [&] {
            program_->messages.Answer(msgbox::answerNo);
            const Form* before = &*frmMovie;
            program_->Click(frmMovie->SSCommand2);
            QCOMPARE(program_->messages.Last().text, question);
            QVERIFY(frmMovie->Visible());
            QCOMPARE(&*frmMovie, before);
        }));
    }

    void after_the_installer_the_player_starts_anew()
    {
        AddInstaller();
        bool cameAgain = false;
        QVERIFY(VisitMovies(*program_, [&] {
            program_->Click(frmMovie->optMovie(3));
            program_->messages.Answer(msgbox::answerYes);
            const Form* before = &*frmMovie;
            QTimer again;
            connect(&again, &QTimer::timeout, this, [&] {
                if (!frmMovie.IsLoaded() || &*frmMovie == before || !frmMovie->Visible())
                    return;
                again.stop();
                cameAgain = Installed() && frmMovie->optMovie(0).Value() && !Form1->Enabled();
                frmMovie.Unload();
            });
            again.start(0);
            program_->Click(frmMovie->SSCommand2);
        }));
        QVERIFY(cameAgain);
        QVERIFY(!frmMovie.IsLoaded());
        QVERIFY(Form1->Enabled());
    }

    void a_missing_installer_leaves_the_player_open()
    {
        QVERIFY(VisitMovies(*program_, [&] {
            program_->messages.Answer(msgbox::answerYes);
            program_->Click(frmMovie->SSCommand2);
            QCOMPARE(program_->messages.Count(), 2);
            QCOMPARE(program_->messages.Last().text, driverReport);
            QVERIFY(frmMovie->Visible());
        }));
    }

private:
    void AskFromMenu()
    {
        Form1->mnuVideo.Click.Fire();
        program_->Settle();
    }

    void AddInstaller(const QByteArray& before = {})
    {
        const QString file = u"IndeoVideo/iv5play.exe"_s;
        program_->disc.AddFile(file, "#!/bin/sh\n" + before + "touch \"$(dirname \"$0\")/done\"\n");
        QVERIFY(QFile::setPermissions(program_->disc.PathOf(file),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
    bool Installed() const { return QFile::exists(program_->disc.PathOf(u"IndeoVideo/done"_s)); }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(VideoDriverOfferTest)
#include "video_driver_offer_test.moc"
