#include "hard_drive/copy_all_files.h"
#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "support/each_round.h"
#include "support/file_bytes.h"
#include "support/file_size_limit.h"
#include "support/program.h"
#include "ui/application.h"
#include "ui/forms/screen.h"
#include "windows/main_window.h"

#include <QTest>

#include <sys/stat.h>

using namespace torvik;

/// The copying of all photos and of all movies.
class CopyAllFilesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->Disc.AddGroup(QStringLiteral("67"), 2);
        program_->Disc.AddPhoto(QStringLiteral("a1tor001.jpg"), Qt::red);
        program_->StartBrowsing();
        state.CopyingPhotos = true;
    }
    void cleanup() { program_.reset(); }

    void the_folder_is_made_without_a_question()
    {
        MakeCopyFolder(ProgramFolder() + torviksFolder);
        QVERIFY(QFileInfo(program_->InProgramFolder(QStringLiteral("Torviks"))).isDir());
        QCOMPARE(program_->Messages.Count(), 0);
        QVERIFY(!state.CopyDeclined);
    }

    void a_folder_that_exists_brings_the_question_even_when_it_is_empty()
    {
        QVERIFY(QDir().mkpath(program_->InProgramFolder(QStringLiteral("TORVIKS"))));
        program_->Messages.Answer(msgbox::answerOk);
        MakeCopyFolder(ProgramFolder() + torviksFolder);
        AssertQuestion();
        QCOMPARE(int(state.MessageResult), msgbox::answerOk);
        QVERIFY(!state.CopyDeclined);
        program_->Messages.Answer(msgbox::answerCancel);
        MakeCopyFolder(ProgramFolder() + torviksFolder);
        QCOMPARE(int(state.MessageResult), msgbox::answerCancel);
        QVERIFY(state.CopyDeclined);
    }

    void a_folder_that_cannot_be_made_brings_the_same_question()
    {
        MakeCopyFolder(ProgramFolder() + QStringLiteral("\\none\\Torviks\\"));
        AssertQuestion();
        QVERIFY(state.CopyDeclined);
    }

    void all_photos_are_copied_under_their_names_in_capitals()
    {
        MakeTarget();
        CopyAllPhotos();
        const QStringList expected{QStringLiteral("67A.JPG"), QStringLiteral("67B.JPG"),
                                   QStringLiteral("A1TOR001.JPG")};
        QCOMPARE(Copies(QStringLiteral("Torviks")), expected);
        QCOMPARE(BytesOf(program_->InProgramFolder(QStringLiteral("Torviks/A1TOR001.JPG"))),
                 BytesOf(program_->Disc.PathOf(QStringLiteral("Torviks/a1tor001.jpg"))));
        AssertDone(QStringLiteral("Photos successfully copied!\r\n"));
        QCOMPARE(state.CopySource, QStringLiteral("G:\\Torviks\\A1TOR001.JPG"));
        QCOMPARE(state.CopyTarget, ProgramFolder() + QStringLiteral("\\Torviks\\A1TOR001.JPG"));
        QCOMPARE(int(state.LoopIndex), 4);
        QCOMPARE(state.PhotoRoot, QStringLiteral("G:"));
    }

    void the_discs_photos_are_copied_although_earlier_copies_are_on_show()
    {
        program_->AddToProgramFolder(QStringLiteral("Torviks/67Z.JPG"), "old");
        state.PhotoRoot = ProgramFolder();
        CopyAllPhotos();
        QCOMPARE(Copies(QStringLiteral("Torviks")).size(), 4);
        QCOMPARE(BytesOf(program_->InProgramFolder(QStringLiteral("Torviks/67Z.JPG"))), QByteArray("old"));
        QCOMPARE(state.PhotoFiles(1), QStringLiteral("G:\\Torviks\\67A.JPG"));
    }

    void all_movies_are_copied_and_the_photos_stay_where_they_are_read()
    {
        program_->Disc.AddFile(QStringLiteral("movies/drive.avi"), MixedBytes(60'000));
        program_->Disc.AddFile(QStringLiteral("movies/Race.avi"), MixedBytes(10));
        program_->AddToProgramFolder(QStringLiteral("movies/x.txt"), "x");
        state.CopyingPhotos = false;
        CopyAllMovies();
        QCOMPARE(BytesOf(program_->InProgramFolder(QStringLiteral("movies/DRIVE.AVI"))), MixedBytes(60'000));
        QCOMPARE(BytesOf(program_->InProgramFolder(QStringLiteral("movies/RACE.AVI"))), MixedBytes(10));
        AssertDone(QStringLiteral("Movies successfully copied!\r\n"));
        QCOMPARE(state.CopyRemaining, 432'000'000 - 50'000);
        QCOMPARE(state.PhotoRoot, QStringLiteral("G:"));
    }

    void the_window_takes_no_input_and_the_hourglass_stands_meanwhile()
    {
        program_->Disc.AddFile(QStringLiteral("Torviks/68A.JPG"), MixedBytes(50'000));
        MakeTarget();
        QList<bool> enabled;
        QList<MousePointer> pointers;
        {
            const EachRound round([&] {
                enabled.append(Form1->Enabled());
                pointers.append(Screen.Pointer());
                QTest::keyClick(&Form1->cmdYR(5).Widget(), Qt::Key_Space);
            });
            CopyAllPhotos();
        }
        QCOMPARE(enabled, (QList<bool>{false, false}));
        QCOMPARE(pointers, (QList<MousePointer>{MousePointer::Hourglass, MousePointer::Hourglass}));
        QCOMPARE(Form1->panYear.Caption(), QStringLiteral("1967"));
        QVERIFY(Form1->Enabled());
    }

    void the_last_word_comes_with_the_pointer_back_and_the_window_still_disabled()
    {
        MakeTarget();
        MousePointer pointer = MousePointer::Hourglass;
        bool enabled = true;
        program_->Messages.WhenAsked([&] {
            pointer = Screen.Pointer();
            enabled = Form1->Enabled();
        });
        CopyAllPhotos();
        QCOMPARE(pointer, MousePointer::Default);
        QVERIFY(!enabled);
        QVERIFY(Form1->Enabled());
    }

    void the_whole_gauge_is_full_at_the_end_although_rests_do_not_count()
    {
        MakeTarget();
        CopyAllPhotos();
        QCOMPARE(state.CopyRemaining, 42'000'000);
        QCOMPARE(Form1->ProgressGuage2.FloodPercent(), 100);
        QCOMPARE(Form1->ProgressGuage2.Caption(), QStringLiteral("100"));
    }

    void a_photo_that_cannot_be_copied_is_told_and_the_others_follow()
    {
        program_->AddToProgramFolder(QStringLiteral("Torviks/67A.JPG/inside"), "x");
        CopyAllPhotos();
        QCOMPARE(Texts(), (QStringList{QStringLiteral("Path/File access error"),
                                       QStringLiteral("Photos successfully copied!\r\n")}));
        QVERIFY(QFileInfo(program_->InProgramFolder(QStringLiteral("Torviks/67B.JPG"))).isFile());
    }

    void a_disk_that_is_full_is_told_for_each_file()
    {
        program_->Disc.AddFile(QStringLiteral("Torviks/68A.JPG"), MixedBytes(50'000));
        program_->Disc.AddFile(QStringLiteral("Torviks/68B.JPG"), MixedBytes(50'000));
        MakeTarget();
        const FileSizeLimit limit(30'000);
        CopyAllPhotos();
        QCOMPARE(Texts(), (QStringList{QStringLiteral("Disk full"), QStringLiteral("Disk full"),
                                       QStringLiteral("Photos successfully copied!\r\n")}));
    }

    void a_disc_that_is_pulled_out_in_mid_copy_is_told_for_each_file_that_is_left()
    {
        program_->Disc.AddFile(QStringLiteral("Torviks/67A.JPG"), MixedBytes(50'000));
        MakeTarget();
        {
            const EachRound round([&] { program_->PutDiscIn({}); });
            CopyAllPhotos();
        }
        QCOMPARE(Texts(),
                 (QStringList{QStringLiteral("Device unavailable"), QStringLiteral("Device unavailable"),
                              QStringLiteral("Photos successfully copied!\r\n")}));
        QCOMPARE(Copies(QStringLiteral("Torviks")), QStringList{QStringLiteral("67A.JPG")});
    }

    void a_disc_without_photos_leads_to_no_copy_and_to_no_end()
    {
        program_->Disc.Remove(QStringLiteral("Torviks"));
        MakeTarget();
        CopyAllPhotos();
        QCOMPARE(program_->Messages.Count(), 4);
        QCOMPARE(program_->Messages.Shown().at(1).Text, QStringLiteral("Subscript out of range"));
        QCOMPARE(program_->Messages.Last().Text, QStringLiteral("Photos successfully copied!\r\n"));
        QCOMPARE(Copies(QStringLiteral("Torviks")), QStringList());
        QVERIFY(Form1->Enabled());
    }

    void a_disc_without_movies_is_copied_at_once()
    {
        state.CopyingPhotos = false;
        CopyAllMovies();
        QCOMPARE(Texts(), QStringList{QStringLiteral("Movies successfully copied!\r\n")});
    }

    void a_disc_without_movies_after_one_with_movies_is_told_for_each_of_those()
    {
        program_->Disc.AddFile(QStringLiteral("movies/a.avi"), "x");
        program_->Disc.AddFile(QStringLiteral("movies/b.avi"), "x");
        program_->AddToProgramFolder(QStringLiteral("movies/x.txt"), "x");
        state.CopyingPhotos = false;
        CopyAllMovies();
        program_->Disc.Remove(QStringLiteral("movies"));
        program_->Messages.Clear();
        CopyAllMovies();
        QCOMPARE(Texts(),
                 (QStringList{QStringLiteral("File not found"), QStringLiteral("Subscript out of range"),
                              QStringLiteral("Movies successfully copied!\r\n")}));
    }

private:
    void MakeTarget() { QVERIFY(QDir().mkpath(program_->InProgramFolder(QStringLiteral("Torviks")))); }

    QStringList Copies(const QString& folder) const
    {
        return QDir(program_->InProgramFolder(folder)).entryList(QDir::Files, QDir::Name);
    }

    QStringList Texts() const
    {
        QStringList texts;
        for (const MessageRequest& box : program_->Messages.Shown())
            texts.append(box.Text);
        return texts;
    }

    void AssertQuestion()
    {
        const MessageRequest box = program_->Messages.Last();
        QCOMPARE(box.Text,
                 QStringLiteral("These files have already been copied\r\nto your hard drive.\r\n\r\n"
                                "Would you like to copy them again?"));
        QCOMPARE(box.Style, msgbox::question + msgbox::okCancel);
        QCOMPARE(box.Title, applicationTitle);
    }

    void AssertDone(const QString& text)
    {
        QCOMPARE(program_->Messages.Count(), 1);
        const MessageRequest box = program_->Messages.Last();
        QCOMPARE(box.Text, text);
        QCOMPARE(box.Style, msgbox::exclamation);
        QCOMPARE(box.Title, QStringLiteral("The Torvik Vollandry"));
        QCOMPARE(state.MessageText, text);
        QCOMPARE(state.MessageAnswer, QStringLiteral("1"));
    }

    std::unique_ptr<Program> program_;
};

QTEST_MAIN(CopyAllFilesTest)
#include "copy_all_files_test.moc"
