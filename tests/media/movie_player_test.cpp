#include "platform/files/files.h"
#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "runtime/failure.h"
#include "support/discs/test_movie.h"
#include "support/movie_visit.h"
#include "support/test_class.h"
#include "ui/forms/clock.h"
#include "ui/forms/form_window.h"
#include "ui/forms/screen.h"
#include "ui/media/video_pane.h"
#include "windows/movie_window.h"

#include <QAbstractButton>
#include <QFile>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

using Mode = MediaControl::Mode;

struct Movie {
    const char* caption;
    const char* file;
    const char* title;
};

const Movie movies[] = {
    {"1967 \"Volcano\"", "Torvik67.avi", "Torvik Movies - The 1967 Torvik"},
    {"1969 Torvik", "Torvik69.avi", "Torvik Movies - The 1969 Torvik"},
    {"The Super Glider", "TheSuperGlider.avi", "Torvik Movies - The Super Glider"},
    {"Q44 \"Shadows\"", "Q44.avi", "Torvik Movies - Q44"},
    {"Rock and Roll", "RocknRoll.avi", "Torvik Movies - Rock and Roll"},
    {"", "", "Torvik Movies - xxxx"},
};

const QString report = u"Error number: ER045\r\n\r\n Unable to load Torvik Movie."
                       "\r\n\r\nMake sure that the Torvik Vollandry is in the CDROM drive."_s;

MediaControl& Device()
{
    return frmMovie->MMControl1.device;
}

QAbstractButton& BarButton(const char* name)
{
    auto* button =
        frmMovie->Window().findChild<QAbstractButton*>(u"MMControl1(%1)"_s.arg(QString::fromLatin1(name)));
    if (button == nullptr)
        qFatal("there is no such button");
    return *button;
}

void Press(const char* name)
{
    QTest::mouseClick(&BarButton(name), Qt::LeftButton);
}

QImage Shown()
{
    const auto* pane = dynamic_cast<VideoPane*>(frmMovie->Window().findChild<QWidget*>(u"PicMovie(Video)"_s));
    return pane == nullptr || pane->isHidden() ? QImage() : pane->Picture();
}

} // namespace

