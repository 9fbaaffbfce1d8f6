#include "browser/next_and_previous_photo.h"
#include "browser/photo_caption.h"
#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "runtime/failure.h"
#include "support/program.h"
#include "support/test_class.h"
#include "windows/main_window.h"
#include "windows/play_list_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {
const QString stale = u"Stale words"_s;
} // namespace

/// The caption document of the photo on show.
class PhotoCaptionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 3);
        program_->disc.AddGroup(u"68"_s, 2);
        for (const char* letter : {"A", "B", "C"})
            program_->disc.AddDocument(u"67%1.rtf"_s.arg(QLatin1String(letter)),
                                       u"Caption of photo %1"_s.arg(QLatin1String(letter)));
        for (const char* letter : {"A", "B"})
            program_->disc.AddDocument(u"68%1.rtf"_s.arg(QLatin1String(letter)),
                                       u"Caption of 1968 %1"_s.arg(QLatin1String(letter)));
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void the_document_is_named_after_the_photo_in_lower_case()
    {
        state.PhotoIndex = 2;
        LoadPhotoDetails();
        QCOMPARE(state.DocumentFile, u"g:\\richtext\\67b.rtf"_s);
        QCOMPARE(Form1->rtbDetails.Text().trimmed(), u"Caption of photo B"_s);
        QCOMPARE(int(state.PhotoIndex), 2);
    }

    void the_backward_way_looks_one_photo_on_and_keeps_the_letter_case()
    {
        state.PhotoIndex = 2;
        state.SteppedForward = true;
        LoadPhotoDetailsBackward();
        QCOMPARE(state.DocumentFile, u"G:\\RichText\\67C.rtf"_s);
        QCOMPARE(Form1->rtbDetails.Text().trimmed(), u"Caption of photo C"_s);
        QCOMPARE(int(state.PhotoIndex), 2);
        QVERIFY(!state.SteppedForward);
    }

    void the_pane_stands_on_the_photo()
    {
        Form1->rtbDetails.Move(1, 1);
        state.PhotoIndex = 1;
        LoadPhotoDetails();
        QCOMPARE(Form1->rtbDetails.Left(), 616.0 + 97.0 - 329.0 - 10.0);
        QCOMPARE(Form1->rtbDetails.Top(), 33.0);
    }

    void each_step_replaces_the_text_while_the_pane_is_open()
    {
        Form1->rtbDetails.Show();
        StepPhotoForward();
        QCOMPARE(Form1->rtbDetails.Text().trimmed(), u"Caption of photo B"_s);
        StepPhotoForward();
        QCOMPARE(Form1->rtbDetails.Text().trimmed(), u"Caption of photo C"_s);
        StepPhotoBackward();
        QCOMPARE(Form1->rtbDetails.Text().trimmed(), u"Caption of photo B"_s);
        QVERIFY(Form1->rtbDetails.Visible());
    }

    void a_step_leaves_a_closed_pane_alone()
    {
        StepPhotoForward();
        QCOMPARE(Form1->rtbDetails.Text(), QString());
        QVERIFY(!Form1->rtbDetails.Visible());
    }

    void a_missing_caption_is_reported_by_the_step_data()
    {
        QTest::addColumn<bool>("forward");
        QTest::addColumn<QString>("code");
        QTest::newRow("forward") << true << u"ER012"_s;
        QTest::newRow("backward") << false << u"ER011"_s;
    }

    void a_missing_caption_is_reported_by_the_step()
    {
        QFETCH(bool, forward);
        QFETCH(QString, code);
        program_->disc.Remove(u"RichText/67B.rtf"_s);
        program_->disc.Remove(u"RichText/67C.rtf"_s);
        Form1->rtbDetails.Show();
        if (forward)
            StepPhotoForward();
        else
            StepPhotoBackward();
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY(program_->messages.Last().text.startsWith(u"Error number: "_s + code));
    }

    void steps_go_on_as_ever_over_captions_that_are_missing()
    {
        for (const char* name : {"67A", "67B", "67C"})
            program_->disc.Remove(u"RichText/%1.rtf"_s.arg(QLatin1String(name)));
        Form1->rtbDetails.Show();
        QStringList shown;
        for (void (*step)() : {StepPhotoBackward, StepPhotoBackward, StepPhotoForward, StepPhotoForward,
                               StepPhotoBackward, StepPhotoForward}) {
            step();
            shown.append(Form1->Image4.Picture().FileName().left(3));
            QCOMPARE(int(state.ShownPhotoIndex), Form1->panPhoto.Caption().toInt());
        }
        QCOMPARE(shown.join(u' '), u"67C 67B 67C 67A 67C 67A"_s);
        QCOMPARE(program_->messages.Count(), 6);
    }

    void after_a_missing_caption_only_the_step_backward_sees_to_the_play_list_data()
    {
        QTest::addColumn<bool>("forward");
        QTest::newRow("forward") << true;
        QTest::newRow("backward") << false;
    }

    void after_a_missing_caption_only_the_step_backward_sees_to_the_play_list()
    {
        QFETCH(bool, forward);
        program_->AddToProgramFolder(u"ssTorviks/67B.JPG"_s, "x");
        program_->AddToProgramFolder(u"ssTorviks/67C.JPG"_s, "x");
        program_->disc.Remove(u"RichText/67B.rtf"_s);
        program_->disc.Remove(u"RichText/67C.rtf"_s);
        Form1->rtbDetails.Show();
        QVERIFY(frmSSPhoto->SSCommand7.Enabled());
        Form1->cmdYR(20).SetFocus();
        if (forward)
            StepPhotoForward();
        else
            StepPhotoBackward();
        QCOMPARE(frmSSPhoto->SSCommand8.Enabled(), !forward);
        QCOMPARE(frmSSPhoto->SSCommand7.Enabled(), forward);
        QCOMPARE(Program::Focus(), u"cmdYR(2)"_s);
    }

    void after_a_missing_photo_forward_leaves_caption_and_play_list_and_backward_sees_to_both_data()
    {
        QTest::addColumn<bool>("forward");
        QTest::addColumn<QString>("onShow");
        QTest::addColumn<QString>("missing");
        QTest::addColumn<QString>("caption");
        QTest::newRow("forward") << true << u"67A"_s << u"67B"_s << stale;
        QTest::newRow("backward") << false << u"67C"_s << u"67B"_s << u"Caption of photo C"_s;
    }

    void after_a_missing_photo_forward_leaves_caption_and_play_list_and_backward_sees_to_both()
    {
        QFETCH(bool, forward);
        QFETCH(QString, onShow);
        QFETCH(QString, missing);
        QFETCH(QString, caption);
        OpenStalePaneAt(onShow);
        program_->AddToProgramFolder(u"ssTorviks/%1.JPG"_s.arg(onShow), "x");
        program_->disc.Remove(u"Torviks/%1.JPG"_s.arg(missing));
        QVERIFY(frmSSPhoto->SSCommand7.Enabled());
        if (forward)
            StepPhotoForward();
        else
            StepPhotoBackward();
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(Form1->Image4.Picture().FileName(), onShow + u".JPG"_s);
        QCOMPARE(frmSSPhoto->SSCommand7.Enabled(), forward);
        QCOMPARE(frmSSPhoto->SSCommand8.Enabled(), !forward);
        CheckPane(caption);
    }

    void a_step_backward_onto_a_photo_that_fails_tells_no_second_failure_data()
    {
        QTest::addColumn<QString>("onShow");
        QTest::addColumn<QStringList>("missing");
        QTest::addColumn<QString>("caption");
        QTest::newRow("another year after it")
            << u"67A"_s << QStringList{u"Torviks/67C.JPG"_s} << u"Caption of 1968 A"_s;
        QTest::newRow("another year after it, without its first caption")
            << u"67A"_s << QStringList{u"Torviks/67C.JPG"_s, u"RichText/68A.rtf"_s} << stale;
        QTest::newRow("the last of the list") << u"68A"_s << QStringList{u"Torviks/68B.JPG"_s} << stale;
    }

    void a_step_backward_onto_a_photo_that_fails_tells_no_second_failure()
    {
        QFETCH(QString, onShow);
        QFETCH(QStringList, missing);
        QFETCH(QString, caption);
        OpenStalePaneAt(onShow);
        program_->AddToProgramFolder(u"ssTorviks/%1.JPG"_s.arg(onShow), "x");
        for (const QString& file : missing)
            program_->disc.Remove(file);
        StepPhotoBackward();
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY(program_->messages.Last().text.startsWith(u"Error number: ER011"_s));
        QCOMPARE(Form1->Image4.Picture().FileName(), onShow + u".JPG"_s);
        QVERIFY(frmSSPhoto->SSCommand8.Enabled());
        CheckPane(caption);
        const int failed = state.PhotoIndex + 1;
        QCOMPARE(int(state.ShownPhotoIndex), failed + 1);
        QCOMPARE(state.PhotoFiles(failed).mid(3), QString(missing.first()).replace(u'/', u'\\'));
        StepPhotoBackward();
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(int(state.ShownPhotoIndex), failed - 1);
    }

    void a_damaged_photo_at_the_end_of_the_list_is_told_once_as_well()
    {
        OpenStalePaneAt(u"68A"_s);
        program_->disc.AddFile(u"Torviks/68B.JPG"_s, "damaged");
        StepPhotoBackward();
        QCOMPARE(program_->messages.Count(), 1);
        CheckPane(stale);
    }

    void a_step_backward_whose_caption_is_missing_leaves_the_place_of_the_pane()
    {
        program_->disc.Remove(u"RichText/67C.rtf"_s);
        Form1->rtbDetails.Show();
        Form1->rtbDetails.Move(7, 9);
        StepPhotoBackward();
        QCOMPARE(Form1->rtbDetails.Left(), 7.0);
        QVERIFY(!state.SteppedForward);
        QVERIFY(state.SteppedBackward);
    }

    void photos_beside_the_program_have_their_captions_there_too()
    {
        program_->AddToProgramFolder(u"RichText/67a.rtf"_s, "{\\rtf1 Local caption}");
        state.PhotoFiles(1) = ProgramFolder() + u"\\Torviks\\67A.JPG"_s;
        state.TorviksPathPos = static_cast<int>(ProgramFolder().size()) + 1;
        state.PhotoIndex = 1;
        LoadPhotoDetails();
        QCOMPARE(Form1->rtbDetails.Text().trimmed(), u"Local caption"_s);
    }

    void a_point_in_the_folder_name_is_taken_for_the_extension()
    {
        state.PhotoFiles(1) = u"C:\\v1.0\\Torviks\\67A.JPG"_s;
        state.TorviksPathPos = 8;
        state.PhotoIndex = 1;
        QCOMPARE(ResumeNext(LoadPhotoDetails), 5);
    }

