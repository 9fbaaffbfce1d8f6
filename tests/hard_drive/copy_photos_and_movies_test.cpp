#include "hard_drive/copy_photos_and_movies.h"
#include "platform/files/disk_space.h"
#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "runtime/failure.h"
#include "support/discs/file_bytes.h"
#include "support/each_round.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/application.h"
#include "ui/forms/program_end.h"
#include "windows/main_window.h"
#include "windows/play_list_window.h"

#include <QApplication>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// A current directory with this many bytes free, in clusters of 4,096 bytes; the result is always a multiple
/// of 4,096,000 bytes.
void HaveFree(qint64 clustersOf1024)
{
    SetDiskMeter([clustersOf1024](const QString&) {
        return DiskClusters{8, 512, clustersOf1024 * 1024, clustersOf1024 * 2048};
    });
}

constexpr qint64 plenty = 1000;

} // namespace

/// The copy panel, from the menu to its end.
class CopyPhotosAndMoviesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        HaveFree(plenty);
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 2);
        program_->disc.AddFile(u"movies/drive.avi"_s, "movie");
        program_->StartBrowsing();
    }
    void cleanup()
    {
        program_.reset();
        SetDiskMeter({});
    }

    void the_panel_is_hidden_at_the_start_and_bears_its_label()
    {
        QVERIFY(!Form1->pnlProgress.Visible());
        QCOMPARE(Form1->Label1.Caption(), u"Copying file:"_s);
        QCOMPARE(Form1->cmdCancel.Caption(), u"Cancel"_s);
        QVERIFY(!Form1->Image1.Picture().IsEmpty());
    }

    void the_photo_entry_opens_it_for_photos()
    {
        Form1->Text1.SetText(u"earlier"_s);
        Form1->mnuCopy.Click.Fire();
        QVERIFY(Form1->pnlProgress.Visible());
        QVERIFY(state.CopyingPhotos);
        QCOMPARE(Form1->Label2.Caption(), u"Copy photos from CD-ROM to hard drive"_s);
        QCOMPARE(Form1->cmdCopy.Caption(), u"Copy Photos"_s);
        QCOMPARE(Form1->Text1.Text(), u" "_s);
    }

    void the_movie_entry_opens_it_for_movies()
    {
        state.CopyingPhotos = true;
        Form1->mnuCopyMovies.Click.Fire();
        QVERIFY(Form1->pnlProgress.Visible());
        QVERIFY(!state.CopyingPhotos);
        QCOMPARE(Form1->Label2.Caption(), u"Copy Movies from CD-ROM to hard drive"_s);
        QCOMPARE(Form1->cmdCopy.Caption(), u"Copy Movies"_s);
        QCOMPARE(Form1->Text1.Text(), u" "_s);
    }

    void it_stands_centred_over_the_year_bar_below_the_buttons()
    {
        Form1->mnuCopy.Click.Fire();
        // The bar ends at 11,685 twips, which is 779 pixels.
        QCOMPARE(Form1->pnlProgress.Top(), 60.0);
        QCOMPARE(Form1->pnlProgress.Left(), (779.0 - Form1->pnlProgress.Width()) / 2);
        Form1->cmdDesc.SetTop(11);
        Form1->cmdExit.SetLeft(9150);
        ShowCopyPanel();
        QCOMPARE(Form1->pnlProgress.Top(), 71.0);
        QCOMPARE(Form1->pnlProgress.Left(), (789.0 - Form1->pnlProgress.Width()) / 2);
    }

    void opening_sets_gauges_and_buttons_back_and_comes_to_the_front()
    {
        for (Panel* gauge : {&Form1->ProgressGuage, &Form1->ProgressGuage2}) {
            gauge->SetFloodPercent(50);
            gauge->SetCaption(50);
        }
        Form1->cmdCopy.SetEnabled(false);
        Form1->cmdCancel.SetEnabled(false);
        Form1->mnuCopy.Click.Fire();
        for (Panel* gauge : {&Form1->ProgressGuage, &Form1->ProgressGuage2}) {
            QCOMPARE(gauge->FloodPercent(), 0);
            QCOMPARE(gauge->Caption(), u"0"_s);
        }
        QVERIFY(Form1->cmdCopy.Enabled());
        QVERIFY(Form1->cmdCancel.Enabled());
        QCOMPARE(Form1->pnlProgress.Widget().children().last(), &Form1->cmdCancel.Widget());
        QCOMPARE(Form1->pnlProgress.Widget().parent()->children().last(), &Form1->pnlProgress.Widget());
    }

    void cancel_hides_the_panel_and_nothing_else()
    {
        state.CopyForSaver = true;
        Form1->mnuCopy.Click.Fire();
        program_->Click(Form1->cmdCancel);
        QVERIFY(!Form1->pnlProgress.Visible());
        QVERIFY(state.CopyForSaver);
        QVERIFY(!QFileInfo::exists(program_->InProgramFolder(u"Torviks"_s)));
        QCOMPARE(program_->messages.Count(), 0);
    }

    void too_little_room_for_photos_is_told_and_no_panel_opens()
    {
        state.CopyForSaver = true;
        HaveFree(9); // 36,864,000 bytes
        Form1->mnuCopy.Click.Fire();
        AssertSpaceMessage(u"36,864,000"_s, u"1,136,000"_s, u"38,000,000"_s);
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY(!Form1->pnlProgress.Visible());
        QVERIFY(state.CopyForSaver);
        QCOMPARE(Form1->Label2.Caption(), u"Copy photos from CD-ROM to hard drive"_s);
        HaveFree(10); // 40,960,000 bytes
        Form1->mnuCopy.Click.Fire();
        QVERIFY(Form1->pnlProgress.Visible());
    }

    void too_little_room_for_movies_speaks_of_photos_too()
    {
        HaveFree(114); // 466,944,000 bytes
        Form1->mnuCopyMovies.Click.Fire();
        AssertSpaceMessage(u"466,944,000"_s, u"3,056,000"_s, u"470,000,000"_s);
        QVERIFY(!Form1->pnlProgress.Visible());
        HaveFree(115); // 471,040,000 bytes
        Form1->mnuCopyMovies.Click.Fire();
        QVERIFY(Form1->pnlProgress.Visible());
    }

    void exactly_the_room_that_is_demanded_is_enough()
    {
        // 1,900 units of one sector and 20 bytes: 38,000 times 1,000.
        SetDiskMeter([](const QString&) { return DiskClusters{1, 20, 1'900LL * 1024, 1'900LL * 1024}; });
        Form1->mnuCopy.Click.Fire();
        QVERIFY(Form1->pnlProgress.Visible());
        SetDiskMeter([](const QString&) { return DiskClusters{1, 37'999, 1024, 1024}; });
        Form1->pnlProgress.Hide();
        Form1->mnuCopy.Click.Fire();
        AssertSpaceMessage(u"37,999,000"_s, u"1,000"_s, u"38,000,000"_s);
    }

    void a_drive_that_cannot_be_measured_counts_as_full_and_prints_no_zero()
    {
        SetDiskMeter([](const QString&) -> DiskClusters { Fail(failure::deviceIo); });
        Form1->mnuCopy.Click.Fire();
        QCOMPARE(program_->messages.Count(), 2);
        QCOMPARE(program_->messages.Shown().first().text, u"Internal GetDisk error!"_s);
        AssertSpaceMessage({}, u"38,000,000"_s, u"38,000,000"_s);
        QVERIFY(program_->messages.Last().text.contains(u"You have:   bytes\r\n"_s));
        QVERIFY(!Form1->pnlProgress.Visible());
    }

    void photos_are_copied_and_read_from_the_copies_at_once()
    {
        state.CopyForSaver = true;
        Form1->mnuCopy.Click.Fire();
        program_->Click(Form1->cmdCopy);
        QCOMPARE(BytesOf(program_->InProgramFolder(u"Torviks/67B.JPG"_s)),
                 BytesOf(program_->disc.PathOf(u"Torviks/67B.JPG"_s)));
        QVERIFY(!Form1->pnlProgress.Visible());
        QVERIFY(!state.CopyForSaver);
        QVERIFY(!Form1->cmdCopy.Enabled());
        QVERIFY(!Form1->cmdCancel.Enabled());
        QCOMPARE(state.PhotoRoot, ProgramFolder());
        QCOMPARE(state.PhotoFiles(2), ProgramFolder() + u"\\Torviks\\67B.JPG"_s);
        program_->disc.Remove(u"Torviks/67A.JPG"_s);
        program_->disc.Remove(u"Torviks/67B.JPG"_s);
        program_->Press(Form1->cmdYR(2), Qt::Key_Period);
        QCOMPARE(state.CurrentPhotoFile, ProgramFolder() + u"\\Torviks\\67B.JPG"_s);
        program_->Press(Form1->cmdYR(2), Qt::Key_Period);
        QCOMPARE(state.CurrentPhotoFile, ProgramFolder() + u"\\Torviks\\67A.JPG"_s);
    }

    void movies_are_copied_and_the_photos_go_on_being_read_from_the_disc()
    {
        Form1->mnuCopyMovies.Click.Fire();
        program_->Click(Form1->cmdCopy);
        QCOMPARE(BytesOf(program_->InProgramFolder(u"movies/DRIVE.AVI"_s)), QByteArray("movie"));
        QCOMPARE(state.PhotoRoot, u"G:"_s);
        QVERIFY(!QFileInfo::exists(program_->InProgramFolder(u"Torviks"_s)));
        QVERIFY(!Form1->pnlProgress.Visible());
        QVERIFY(!state.CopyForSaver);
    }

    void the_keyboard_goes_on_working_after_a_copy_and_after_cancel()
    {
        Form1->mnuCopy.Click.Fire();
        program_->Click(Form1->cmdCancel);
        QVERIFY(QApplication::focusWidget() != nullptr && QApplication::focusWidget()->isVisible());
        Form1->mnuCopy.Click.Fire();
        program_->Click(Form1->cmdCopy);
        QVERIFY(QApplication::focusWidget() != nullptr && QApplication::focusWidget()->isVisible());
    }

    void both_buttons_are_off_while_files_move()
    {
        program_->disc.AddFile(u"Torviks/68A.JPG"_s, MixedBytes(25'000));
        Form1->mnuCopy.Click.Fire();
        bool seen = false;
        {
            const EachRound round([&] {
                if (!Form1->Enabled())
                    seen = !Form1->cmdCopy.Enabled() && !Form1->cmdCancel.Enabled() &&
                           Form1->pnlProgress.Visible();
            });
            program_->Click(Form1->cmdCopy);
        }
        QVERIFY(seen);
    }

    void a_declined_copy_closes_the_panel_and_keeps_the_savers_wait()
    {
        program_->AddToProgramFolder(u"Torviks/67A.JPG"_s, "old");
        state.CopyForSaver = true;
        Form1->mnuCopy.Click.Fire();
        program_->messages.Answer(msgbox::answerCancel);
        program_->Click(Form1->cmdCopy);
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY(!Form1->pnlProgress.Visible());
        QVERIFY(Form1->cmdCopy.Enabled());
        QVERIFY(Form1->cmdCancel.Enabled());
        QVERIFY(state.CopyForSaver);
        QVERIFY(state.CopyDeclined);
        QCOMPARE(BytesOf(program_->InProgramFolder(u"Torviks/67A.JPG"_s)), QByteArray("old"));
        QCOMPARE(state.PhotoRoot, u"G:"_s);
    }

    void an_accepted_copy_replaces_the_earlier_one()
    {
        program_->AddToProgramFolder(u"Torviks/67A.JPG"_s, "old");
        state.CopyDeclined = true;
        Form1->mnuCopy.Click.Fire();
        program_->messages.Answer(msgbox::answerOk);
        program_->Click(Form1->cmdCopy);
        QCOMPARE(BytesOf(program_->InProgramFolder(u"Torviks/67A.JPG"_s)),
                 BytesOf(program_->disc.PathOf(u"Torviks/67A.JPG"_s)));
        QVERIFY(!state.CopyDeclined);
    }

    void a_second_copy_begins_with_both_buttons_on()
    {
        Form1->mnuCopy.Click.Fire();
        program_->Click(Form1->cmdCopy);
        Form1->mnuCopyMovies.Click.Fire();
        QVERIFY(Form1->cmdCopy.Enabled());
        QVERIFY(Form1->cmdCancel.Enabled());
        QCOMPARE(Form1->ProgressGuage2.FloodPercent(), 0);
    }

    void the_window_cannot_be_closed_while_files_move()
    {
        program_->disc.AddFile(u"Torviks/68A.JPG"_s, MixedBytes(75'000));
        Form1->mnuCopy.Click.Fire();
        {
            const EachRound round([] {
                if (!Form1->Enabled())
                    Form1->Host().window()->close();
            });
            program_->Click(Form1->cmdCopy);
        }
        QVERIFY(!ProgramIsEnding());
        QCOMPARE(BytesOf(program_->InProgramFolder(u"Torviks/68A.JPG"_s)), MixedBytes(75'000));
    }

    void a_program_that_ends_in_mid_copy_leaves_at_once_and_holds_no_file()
    {
        program_->disc.AddFile(u"Torviks/67A.JPG"_s, MixedBytes(75'000));
        const qsizetype before = OpenFileCount();
        Form1->mnuCopy.Click.Fire();
        {
            const EachRound round([] {
                if (!Form1->Enabled())
                    RunHandler([] { EndProgram(); });
            });
            program_->Click(Form1->cmdCopy);
        }
        QVERIFY(ProgramIsEnding());
        QCOMPARE(program_->messages.Count(), 0);
        QCOMPARE(OpenFileCount(), before);
        // Neither the rest of the photos nor the half of one.
        QCOMPARE(QDir(program_->InProgramFolder(u"Torviks"_s)).entryList(QDir::Files), QStringList());
    }

    void closing_the_play_list_in_mid_copy_lets_nothing_overtake_the_copy()
    {
        for (const char* name : {"67A", "68A", "69A"})
            program_->disc.AddFile(u"Torviks/%1.JPG"_s.arg(QString::fromLatin1(name)), MixedBytes(75'000));
        program_->Click(Form1->Image4, Qt::RightButton);
        Form1->mnuCopy.Click.Fire();
        int tries = 0;
        {
            const EachRound round([&] {
                if (Form1->cmdCopy.Enabled() || !Form1->pnlProgress.Visible() || ++tries > 3)
                    return;
                if (frmSSPhoto.IsLoaded())
                    QTest::mouseClick(&frmSSPhoto->SSCommand9.Widget(), Qt::LeftButton);
                QTest::mouseClick(&Form1->cmdExit.Widget(), Qt::LeftButton);
                QTest::mouseClick(&Form1->cmdYR(3).Widget(), Qt::LeftButton);
                Form1->Host().window()->close();
            });
            program_->Click(Form1->cmdCopy);
        }
        QVERIFY(tries > 3);
        QVERIFY(!frmSSPhoto.IsLoaded());
        QVERIFY(!ProgramIsEnding());
        QCOMPARE(Form1->panYear.Caption(), u"1967"_s);
        for (const char* name : {"67A", "68A", "69A"})
            QCOMPARE(BytesOf(program_->InProgramFolder(u"Torviks/%1.JPG"_s.arg(QString::fromLatin1(name)))),
                     MixedBytes(75'000));
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY(Form1->Enabled());
        program_->Click(Form1->cmdExit);
        QVERIFY(ProgramIsEnding());
    }

private:
    void AssertSpaceMessage(const QString& have, const QString& need, const QString& total)
    {
        const MessageRequest box = program_->messages.Last();
        QCOMPARE(box.text, u"Not enough available hard disk space to copy photos.\r\n\r\n"
                           "Free some up and try again.\r\n\r\n"
                           "You have:  %1 bytes\r\n\r\n"
                           "You need:   %2 bytes more\r\n\r\n"
                           "For a total of:   %3 bytes free.\r\n"_s.arg(have, need, total));
        QCOMPARE(box.style, msgbox::critical);
        QCOMPARE(box.title, u"The Torvik Vollandry"_s);
        QCOMPARE(state.MessageText, box.text);
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(CopyPhotosAndMoviesTest)
#include "copy_photos_and_movies_test.moc"
