#include "hard_drive/movie_list.h"
#include "program/program_state.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/program_end.h"

using namespace Qt::StringLiterals;
using namespace torvik;

class MovieListTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        state.DiscRoot = u"G:"_s;
    }
    void cleanup() { program_.reset(); }

    void the_movies_of_the_disc_stand_there_in_capitals_with_an_empty_one_after_them()
    {
        for (const char* name : {"movies/drive.avi", "movies/Race.Avi", "movies/notes.txt"})
            program_->disc.AddFile(QString::fromLatin1(name), "x");
        BuildMovieList();
        QCOMPARE(int(state.MovieCount), 2);
        QCOMPARE(Names(), (QStringList{u"DRIVE.AVI"_s, u"RACE.AVI"_s}));
        QCOMPARE(state.MovieFiles.Count(), 3);
        QCOMPARE(state.MovieFiles(3), QString());
        QCOMPARE(int(state.MovieListIndex), 3);
        QCOMPARE(state.ErrorCode, u"ER055"_s);
        QCOMPARE(program_->messages.Count(), 0);
    }

    void without_a_movie_the_count_stays_what_it_was()
    {
        BuildMovieList();
        QCOMPARE(int(state.MovieCount), 0);
        QCOMPARE(state.MovieFiles.Count(), 1);
        program_->disc.AddFile(u"movies/a.avi"_s, "x");
        BuildMovieList();
        program_->disc.Remove(u"movies/a.avi"_s);
        BuildMovieList();
        QCOMPARE(int(state.MovieCount), 1);
        QCOMPARE(state.MovieFiles.Count(), 1);
        QCOMPARE(state.MovieFiles(1), QString());
        QCOMPARE(program_->messages.Count(), 0);
    }

    void a_drive_that_is_gone_is_reported_once_and_the_list_is_empty()
    {
        state.MovieCount = 3;
        program_->PutDiscIn({});
        program_->messages.Answer(msgbox::answerRetry);
        BuildMovieList();
        QCOMPARE(program_->messages.Count(), 1);
        const MessageRequest box = program_->messages.Last();
        QCOMPARE(box.text, u"Error number: ER055\r\n\r\n"
                           " Unable to detect the Torvik Vollandry CDROM.\r\n\r\n"
                           "Make sure that the Torvik Vollandry is in the CDROM drive."_s);
        QCOMPARE(box.style, msgbox::retryCancel);
        QCOMPARE(int(state.MovieCount), 3);
        QCOMPARE(state.MovieFiles(1), QString());
    }

    void cancel_in_the_report_ends_the_program()
    {
        program_->PutDiscIn({});
        program_->messages.Answer(msgbox::answerCancel);
        RunHandler([] { BuildMovieList(); });
        QVERIFY(ProgramIsEnding());
    }

    void a_list_beyond_16_bits_comes_to_an_end()
    {
        for (int number = 0; number < 32'768; ++number)
            program_->disc.AddFile(u"movies/%1.avi"_s.arg(number), {});
        for (int report = 0; report < 2; ++report)
            program_->messages.Answer(msgbox::answerRetry);
        BuildMovieList();
        QCOMPARE(program_->messages.Count(), 2);
        QCOMPARE(int(state.MovieCount), 32'766);
    }

private:
    static QStringList Names()
    {
        QStringList names;
        for (int index = 1; index <= state.MovieCount; ++index)
            names.append(state.MovieFiles(index));
        names.sort();
        return names;
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(MovieListTest)
#include "movie_list_test.moc"