private:
    /// A photo on show and the pane open in another place, with words that belong to no photo.
    void OpenStalePaneAt(const QString& photo)
    {
        if (photo.startsWith(u"68"_s))
            program_->Click(Form1->cmdYR(2));
        for (int step = 0; step < 3 && Form1->Image4.Picture().FileName() != photo + u".JPG"_s; ++step)
            StepPhotoBackward();
        QCOMPARE(Form1->Image4.Picture().FileName(), photo + u".JPG"_s);
        program_->disc.AddDocument(u"stale.rtf"_s, stale);
        Form1->rtbDetails.SetFileName(u"G:\\RichText\\stale.rtf"_s);
        Form1->rtbDetails.Show();
        Form1->rtbDetails.Move(7, 9);
        QCOMPARE(program_->messages.Count(), 0);
    }

    /// The words in the pane. It has gone to its own place with a caption, not with the stale words.
    static void CheckPane(const QString& words)
    {
        QCOMPARE(Form1->rtbDetails.Text().trimmed(), words);
        QCOMPARE(Form1->rtbDetails.Left(), words == stale ? 7.0 : 616.0 + 97.0 - 329.0 - 10.0);
        QCOMPARE(Form1->rtbDetails.Top(), words == stale ? 9.0 : 33.0);
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(PhotoCaptionTest)
#include "photo_caption_test.moc"
