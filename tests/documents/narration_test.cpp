#include "program/program_state.h"
#include "runtime/failure.h"
#include "support/program.h"
#include "support/test_class.h"
#include "windows/article_window.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// The wave buttons of the document viewer. Nothing in the program enables them; a test does.
class NarrationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 2);
        program_->disc.AddGroup(u"69"_s, 2);
        program_->disc.AddFile(u"wav/1969.wav"_s, "RIFF");
        program_->disc.AddFile(u"wav/intro.wav"_s, "RIFF");
        program_->disc.AddFile(u"wav/Torvik Metal Signs .wav"_s, "RIFF");
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
        QTest::newRow("nothing chosen") << u"panYear"_s << u"G:\\wav\\intro.wav"_s;
        QTest::newRow("a year") << u"1969"_s << u"G:\\wav\\1969.wav"_s;
        QTest::newRow("a topic") << u"Torvik Metal Signs "_s << u"G:\\wav\\Torvik Metal Signs .wav"_s;
    }
    void the_narration_follows_the_title_on_show()
    {
        QFETCH(QString, title);
        QFETCH(QString, file);
        Form1->panYear.SetCaption(title);
        program_->Click(txtForm->SSCommand2);
        QCOMPARE(state.SoundFile, file);
        QCOMPARE(int(state.LoopIndex), int(file.size()));
        QCOMPARE(state.ErrorCode, u"ER032"_s);
        QCOMPARE(Form1->MMControl1.FileName(), file);
        QVERIFY(Form1->MMControl1.IsOpen());
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    void a_missing_narration_is_reported_and_the_device_left_as_it_was()
    {
        Form1->panYear.SetCaption(u"1969"_s);
        program_->Click(txtForm->SSCommand2);
        Form1->panYear.SetCaption(u"1967"_s);
        program_->Click(txtForm->SSCommand2);
        CheckReport(u"v\\1967.wav"_s);
        QCOMPARE(Form1->MMControl1.FileName(), u"G:\\wav\\1969.wav"_s);
        QVERIFY(Form1->MMControl1.IsOpen());
    }

    void a_pending_failure_is_reported_although_the_file_is_there()
    {
        Form1->panYear.SetCaption(u"1969"_s);
        const PendingError pending(failure::overflow);
        program_->Click(txtForm->SSCommand2);
        CheckReport(u"v\\1969.wav"_s);
        QVERIFY(!Form1->MMControl1.IsOpen());
    }

    void a_failure_while_the_disc_is_asked_is_reported_in_the_same_way()
    {
        Form1->panYear.SetCaption(u"1969"_s);
        program_->PutDiscIn(QChar());
        program_->Click(txtForm->SSCommand2);
        CheckReport(u"v\\1969.wav"_s);
        QVERIFY(!Form1->MMControl1.IsOpen());
    }

    void stop_closes_the_device()
    {
        Form1->panYear.SetCaption(u"1969"_s);
        program_->Click(txtForm->SSCommand2);
        QVERIFY(Form1->MMControl1.IsOpen());
        program_->Click(txtForm->SSCommand3);
        QVERIFY(!Form1->MMControl1.IsOpen());
    }

    void stop_without_a_sound_does_nothing()
    {
        program_->Click(txtForm->SSCommand3);
        QVERIFY(!Form1->MMControl1.IsOpen());
        QVERIFY(program_->messages.Shown().isEmpty());
    }

private:
    void CheckReport(const QString& file)
    {
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(program_->messages.Last().text,
                 u"Error number: ER032\r\n\r\n Unable to load sound file: "_s + file +
                     u"\r\n\r\nMake sure that the Torvik Vollandry is in the CDROM drive."_s);
        QCOMPARE(program_->messages.Last().style, 16);
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(NarrationTest)
#include "narration_test.moc"
