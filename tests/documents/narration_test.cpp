#include "program/program_state.h"
#include "runtime/failure.h"
#include "support/program.h"
#include "windows/article_window.h"
#include "windows/main_window.h"

#include <QTest>

using namespace torvik;

/// The wave buttons of the document viewer. Nothing in the program enables them; a test does.
class NarrationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->Disc.AddGroup(QStringLiteral("67"), 2);
        program_->Disc.AddGroup(QStringLiteral("69"), 2);
        program_->Disc.AddFile(QStringLiteral("wav/1969.wav"), "RIFF");
        program_->Disc.AddFile(QStringLiteral("wav/intro.wav"), "RIFF");
        program_->Disc.AddFile(QStringLiteral("wav/Torvik Metal Signs .wav"), "RIFF");
        program_->StartBrowsing();
        txtForm->Show();
        for (Button* button : {&txtForm->SSCommand2, &txtForm->SSCommand3}) {
            button->SetEnabled(true);
            button->Show();
        }
        program_->Settle();
    }
    void cleanup() { program_.reset(); }

    void the_narration_follows_the_title_on_show_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("file");
        QTest::newRow("nothing chosen") << QStringLiteral("panYear") << QStringLiteral("G:\\wav\\intro.wav");
        QTest::newRow("a year") << QStringLiteral("1969") << QStringLiteral("G:\\wav\\1969.wav");
        QTest::newRow("a topic") << QStringLiteral("Torvik Metal Signs ")
                                 << QStringLiteral("G:\\wav\\Torvik Metal Signs .wav");
    }
    void the_narration_follows_the_title_on_show()
    {
        QFETCH(QString, title);
        QFETCH(QString, file);
        Form1->panYear.SetCaption(title);
        program_->Click(txtForm->SSCommand2);
        QCOMPARE(state.SoundFile, file);
        QCOMPARE(int(state.LoopIndex), int(file.size()));
        QCOMPARE(state.ErrorCode, QStringLiteral("ER032"));
        QCOMPARE(Form1->MMControl1.FileName(), file);
        QVERIFY(Form1->MMControl1.IsOpen());
        QVERIFY(program_->Messages.Shown().isEmpty());
    }

    void a_missing_narration_is_reported_and_the_device_left_as_it_was()
    {
        Form1->panYear.SetCaption(QStringLiteral("1969"));
        program_->Click(txtForm->SSCommand2);
        Form1->panYear.SetCaption(QStringLiteral("1967"));
        program_->Click(txtForm->SSCommand2);
        CheckReport(QStringLiteral("v\\1967.wav"));
        QCOMPARE(Form1->MMControl1.FileName(), QStringLiteral("G:\\wav\\1969.wav"));
        QVERIFY(Form1->MMControl1.IsOpen());
    }

    void a_pending_failure_is_reported_although_the_file_is_there()
    {
        Form1->panYear.SetCaption(QStringLiteral("1969"));
        const PendingError pending(failure::overflow);
        program_->Click(txtForm->SSCommand2);
        CheckReport(QStringLiteral("v\\1969.wav"));
        QVERIFY(!Form1->MMControl1.IsOpen());
    }

    void a_failure_while_the_disc_is_asked_is_reported_in_the_same_way()
    {
        Form1->panYear.SetCaption(QStringLiteral("1969"));
        program_->PutDiscIn(QChar());
        program_->Click(txtForm->SSCommand2);
        CheckReport(QStringLiteral("v\\1969.wav"));
        QVERIFY(!Form1->MMControl1.IsOpen());
    }

    void stop_closes_the_device()
    {
        Form1->panYear.SetCaption(QStringLiteral("1969"));
        program_->Click(txtForm->SSCommand2);
        QVERIFY(Form1->MMControl1.IsOpen());
        program_->Click(txtForm->SSCommand3);
        QVERIFY(!Form1->MMControl1.IsOpen());
    }

    void stop_without_a_sound_does_nothing()
    {
        program_->Click(txtForm->SSCommand3);
        QVERIFY(!Form1->MMControl1.IsOpen());
        QVERIFY(program_->Messages.Shown().isEmpty());
    }

private:
    void CheckReport(const QString& file)
    {
        QCOMPARE(program_->Messages.Count(), 1);
        QCOMPARE(program_->Messages.Last().Text,
                 QStringLiteral("Error number: ER032\r\n\r\n Unable to load sound file: ") + file +
                     QStringLiteral("\r\n\r\nMake sure that the Torvik Vollandry is in the CDROM drive."));
        QCOMPARE(program_->Messages.Last().Style, 16);
    }

    std::unique_ptr<Program> program_;
};

QTEST_MAIN(NarrationTest)
#include "narration_test.moc"
