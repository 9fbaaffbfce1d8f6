#include "browser/next_and_previous_photo.h"
#include "browser/photo_caption.h"
#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "runtime/failure.h"
#include "support/program.h"
#include "windows/main_window.h"

#include <QTest>

using namespace torvik;

/// The caption document of the photo on show.
class PhotoCaptionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->Disc.AddGroup(QStringLiteral("67"), 3);
        for (const char* letter : {"A", "B", "C"})
            program_->Disc.AddDocument(QStringLiteral("67%1.rtf").arg(QLatin1String(letter)),
                                       QStringLiteral("Caption of photo %1").arg(QLatin1String(letter)));
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void the_document_is_named_after_the_photo_in_lower_case()
    {
        state.PhotoIndex = 2;
        LoadPhotoDetails();
        QCOMPARE(state.DocumentFile, QStringLiteral("g:\\richtext\\67b.rtf"));
        QCOMPARE(Form1->rtbDetails.Text().trimmed(), QStringLiteral("Caption of photo B"));
        QCOMPARE(int(state.PhotoIndex), 2);
    }

    void the_backward_way_looks_one_photo_on_and_keeps_the_letter_case()
    {
        state.PhotoIndex = 2;
        state.SteppedForward = true;
        LoadPhotoDetailsBackward();
        QCOMPARE(state.DocumentFile, QStringLiteral("G:\\RichText\\67C.rtf"));
        QCOMPARE(Form1->rtbDetails.Text().trimmed(), QStringLiteral("Caption of photo C"));
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
        QCOMPARE(Form1->rtbDetails.Text().trimmed(), QStringLiteral("Caption of photo B"));
        StepPhotoForward();
        QCOMPARE(Form1->rtbDetails.Text().trimmed(), QStringLiteral("Caption of photo C"));
        StepPhotoBackward();
        QCOMPARE(Form1->rtbDetails.Text().trimmed(), QStringLiteral("Caption of photo B"));
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
        QTest::newRow("forward") << true << QStringLiteral("ER012");
        QTest::newRow("backward") << false << QStringLiteral("ER011");
    }

    void a_missing_caption_is_reported_by_the_step()
    {
        QFETCH(bool, forward);
        QFETCH(QString, code);
        program_->Disc.Remove(QStringLiteral("RichText/67B.rtf"));
        program_->Disc.Remove(QStringLiteral("RichText/67C.rtf"));
        Form1->rtbDetails.Show();
        if (forward)
            StepPhotoForward();
        else
            StepPhotoBackward();
        QCOMPARE(program_->Messages.Count(), 1);
        QVERIFY(program_->Messages.Last().Text.startsWith(QStringLiteral("Error number: ") + code));
    }

    void photos_beside_the_program_have_their_captions_there_too()
    {
        program_->AddToProgramFolder(QStringLiteral("RichText/67a.rtf"), "{\\rtf1 Local caption}");
        state.PhotoFiles(1) = ProgramFolder() + QStringLiteral("\\Torviks\\67A.JPG");
        state.TorviksPathPos = static_cast<int>(ProgramFolder().size()) + 1;
        state.PhotoIndex = 1;
        LoadPhotoDetails();
        QCOMPARE(Form1->rtbDetails.Text().trimmed(), QStringLiteral("Local caption"));
    }

    void a_point_in_the_folder_name_is_taken_for_the_extension()
    {
        state.PhotoFiles(1) = QStringLiteral("C:\\v1.0\\Torviks\\67A.JPG");
        state.TorviksPathPos = 8;
        state.PhotoIndex = 1;
        QCOMPARE(ResumeNext(LoadPhotoDetails), 5);
    }

private:
    std::unique_ptr<Program> program_;
};

QTEST_MAIN(PhotoCaptionTest)
#include "photo_caption_test.moc"
