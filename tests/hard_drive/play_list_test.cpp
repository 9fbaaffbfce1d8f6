#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "support/discs/file_bytes.h"
#include "support/each_round.h"
#include "support/ordinary_user.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/desktop/clipboard.h"
#include "ui/forms/form_window.h"
#include "ui/forms/program_end.h"
#include "ui/forms/program_title.h"
#include "windows/main_window.h"
#include "windows/play_list_window.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

using namespace Qt::StringLiterals;
using namespace torvik;

/// The play list form, worked by its buttons while the main window lies below it.
class PlayListTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 2);
        program_->StartBrowsing();
        program_->Click(Form1->Image4, Qt::RightButton);
    }
    void cleanup() { program_.reset(); }

    void a_right_click_on_the_photo_opens_it_on_top_with_its_texts()
    {
        QVERIFY(frmSSPhoto->Visible());
        QVERIFY(QFileInfo(program_->InProgramFolder(u"ssTorviks"_s)).isDir());
        QVERIFY(frmSSPhoto->Window().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QCOMPARE(frmSSPhoto->Caption(), u"The Torvik Vollandry 2001"_s);
        QCOMPARE(frmSSPhoto->Text4.Text(), u"Screen Saver Photo Selection"_s);
        QVERIFY(!frmSSPhoto->Picture1.Picture().IsEmpty());
        const QStringList captions{frmSSPhoto->SSCommand7.Caption(), frmSSPhoto->SSCommand8.Caption(),
                                   frmSSPhoto->SSCommand2.Caption(), frmSSPhoto->SSCommand3.Caption(),
                                   frmSSPhoto->SSCommand1.Caption(), frmSSPhoto->SSCommand9.Caption()};
        QCOMPARE(captions, (QStringList{u"Add this photo to list"_s, u"Remove this photo from list"_s,
                                        u"Remove all photos from the list"_s,
                                        u"Copy this photo to Clipboard"_s, u"Help"_s, u"Exit"_s}));
        QVERIFY(frmSSPhoto->SSCommand7.Enabled());
        QVERIFY(!frmSSPhoto->SSCommand8.Enabled());
        QVERIFY(frmSSPhoto->SSCommand2.Enabled());
    }

    void the_main_window_goes_on_working_below_it()
    {
        program_->Press(Form1->cmdYR(2), Qt::Key_Period);
        QCOMPARE(state.CurrentPhotoFile, u"G:\\Torviks\\67B.JPG"_s);
        QVERIFY(frmSSPhoto->Visible());
    }

    void add_puts_the_photo_on_the_list()
    {
        program_->disc.AddFile(u"Torviks/67A.JPG"_s, MixedBytes(3'500));
        MousePointer meanwhile = MousePointer::Default;
        MousePointer atTheEnd = MousePointer::Hourglass;
        program_->messages.WhenAsked([&] { atTheEnd = frmSSPhoto->Pointer(); });
        {
            const EachRound round([&] {
                if (frmSSPhoto->ProgressGuage.FloodPercent() == 57)
                    meanwhile = frmSSPhoto->Pointer();
            });
            program_->Click(frmSSPhoto->SSCommand7);
        }
        QCOMPARE(Listed(u"67A.JPG"_s), MixedBytes(3'500));
        AssertTold(u"Photo Successfully Copied!"_s, msgbox::exclamation);
        QVERIFY(!frmSSPhoto->SSCommand7.Enabled());
        QVERIFY(frmSSPhoto->SSCommand8.Enabled());
        QCOMPARE(frmSSPhoto->ProgressGuage.FloodPercent(), 86);
        QCOMPARE(meanwhile, MousePointer::Hourglass);
        QCOMPARE(atTheEnd, MousePointer::Default);
        QCOMPARE(state.CopySource, u"G:\\Torviks\\67A.JPG"_s);
        QCOMPARE(state.CopyTarget, ProgramFolder() + u"\\ssTorviks\\67A.JPG"_s);
    }

    void the_buttons_follow_each_step_to_a_listed_photo_and_away_from_it()
    {
        program_->Click(frmSSPhoto->SSCommand7);
        program_->Press(Form1->cmdYR(2), Qt::Key_Period);
        QVERIFY(frmSSPhoto->SSCommand7.Enabled());
        QVERIFY(!frmSSPhoto->SSCommand8.Enabled());
        program_->Press(Form1->cmdYR(2), Qt::Key_Comma);
        QVERIFY(!frmSSPhoto->SSCommand7.Enabled());
        QVERIFY(frmSSPhoto->SSCommand8.Enabled());
    }

    void a_step_in_mid_add_leaves_the_paths_of_the_add()
    {
        program_->disc.AddFile(u"Torviks/67A.JPG"_s, MixedBytes(3'500));
        bool stepped = false;
        {
            const EachRound round([&] {
                if (!std::exchange(stepped, true))
                    QTest::keyClick(&Form1->cmdYR(2).Widget(), Qt::Key_Period);
            });
            program_->Click(frmSSPhoto->SSCommand7);
        }
        QCOMPARE(state.CurrentPhotoFile, u"G:\\Torviks\\67B.JPG"_s);
        QCOMPARE(Listed(u"67A.JPG"_s), MixedBytes(3'500));
        QVERIFY(!QFileInfo::exists(program_->InProgramFolder(u"ssTorviks/67B.JPG"_s)));
    }

    void a_missing_source_is_told_and_success_comes_all_the_same()
    {
        program_->disc.Remove(u"Torviks/67A.JPG"_s);
        program_->Click(frmSSPhoto->SSCommand7);
        QCOMPARE(program_->messages.Count(), 2);
        QCOMPARE(program_->messages.Shown().first().text, u"File not found"_s);
        QCOMPARE(program_->messages.Shown().first().style, msgbox::ok);
        QCOMPARE(program_->messages.Last().text, u"Photo Successfully Copied!"_s);
        QVERIFY(!frmSSPhoto->SSCommand7.Enabled());
        QVERIFY(frmSSPhoto->SSCommand8.Enabled());
    }

    void remove_takes_the_photo_off_the_list()
    {
        program_->AddToProgramFolder(u"ssTorviks/67b.jpg"_s, "x");
        program_->AddToProgramFolder(u"ssTorviks/68A.JPG"_s, "x");
        program_->Press(Form1->cmdYR(2), Qt::Key_Period);
        frmSSPhoto->ProgressGuage.SetFloodPercent(40);
        MousePointer atTheEnd = MousePointer::Hourglass;
        program_->messages.WhenAsked([&] { atTheEnd = frmSSPhoto->Pointer(); });
        program_->Click(frmSSPhoto->SSCommand8);
        AssertTold(u"Photo Successfully Removed!"_s, msgbox::exclamation);
        QCOMPARE(ListNames(), QStringList{u"68A.JPG"_s});
        QVERIFY(frmSSPhoto->SSCommand7.Enabled());
        QVERIFY(!frmSSPhoto->SSCommand8.Enabled());
        QCOMPARE(frmSSPhoto->ProgressGuage.FloodPercent(), 0);
        QCOMPARE(atTheEnd, MousePointer::Default);
    }

    void a_listed_file_that_has_gone_meanwhile_is_a_failure_that_nothing_meets()
    {
        program_->Click(frmSSPhoto->SSCommand7);
        QVERIFY(QFile::remove(program_->InProgramFolder(u"ssTorviks/67A.JPG"_s)));
        program_->messages.Clear();
        program_->Click(frmSSPhoto->SSCommand8);
        QVERIFY(program_->messages.Last().text.contains(u"Run-time error '53'"_s));
        QVERIFY(ProgramIsEnding());
    }

    void remove_all_empties_the_list_and_keeps_the_folder()
    {
        for (const char* name : {"ssTorviks/67A.JPG", "ssTorviks/68b.jpg", "ssTorviks/mine.txt"})
            program_->AddToProgramFolder(QString::fromLatin1(name), "x");
        frmSSPhoto->ProgressGuage.SetFloodPercent(40);
        program_->messages.Answer(msgbox::answerYes);
        program_->Click(frmSSPhoto->SSCommand2);
        QCOMPARE(ListNames(), QStringList{u"mine.txt"_s});
        QCOMPARE(int(state.MessageResult), msgbox::answerYes);
        AssertRemovedAll();
        QVERIFY(frmSSPhoto->SSCommand7.Enabled());
        QVERIFY(!frmSSPhoto->SSCommand8.Enabled());
        QVERIFY(!frmSSPhoto->SSCommand2.Enabled());
        QCOMPARE(frmSSPhoto->ProgressGuage.FloodPercent(), 0);
        QCOMPARE(frmSSPhoto->Pointer(), MousePointer::Default);
    }

    void after_remove_all_the_savers_panel_offers_no_selected_photos()
    {
        program_->AddToProgramFolder(u"ssTorviks/67A.JPG"_s, "x");
        Form1->mnuSaver.Click.Fire();
        QVERIFY(Form1->Option1(1).Enabled());
        program_->messages.Answer(msgbox::answerYes);
        program_->Click(frmSSPhoto->SSCommand2);
        Form1->mnuSaver.Click.Fire();
        QVERIFY(!Form1->Option1(1).Enabled());
    }

    void a_photo_that_cannot_be_removed_stays_after_remove_all_and_is_a_failure_by_itself()
    {
        program_->Click(frmSSPhoto->SSCommand7);
        const QString list = program_->InProgramFolder(u"ssTorviks"_s);
        QVERIFY(QFile::remove(list + u"/67A.JPG"_s));
        QVERIFY(QDir(list).mkpath(u"67A.JPG/in use"_s)); // what no rights of anybody can remove as a file
        program_->messages.Clear();
        program_->messages.Answer(msgbox::answerYes);
        program_->Click(frmSSPhoto->SSCommand2);
        AssertRemovedAll();
        QVERIFY(QFileInfo::exists(list + u"/67A.JPG/in use"_s));
        QVERIFY(!ProgramIsEnding());
        frmSSPhoto->SSCommand8.SetEnabled(true);
        program_->messages.Clear();
        program_->Click(frmSSPhoto->SSCommand8);
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY2(program_->messages.Last().text.startsWith(u"Run-time error '"_s),
                 qPrintable(program_->messages.Last().text));
        QVERIFY(ProgramIsEnding());
    }

    void remove_all_of_an_empty_list_and_of_none_reports_success()
    {
        program_->messages.Answer(msgbox::answerYes);
        program_->Click(frmSSPhoto->SSCommand2);
        AssertRemovedAll();
        QVERIFY(QDir().rmdir(program_->InProgramFolder(u"ssTorviks"_s)));
        program_->Click(frmSSPhoto->SSCommand9);
        frmSSPhoto->Show();
        program_->messages.Clear();
        program_->messages.Answer(msgbox::answerYes);
        program_->Click(frmSSPhoto->SSCommand2);
        AssertRemovedAll();
    }

    void no_keeps_the_whole_list()
    {
        program_->AddToProgramFolder(u"ssTorviks/67A.JPG"_s, "x");
        program_->messages.Answer(msgbox::answerNo);
        program_->Click(frmSSPhoto->SSCommand2);
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(ListNames(), QStringList{u"67A.JPG"_s});
        QVERIFY(frmSSPhoto->SSCommand2.Enabled());
    }

    void remove_all_stays_off_until_the_form_is_loaded_again()
    {
        program_->messages.Answer(msgbox::answerYes);
        program_->Click(frmSSPhoto->SSCommand2);
        program_->Click(frmSSPhoto->SSCommand7);
        program_->Press(Form1->cmdYR(2), Qt::Key_Period);
        QVERIFY(!frmSSPhoto->SSCommand2.Enabled());
        program_->Click(frmSSPhoto->SSCommand9);
        program_->Click(Form1->Image4, Qt::RightButton);
        QVERIFY(frmSSPhoto->SSCommand2.Enabled());
    }

    void the_picture_goes_to_the_clipboard_at_its_own_size_without_a_word()
    {
        Clipboard.SetText(u"before"_s);
        program_->Click(frmSSPhoto->SSCommand3);
        QCOMPARE(program_->messages.Count(), 0);
        QCOMPARE(QGuiApplication::clipboard()->image().size(), QSize(64, 48));
        QCOMPARE(QGuiApplication::clipboard()->text(), QString());
    }

    void the_opening_picture_is_added_and_removed_like_a_photo()
    {
        const QByteArray picture = TestDisc::Jpeg(Qt::blue, {32, 32});
        program_->AddToProgramFolder(u"graphics/ClassicTorviks.jpg"_s, picture);
        Form1->panYear.SetCaption(nothingChosen);
        program_->Click(frmSSPhoto->SSCommand7);
        QCOMPARE(Listed(u"ClassicTorviks.jpg"_s), picture);
        QCOMPARE(state.CopySource, ProgramFolder() + u"\\graphics\\ClassicTorviks.jpg"_s);
        QVERIFY(frmSSPhoto->SSCommand8.Enabled());
        program_->Click(frmSSPhoto->SSCommand8);
        QCOMPARE(ListNames(), QStringList());
    }

    void help_says_what_the_form_is_for()
    {
        program_->Click(frmSSPhoto->SSCommand1);
        AssertTold(u"Use this form to add or remove Torvik photos from the\r\n"
                   "Torvik Vollandry Screen Saver play list. Pick and choose\r\n"
                   "whatever photos that you would like to include.\r\n\r\n"
                   "Select the Install Screen Saver option under the File menu\r\n"
                   "to configure the Screen Saver to recognize selected photos.\r\n\r\n"
                   "If you remove all photos, remember to re-install the \r\n"
                   "Screen Saver and choose the Select All Photos option."_s,
                   msgbox::ok);
        QCOMPARE(state.MessageText, program_->messages.Last().text);
    }

    void exit_and_the_close_box_end_the_form_and_enable_the_main_window()
    {
        Form1->SetEnabled(false);
        program_->Click(frmSSPhoto->SSCommand9);
        QVERIFY(!frmSSPhoto.IsLoaded());
        QVERIFY(Form1->Enabled());
        program_->Click(Form1->Image4, Qt::RightButton);
        Form1->SetEnabled(false);
        frmSSPhoto->Window().close();
        program_->Settle();
        QVERIFY(!frmSSPhoto.IsLoaded());
        QVERIFY(Form1->Enabled());
    }

    void the_form_may_be_closed_in_mid_add()
    {
        program_->disc.AddFile(u"Torviks/67A.JPG"_s, MixedBytes(5'000));
        bool closed = false;
        {
            const EachRound round([&] {
                if (!std::exchange(closed, true))
                    frmSSPhoto->Window().close();
            });
            program_->Click(frmSSPhoto->SSCommand7);
        }
        QCOMPARE(Listed(u"67A.JPG"_s), MixedBytes(5'000));
        QVERIFY(!frmSSPhoto->Visible());
    }

    void the_program_may_be_closed_in_mid_add_and_keeps_no_half_photo()
    {
        program_->disc.AddFile(u"Torviks/67A.JPG"_s, MixedBytes(5'000));
        const qsizetype before = OpenFileCount();
        {
            const EachRound round([] {
                if (frmSSPhoto->ProgressGuage.FloodPercent() == 40)
                    Form1->mnuExit.Click.Fire();
            });
            program_->Click(frmSSPhoto->SSCommand7);
        }
        QVERIFY(ProgramIsEnding());
        QCOMPARE(program_->messages.Count(), 0);
        QCOMPARE(OpenFileCount(), before);
        QCOMPARE(ListNames(), QStringList());
    }

    void add_pressed_again_in_mid_add_leaves_the_whole_photo()
    {
        program_->disc.AddFile(u"Torviks/67A.JPG"_s, MixedBytes(5'500));
        bool again = false;
        {
            const EachRound round([&] {
                if (!std::exchange(again, true))
                    QTest::mouseClick(&frmSSPhoto->SSCommand7.Widget(), Qt::LeftButton);
            });
            program_->Click(frmSSPhoto->SSCommand7);
        }
        QCOMPARE(Listed(u"67A.JPG"_s), MixedBytes(5'500));
        QVERIFY(!frmSSPhoto->SSCommand7.Enabled());
        QVERIFY(frmSSPhoto->SSCommand8.Enabled());
    }

private:
    QByteArray Listed(const QString& name) const
    {
        return BytesOf(program_->InProgramFolder(u"ssTorviks/"_s + name));
    }
    QStringList ListNames() const
    {
        return QDir(program_->InProgramFolder(u"ssTorviks"_s)).entryList(QDir::Files, QDir::Name);
    }

    void AssertTold(const QString& text, int style)
    {
        QCOMPARE(program_->messages.Count(), 1);
        AssertLast(text, style);
    }

    void AssertLast(const QString& text, int style)
    {
        const MessageRequest box = program_->messages.Last();
        QCOMPARE(box.text, text);
        QCOMPARE(box.style, style);
        QCOMPARE(box.title, applicationTitle);
    }

    void AssertRemovedAll()
    {
        QCOMPARE(program_->messages.Count(), 2);
        const MessageRequest question = program_->messages.Shown().first();
        QCOMPARE(question.text, u"Would you like to remove all photos from the Torvik "
                                "Vollandry Screen Saver list?"_s);
        QCOMPARE(question.style, msgbox::question + msgbox::yesNo);
        AssertLast(u"All Photos Successfully Removed!\r\n\r\n"
                   "You must re-install The Torvik Vollandry Screen Saver \r\n"
                   "if you have previously installed it to play Selected Photos."_s,
                   msgbox::ok);
        QCOMPARE(state.MessageText, program_->messages.Last().text);
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(PlayListTest)
#include "play_list_test.moc"