/// The movie player's window.
class MoviePlayerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 2);
        for (const Movie& movie : movies) {
            if (*movie.file != '\0')
                program_->disc.AddFile(u"Movies/"_s + QString::fromLatin1(movie.file), TestMovie::Avi());
        }
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    // Where the movies lie

    void without_copies_the_movies_come_from_the_disc()
    {
        QVERIFY(VisitMovies(*program_, [] {}));
        QCOMPARE(state.MovieFolder, u"G:\\movies\\"_s);
    }

    void copies_beside_the_program_come_first()
    {
        program_->AddToProgramFolder(u"movies/TORVIK67.AVI"_s, TestMovie::Avi());
        QString file;
        QVERIFY(VisitMovies(*program_, [&] { file = Device().FileName(); }));
        QCOMPARE(state.MovieFolder, ProgramFolder() + u"\\movies\\"_s);
        QCOMPARE(file, ProgramFolder() + u"\\movies\\Torvik67.avi"_s);
    }

    void an_empty_folder_beside_the_program_does_not_count()
    {
        program_->AddToProgramFolder(u"movies/readme.txt"_s, "no movie");
        QVERIFY(VisitMovies(*program_, [] {}));
        QCOMPARE(state.MovieFolder, u"G:\\movies\\"_s);
    }

    void a_folder_beside_the_program_that_cannot_be_asked_does_not_count()
    {
        const QString folder = program_->InProgramFolder(u"movies"_s);
        QVERIFY(QFile::link(folder, folder)); // leads round and round
        QVERIFY(ResumeNext([] { FindFile(ProgramFolder() + u"\\movies\\*.avi"_s); }) != 0);
        QVERIFY(VisitMovies(*program_, [] {}));
        QCOMPARE(state.MovieFolder, u"G:\\movies\\"_s);
    }

    // Coming up

    void it_comes_up_in_the_middle_with_the_first_movie_open_and_standing()
    {
        Screen.SetMousePointer(MousePointer::Hourglass);
        state.NextYearButton = 7;
        QVERIFY(VisitMovies(*program_, [] {
            frmMovieControls& form = *frmMovie;
            QCOMPARE(form.Left(), (Screen.Width() - form.Width()) * 0.5);
            QCOMPARE(form.Top(), (Screen.Height() - form.Height()) * 0.5);
            QVERIFY(!Form1->Enabled());
            QVERIFY(form.optMovie(0).Value());
            QCOMPARE(form.Caption(), u"Torvik Movies - The 1967 Torvik"_s);
            QVERIFY(form.MMControl1.Visible());
            QVERIFY(form.PicMovie.Visible());
            QCOMPARE(form.PicMovie.Height(), 3255.0);
            QCOMPARE(int(state.NextYearButton), 0);
            QCOMPARE(Device().FileName(), u"G:\\movies\\Torvik67.avi"_s);
            QVERIFY(Device().IsOpen());
            QVERIFY(Device().wait && !Device().notify && !Device().shareable);
            QCOMPARE(Device().State(), Mode::Stopped);
            QVERIFY(Shown().isNull()); // the opening picture stands until something is played
            QVERIFY(!form.PicMovie.Picture().IsEmpty());
            QCOMPARE(Screen.Pointer(), MousePointer::Default);
        }));
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    void it_holds_the_controls_that_it_has_always_had()
    {
        QVERIFY(VisitMovies(*program_, [] {
            frmMovieControls& form = *frmMovie;
            QCOMPARE(form.optMovie.Count(), 6);
            for (int index = 0; index < 6; ++index)
                QCOMPARE(form.optMovie(index).Caption(), QString::fromLatin1(movies[index].caption));
            QCOMPARE(form.SSCommand1.Caption(), u"Exit"_s);
            QCOMPARE(form.SSCommand2.Caption(), u"Help"_s);
            QCOMPARE(form.Design().caption, u"Torvik Movies"_s);
            for (const char* name :
                 {"PicMovie", "SSPanel1", "HScroll1", "MMControl1", "SSCommand1", "SSCommand2"})
                QVERIFY(form.Window().findChild<QWidget*>(QString::fromLatin1(name)) != nullptr);
            form.HScroll1.SetValue(100); // nobody listens
            QCOMPARE(Device().Position(), 0);
        }));
    }

    // Choosing

    void each_option_opens_its_movie_data()
    {
        QTest::addColumn<int>("index");
        for (int index = 1; index < 6; ++index)
            QTest::newRow(movies[index].title) << index;
    }
    void each_option_opens_its_movie()
    {
        QFETCH(const int, index);
        QVERIFY(VisitMovies(*program_, [&] {
            program_->Click(frmMovie->optMovie(index));
            QVERIFY(frmMovie->optMovie(index).Value());
            QCOMPARE(frmMovie->Caption(), QString::fromLatin1(movies[index].title));
            QCOMPARE(Device().FileName(), u"G:\\movies\\"_s + QString::fromLatin1(movies[index].file));
            QVERIFY(Device().IsOpen());
            QCOMPARE(Screen.Pointer(), MousePointer::Default);
        }));
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    void the_option_without_a_movie_opens_the_folder_which_plays_nothing()
    {
        QVERIFY(VisitMovies(*program_, [&] {
            program_->Click(frmMovie->optMovie(5));
            QCOMPARE(Device().FileName(), u"G:\\movies\\"_s);
            QTRY_COMPARE(Device().State(), Mode::NotOpen);
            QVERIFY(!BarButton("Play").isEnabled());
        }));
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    void another_movie_ends_the_one_that_plays()
    {
        QVERIFY(VisitMovies(*program_, [&] {
            PlayUntilShown();
            program_->Click(frmMovie->optMovie(1));
            QCOMPARE(Device().State(), Mode::Stopped);
            QVERIFY(Shown().isNull());
            QCOMPARE(Device().Position(), 0);
        }));
    }

    void a_movie_that_is_missing_or_damaged_says_nothing()
    {
        program_->disc.Remove(u"Movies/Q44.avi"_s);
        program_->disc.AddFile(u"Movies/RocknRoll.avi"_s, "no movie");
        QVERIFY(VisitMovies(*program_, [&] {
            for (const int index : {3, 4}) {
                program_->Click(frmMovie->optMovie(index));
                QCOMPARE(frmMovie->Caption(), QString::fromLatin1(movies[index].title));
                QTRY_COMPARE(Device().State(), Mode::NotOpen);
                QCOMPARE(Screen.Pointer(), MousePointer::Default);
            }
            program_->Click(frmMovie->optMovie(2));
            QTRY_VERIFY(BarButton("Play").isEnabled() && Device().Length() > 0);
        }));
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    // The two ways into the error

    void without_a_code_of_the_year_no_movie_opens()
    {
        state.YearCode.clear();
        QVERIFY(VisitMovies(*program_, [&] {
            QCOMPARE(program_->messages.Count(), 1);
            QCOMPARE(program_->messages.Last().text, report);
            QCOMPARE(program_->messages.Last().style, 16);
            QCOMPARE(frmMovie->Caption(), u"Torvik Movies - The 1967 Torvik"_s);
            QVERIFY(!Device().IsOpen());
            QVERIFY(!frmMovie->MMControl1.Visible());
            QVERIFY(frmMovie->PicMovie.Visible());
            QCOMPARE(Screen.Pointer(), MousePointer::Hourglass);
            program_->Click(frmMovie->optMovie(2));
            QCOMPARE(program_->messages.Count(), 2);
            QCOMPARE(frmMovie->Caption(), u"Torvik Movies - The Super Glider"_s);
            QVERIFY(Form1->Enabled()); // the report enables it
        }));
        QCOMPARE(state.ErrorCode, u"ER045"_s);
        QCOMPARE(Screen.Pointer(), MousePointer::Hourglass);
    }

    void whatever_the_code_holds_a_movie_opens()
    {
        state.YearCode = u"backfrng.wav"_s;
        QVERIFY(VisitMovies(*program_, [] { QVERIFY(Device().IsOpen()); }));
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    void a_failure_while_the_disc_is_asked_is_reported_after_the_title_has_changed()
    {
        QVERIFY(VisitMovies(*program_, [&] {
            program_->PutDiscIn(QChar());
            program_->Click(frmMovie->optMovie(4));
            QCOMPARE(program_->messages.Count(), 1);
            QCOMPARE(program_->messages.Last().text, report);
            QCOMPARE(frmMovie->Caption(), u"Torvik Movies - Rock and Roll"_s);
            QCOMPARE(Device().FileName(), u"G:\\movies\\Torvik67.avi"_s);
            QCOMPARE(Screen.Pointer(), MousePointer::Hourglass);
        }));
    }

    // The buttons

    void play_moves_the_pictures_and_stop_goes_back_to_the_first()
    {
        QVERIFY(VisitMovies(*program_, [&] {
            const QImage first = PlayUntilShown();
            Clock::Turn(1000);
            QTRY_VERIFY(Device().Position() == 1000 && Shown() != first);
            Press("Stop");
            QCOMPARE(Device().State(), Mode::Stopped);
            QCOMPARE(Device().Position(), 0);
            QTRY_COMPARE(Shown(), first);
        }));
    }

    void back_next_and_the_buttons_without_a_handler_give_their_commands()
    {
        QVERIFY(VisitMovies(*program_, [&] {
            QTRY_VERIFY(Device().Length() > 0);
            Press("Next");
            QCOMPARE(Device().Position(), Device().Length());
            QTRY_VERIFY(!Shown().isNull());
            const QImage last = Shown();
            Press("Back");
            QTRY_VERIFY(Shown() != last);
            Press("Step");
            QTRY_COMPARE(Shown(), last);
            Press("Prev");
            QCOMPARE(Device().Position(), 0);
            PlayUntilShown();
            Press("Pause");
            QCOMPARE(Device().State(), Mode::Paused);
        }));
    }

    void a_movie_plays_to_its_end_and_again()
    {
        QVERIFY(VisitMovies(*program_, [&] {
            for (int round = 0; round < 2; ++round) {
                Press("Play");
                QCOMPARE(Device().State(), Mode::Playing);
                QTRY_VERIFY((Clock::Turn(200), Device().State() == Mode::Stopped));
                QCOMPARE(Device().Position(), Device().Length());
            }
        }));
    }

    // Leaving

    void exit_goes_back_to_the_year_buttons()
    {
        QVERIFY(VisitMovies(*program_, [&] {
            PlayUntilShown();
            program_->Click(frmMovie->SSCommand1);
            QVERIFY(!frmMovie.IsLoaded());
        }));
        QVERIFY(Form1->Enabled());
        QCOMPARE(state.YearCode, u"67"_s);
        QCOMPARE(Program::Focus(), u"cmdYR(2)"_s);
    }

    void the_close_box_unloads_it_too()
    {
        QVERIFY(VisitMovies(*program_, [&] {
            PlayUntilShown();
            frmMovie->Window().close();
            QVERIFY(!frmMovie.IsLoaded());
        }));
        QVERIFY(Form1->Enabled());
    }

    void the_next_visit_begins_anew()
    {
        QVERIFY(VisitMovies(*program_, [&] { program_->Click(frmMovie->optMovie(3)); }));
        QVERIFY(VisitMovies(*program_, [] {
            QVERIFY(frmMovie->optMovie(0).Value());
            QCOMPARE(frmMovie->Caption(), u"Torvik Movies - The 1967 Torvik"_s);
        }));
    }

private:
    static QImage PlayUntilShown()
    {
        Press("Play");
        [] { QTRY_VERIFY(!Shown().isNull()); }();
        return Shown();
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(MoviePlayerTest)
#include "movie_player_test.moc"
