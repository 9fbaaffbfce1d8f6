#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "support/discs/test_movie.h"
#include "support/other_instance.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/clock.h"
#include "ui/forms/form_window.h"
#include "ui/forms/program_end.h"
#include "windows/main_window.h"
#include "windows/splash.h"

#include <QLoggingCategory>

#include <utility>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// Lets the photo be lower than it is drawn.
bool photoIsLow = false;

void LowerPhoto(Form1Controls& form)
{
    if (photoIsLow)
        form.Image4.SetHeight(400);
}

/// A drive that is empty at first and loses its disc once, in the moment after the search has found it there:
/// the search notes in its log what it finds.
class DiscLostWhenFound {
public:
    explicit DiscLostWhenFound(Program& program)
    {
        program_ = &program;
        program.PutDiscIn({});
        QLoggingCategory::setFilterRules(u"torvik.disc.debug=true"_s);
        qInstallMessageHandler(Note);
    }
    ~DiscLostWhenFound()
    {
        qInstallMessageHandler(nullptr);
        QLoggingCategory::setFilterRules({});
    }
    DiscLostWhenFound(const DiscLostWhenFound&) = delete;
    DiscLostWhenFound& operator=(const DiscLostWhenFound&) = delete;

private:
    static void Note(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text)
    {
        if (text.contains(u" has photos"_s) && program_ != nullptr)
            std::exchange(program_, nullptr)->PutDiscIn({});
    }

    static inline Program* program_ = nullptr;
};

} // namespace

