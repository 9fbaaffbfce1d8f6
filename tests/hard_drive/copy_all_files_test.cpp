#include "hard_drive/copy_all_files.h"
#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "support/discs/file_bytes.h"
#include "support/discs/file_size_limit.h"
#include "support/each_round.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/program_title.h"
#include "ui/forms/screen.h"
#include "windows/main_window.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace torvik;

/// The copying of all photos and of all movies.
class CopyAllFilesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 2);
        program_->disc.AddPhoto(u"a1tor001.jpg"_s, Qt::red);
        program_->StartBrowsing();
        state.CopyingPhotos = true;
    }
    void cleanup() { program_.reset(); }

    void the_folder_is_made_without_a_question()
    {
        MakeCopyFolder(ProgramFolder() + torviksFolder);
        QVERIFY(QFileInfo(program_->InProgramFolder(u"Torviks"_s)).isDir());
        QCOMPARE(program_->messages.Count(), 0);
        QVERIFY(!state.CopyDeclined);
    }

    void a_folder_that_exists_brings_the_question_even_when_it_is_empty()
    {
        QVERIFY(QDir().mkpath(program_->InProgramFolder(u"TORVIKS"_s)));
        program_->messages.Answer(msgbox::answerOk);
        MakeCopyFolder(ProgramFolder() + torviksFolder);
        AssertQuestion();
        QCOMPARE(int(state.MessageResult), msgbox::answerOk);
        QVERIFY(!state.CopyDeclined);
        program_->messages.Answer(msgbox::answerCancel);
        MakeCopyFolder(ProgramFolder() + torviksFolder);
        QCOMPARE(int(state.MessageResult), msgbox::answerCancel);
        QVERIFY(state.CopyDeclined);
    }

    void a_folder_that_cannot_be_made_brings_the_same_question()
    {
        MakeCopyFolder(ProgramFolder() + u"\\none\\Torviks\\"_s);
        AssertQuestion();
        QVERIFY(state.CopyDeclined);
    }

    void all_photos_are_copied_under_their_names_in_capitals()
    {
        MakeTarget();
        CopyAllPhotos();
        const QStringList expected{u"67A.JPG"_s, u"67B.JPG"_s, u"A1TOR001.JPG"_s};
        QCOMPARE(Copies(u"Torviks"_s), expected);
        QCOMPARE(BytesOf(program_->InProgramFolder(u"Torviks/A1TOR001.JPG"_s)),
                 BytesOf(program_->disc.PathOf(u"Torviks/a1tor001.jpg"_s)));
        AssertDone(u"Photos successfully copied!\r\n"_s);
        QCOMPARE(state.CopySource, u"G:\\Torviks\\A1TOR001.JPG"_s);
        QCOMPARE(state.CopyTarget, ProgramFolder() + u"\\Torviks\\A1TOR001.JPG"_s);
        QCOMPARE(int(state.LoopIndex), 4);
        QCOMPARE(state.PhotoRoot, u"G:"_s);
    }

    void the_discs_photos_are_copied_although_earlier_copies_are_on_show()
    {
        program_->AddToProgramFolder(u"Torviks/67Z.JPG"_s, "old");
        state.PhotoRoot = ProgramFolder();
        CopyAllPhotos();
        QCOMPARE(Copies(u"Torviks"_s).size(), 4);
        QCOMPARE(BytesOf(program_->InProgramFolder(u"Torviks/67Z.JPG"_s)), QByteArray("old"));
        QCOMPARE(state.PhotoFiles(1), u"G:\\Torviks\\67A.JPG"_s);
    }

    void all_movies_are_copied_and_the_photos_stay_where_they_are_read()
    {
        program_->disc.AddFile(u"movies/drive.avi"_s, MixedBytes(60'000));
        program_->disc.AddFile(u"movies/Race.avi"_s, MixedBytes(10));
        program_->AddToProgramFolder(u"movies/x.txt"_s, "x");
        state.CopyingPhotos = false;
        CopyAllMovies();
        QCOMPARE(BytesOf(program_->InProgramFolder(u"movies/DRIVE.AVI"_s)), MixedBytes(60'000));
        QCOMPARE(BytesOf(program_->InProgramFolder(u"movies/RACE.AVI"_s)), MixedBytes(10));
        AssertDone(u"Movies successfully copied!\r\n"_s);
        QCOMPARE(state.CopyRemaining, 432'000'000 - 50'000);
        QCOMPARE(state.PhotoRoot, u"G:"_s);
    }

    void the_window_takes_no_input_and_the_hourglass_stands_meanwhile()
    {
        program_->disc.AddFile(u"Torviks/68A.JPG"_s, MixedBytes(50'000));
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
        QCOMPARE(Form1->panYear.Caption(), u"1967"_s);
        QVERIFY(Form1->Enabled());
    }

    void the_last_word_comes_with_the_pointer_back_and_the_window_still_disabled()
    {
        MakeTarget();
        MousePointer pointer = MousePointer::Hourglass;
        bool enabled = true;
        program_->messages.WhenAsked([&] {
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
        QCOMPARE(Form1->ProgressGuage2.Caption(), u"100"_s);
    }

    void a_photo_that_cannot_be_copied_is_told_and_the_others_follow()
    {
        program_->AddToProgramFolder(u"Torviks/67A.JPG/inside"_s, "x");
        CopyAllPhotos();
        QCOMPARE(Texts(), (QStringList{u"Path/File access error"_s, u"Photos successfully copied!\r\n"_s}));
        QVERIFY(QFileInfo(program_->InProgramFolder(u"Torviks/67B.JPG"_s)).isFile());
    }

    void a_disk_that_is_full_is_told_for_each_file()
    {
        program_->disc.AddFile(u"Torviks/68A.JPG"_s, MixedBytes(50'000));
        program_->disc.AddFile(u"Torviks/68B.JPG"_s, MixedBytes(50'000));
        MakeTarget();
        const FileSizeLimit limit(30'000);
        CopyAllPhotos();
        QCOMPARE(Texts(),
                 (QStringList{u"Disk full"_s, u"Disk full"_s, u"Photos successfully copied!\r\n"_s}));
    }

    void a_disc_that_is_pulled_out_in_mid_copy_is_told_for_each_file_that_is_left()
    {
        program_->disc.AddFile(u"Torviks/67A.JPG"_s, MixedBytes(50'000));
        MakeTarget();
        {
            const EachRound round([&] { program_->PutDiscIn({}); });
            CopyAllPhotos();
        }
        QCOMPARE(Texts(), (QStringList{u"Device unavailable"_s, u"Device unavailable"_s,
                                       u"Photos successfully copied!\r\n"_s}));
        QCOMPARE(Copies(u"Torviks"_s), QStringList{u"67A.JPG"_s});
    }

    void a_disc_without_photos_leads_to_no_copy_and_to_no_end()
    {
        program_->disc.Remove(u"Torviks"_s);
        MakeTarget();
        CopyAllPhotos();
        QCOMPARE(program_->messages.Count(), 4);
        QCOMPARE(program_->messages.Shown().at(1).text, u"Subscript out of range"_s);
        QCOMPARE(program_->messages.Last().text, u"Photos successfully copied!\r\n"_s);
        QCOMPARE(Copies(u"Torviks"_s), QStringList());
        QVERIFY(Form1->Enabled());
    }

    void a_disc_without_movies_is_copied_at_once()
    {
        state.CopyingPhotos = false;
        CopyAllMovies();
        QCOMPARE(Texts(), QStringList{u"Movies successfully copied!\r\n"_s});
    }

    void a_disc_without_movies_after_one_with_movies_is_told_for_each_of_those()
    {
        program_->disc.AddFile(u"movies/a.avi"_s, "x");
        program_->disc.AddFile(u"movies/b.avi"_s, "x");
        program_->AddToProgramFolder(u"movies/x.txt"_s, "x");
        state.CopyingPhotos = false;
        CopyAllMovies();
        program_->disc.Remove(u"movies"_s);
        program_->messages.Clear();
        CopyAllMovies();
        QCOMPARE(Texts(), (QStringList{u"File not found"_s, u"Subscript out of range"_s,
                                       u"Movies successfully copied!\r\n"_s}));
    }

private:
    void MakeTarget() { QVERIFY(QDir().mkpath(program_->InProgramFolder(u"Torviks"_s))); }

    QStringList Copies(const QString& folder) const
    {
        return QDir(program_->InProgramFolder(folder)).entryList(QDir::Files, QDir::Name);
    }

    QStringList Texts() const
    {
        QStringList texts;
        for (const MessageRequest& box : program_->messages.Shown())
            texts.append(box.text);
        return texts;
    }

    void AssertQuestion()
    {
        const MessageRequest box = program_->messages.Last();
        QCOMPARE(box.text, u"These files have already been copied\r\nto your hard drive.\r\n\r\n"
                           "Would you like to copy them again?"_s);
        QCOMPARE(box.style, msgbox::question + msgbox::okCancel);
        QCOMPARE(box.title, applicationTitle);
    }

    void AssertDone(const QString& text)
    {
        QCOMPARE(program_->messages.Count(), 1);
        const MessageRequest box = program_->messages.Last();
        QCOMPARE(box.text, text);
        QCOMPARE(box.style, msgbox::exclamation);
        QCOMPARE(box.title, u"The Torvik Vollandry"_s);
        QCOMPARE(state.MessageText, text);
        QCOMPARE(state.MessageAnswer, u"1"_s);
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(CopyAllFilesTest)
#include "copy_all_files_test.moc"