/// From the splash to the main window.
class StartUpTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Form1.Bind(LowerPhoto); }
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 3);
    }
    void cleanup() { program_.reset(); }

    void the_record_starts_empty()
    {
        QCOMPARE(state.DiscRoot, QString());
        QCOMPARE(state.PhotoRoot, QString());
        QVERIFY(!state.FirstActivation);
        QVERIFY(!state.YearChosen);
        QVERIFY(!state.ShowFileNames);
        QCOMPARE(int(state.CurrentYearButton), 0);
        QCOMPARE(int(state.PhotoCount), 0);
        QCOMPARE(state.TrayWindow, 0);
        QCOMPARE(state.HelpWindowHandle, 0);
    }

    void the_splash_stands_while_the_disc_is_read()
    {
        program_->Start();
        QVERIFY(Form2->Visible());
        QVERIFY(!Form1.IsLoaded());
        QCOMPARE(Form2->Timer1.Interval(), 5000);
        QVERIFY(state.FirstActivation);
        QCOMPARE(state.DiscRoot, u"G:"_s);
        QCOMPARE(state.PhotoRoot, u"G:"_s);
        QCOMPARE(int(state.PhotoCount), 3);
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    void the_splash_hands_over_after_five_seconds_and_not_before()
    {
        program_->Start();
        Clock::Turn(4999);
        program_->Settle();
        QVERIFY(Form2.IsLoaded());
        QVERIFY(!Form1.IsLoaded());
        Clock::Turn(1);
        program_->Settle();
        QVERIFY(!Form2.IsLoaded());
        QVERIFY(Form1.IsLoaded());
        QVERIFY(Form1->Visible());
    }

    void closing_the_splash_ends_the_program()
    {
        program_->Start();
        Form2->Window().close();
        QVERIFY(ProgramIsEnding());
        QVERIFY(!Form2.IsLoaded());
        QVERIFY(!Form1.IsLoaded());
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    void the_timer_runs_once()
    {
        program_->StartBrowsing();
        Clock::Turn(20000);
        program_->Settle();
        QCOMPARE(Form1->List1(0).ListCount(), 35);
        QVERIFY(!Form2.IsLoaded());
    }

    void a_second_instance_is_refused()
    {
        const OtherInstance running;
        program_->Start();
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(program_->messages.Last().text, u"The Torvik Vollandry is already running!"_s);
        QCOMPARE(program_->messages.Last().style, 4112);
        QCOMPARE(program_->messages.Last().title, u"The Torvik Vollandry 2001"_s);
        QVERIFY(ProgramIsEnding());
        QCOMPARE(state.DiscRoot, QString());
    }

    void the_sound_is_played_when_it_is_there()
    {
        program_->AddToProgramFolder(u"passby.wav"_s, TestMovie::Wav());
        program_->Start();
        QCOMPARE(state.SoundFile, ProgramFolder() + u"\\passby.wav"_s);
        QVERIFY(Form2->MMControl1.IsOpen());
        QCOMPARE(Form2->MMControl1.FileName(), state.SoundFile);
        QTRY_COMPARE(Form2->MMControl1.State(), MediaControl::Mode::Playing);
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    void a_damaged_sound_holds_nothing_up()
    {
        program_->AddToProgramFolder(u"passby.wav"_s, "RIFF");
        program_->StartBrowsing();
        QVERIFY(program_->messages.Shown().isEmpty());
        QCOMPARE(Form1->panYear.Caption(), u"1967"_s);
    }

    void without_the_sound_there_is_silence()
    {
        program_->Start();
        QCOMPARE(state.SoundFile, ProgramFolder() + u"\\passby.wav"_s);
        QVERIFY(!Form2->MMControl1.IsOpen());
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    void on_800_by_600_the_window_keeps_the_size_of_its_load()
    {
        program_->StartBrowsing();
        QCOMPARE(Form1->Width(), 12000.0);
        QCOMPARE(Form1->Height(), 9000.0);
        QVERIFY(Form1->mnuHideStatus.Enabled());
    }

    void on_any_other_screen_the_window_takes_its_own_size_data()
    {
        QTest::addColumn<QSize>("screen");
        QTest::newRow("640 by 480") << QSize(640, 480);
        QTest::newRow("1024 by 768") << QSize(1024, 768);
        QTest::newRow("800 by 601") << QSize(800, 601);
        QTest::newRow("1920 by 1080") << QSize(1920, 1080);
    }

    void on_any_other_screen_the_window_takes_its_own_size()
    {
        QFETCH(QSize, screen);
        program_->SetScreen(screen);
        program_->StartBrowsing();
        QCOMPARE(Form1->Width(), 11994.0);
        QCOMPARE(Form1->Height(), 9100.0);
        QVERIFY(!Form1->mnuHideStatus.Enabled());
        QCOMPARE(Form1->Frame1.Top(), Form1->Image4.Top() + Form1->Image4.Height() + 10);
        QCOMPARE(Form1->Frame1.Top(), 504.0);
    }

    void the_bar_comes_right_below_the_photo_however_high_that_is()
    {
        photoIsLow = true;
        program_->SetScreen({1024, 768});
        program_->StartBrowsing();
        photoIsLow = false;
        QCOMPARE(Form1->Image4.Height(), 400.0);
        QCOMPARE(Form1->Frame1.Top(), Form1->Image4.Top() + 400 + 10);
    }

    void photos_that_cannot_be_listed_are_asked_about_and_retry_goes_on()
    {
        const DiscLostWhenFound lost(*program_);
        program_->messages.Answer(msgbox::answerRetry); // ER001: no disc yet
        program_->messages.Answer(msgbox::answerRetry); // ER037: gone again
        QStringList codes;
        NoteCodes(codes);
        program_->Start();
        QCOMPARE(codes.join(u' '), u"ER001 ER037"_s);
        QCOMPARE(program_->messages.Last().style, 5);
        QCOMPARE(int(state.PhotoCount), 3);
        QVERIFY(Form2->Visible());
        program_->PassSplash();
        QCOMPARE(Form1->Image4.Picture().FileName(), u"67A.JPG"_s);
    }

    void cancel_on_photos_that_cannot_be_listed_ends_with_the_splash_up()
    {
        const DiscLostWhenFound lost(*program_);
        program_->messages.Answer(msgbox::answerRetry);
        program_->messages.Answer(msgbox::answerCancel);
        bool splash = false;
        program_->messages.WhenAsked([&] {
            program_->PutDiscIn(u'G');
            program_->messages.WhenAsked([&] { splash = Form2.IsLoaded() && Form2->Visible(); });
        });
        program_->Start();
        QVERIFY(program_->messages.Last().text.startsWith(u"Error number: ER037"_s));
        QVERIFY(splash);
        QVERIFY(ProgramIsEnding());
        QVERIFY(!Form1.IsLoaded());
    }

    void the_year_lists_hold_all_years_in_order()
    {
        program_->StartBrowsing();
        for (int which : {0, 1}) {
            ListBox& list = Form1->List1(which);
            QCOMPARE(list.ListCount(), 35);
            for (int index = 0; index < 35; ++index)
                QCOMPARE(list.List(index), QString::number(1967 + index));
        }
    }

private:
    /// Puts the disc in at the first box and again at the second; keeps the code of each.
    void NoteCodes(QStringList& codes)
    {
        program_->messages.WhenAsked([this, &codes] {
            codes.append(state.ErrorCode);
            program_->PutDiscIn(u'G');
            NoteCodes(codes);
        });
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(StartUpTest)
#include "start_up_test.moc"
