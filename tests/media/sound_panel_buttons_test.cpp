#include "program/program_state.h"
#include "support/discs/test_movie.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/clock.h"
#include "ui/forms/form_window.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct Sound {
    const char* label;
    const char* file;
};

const Sound sounds[] = {
    {"Backfiring", "backfrng.wav"},
    {"Car Door", "car_door.wav"},
    {"Car Horns", "carhorns.wav"},
    {"Traffic", "horns.wav"},
    {"Police Car", "cop-car.wav"},
    {"Taxi Horns", "taxi.wav"},
    {"Sport Car", "sportcar.wav"},
    {"18 Wheeler", "18wheelr.wav"},
    {"Race Car Takeoff", "peel-out.wav"},
    {"At the Track", "Track2.wav"},
    {"Race Car Passby", "nascar.wav"},
    {"Race Car 1", "racecar.wav"},
    {"Race Car 2", "indy-car.wav"},
    {"Motorcycle", "mcycle.wav"},
    {"Batmobile", "batmoble.wav"},
    {"Dornhall", "62sellark.wav"},
    {"Torvik", "63sellark.wav"},
    {"Cars Starting", "selstart.wav"},
    {"Passby", "passby.wav"},
    {"Sellark C5", "selcar.wav"},
    {"QR-7 Starting", "qr7start.wav"},
    {"Motorcycle 2", "motorcyc2.wav"},
    {"Hot Rod", "hot_rod.wav"},
    {"Red Light", "red_lght.wav"},
    {"Dornhall Kestra I", "porche.wav"},
    {"Ford Cobra", "stealth.wav"},
    {"Stuck on Ice", "stuck.wav"},
    {"Rev n' Run", "revnrun.wav"},
    {"Going By", "goingby.wav"},
};

const QString soundReport = u"Error number: ER038\r\n\r\n Unable to load the 'Sound Effects' file."
                            "\r\n\r\nMake sure that the Torvik Vollandry is in the CDROM drive."_s;

} // namespace

/// The panel of sound effects.
class SoundPanelButtonsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 2);
        program_->disc.AddGroup(u"69"_s, 2);
        for (const Sound& sound : sounds)
            program_->disc.AddFile(u"wav/"_s + QString::fromLatin1(sound.file), "RIFF");
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void the_panel_is_hidden_at_the_start() { QVERIFY(!Form1->pnlSound.Visible()); }

    void the_menu_entry_puts_the_panel_over_the_photo_and_in_front()
    {
        Form1->pnlPrint.Show();
        Form1->pnlPrint.ZOrder();
        Open();
        QVERIFY(Form1->pnlSound.Visible());
        QCOMPARE(Form1->pnlSound.Top(), Form1->Image4.Top());
        // The bar's measures are twips, those of the panel pixels.
        QCOMPARE(Form1->pnlSound.Left(), ((9000 + 2685) / 15.0 - Form1->pnlSound.Width()) / 2);
        const QPoint middle = Form1->pnlSound.Widget().geometry().center();
        const QWidget* top = Form1->Window().Client().childAt(middle);
        QVERIFY(top == &Form1->pnlSound.Widget() || Form1->pnlSound.Widget().isAncestorOf(top));
        QCOMPARE(Program::Focus(), u"SSCommand1"_s);
    }

    void the_rest_of_the_window_stays_usable()
    {
        Open();
        program_->Click(Form1->cmdYR(3));
        QCOMPARE(Form1->panYear.Caption(), u"1969"_s);
        QVERIFY(Form1->pnlSound.Visible());
    }

    void each_button_plays_its_file_data()
    {
        QTest::addColumn<int>("index");
        for (int index = 0; index < 29; ++index)
            QTest::newRow(sounds[index].label) << index;
    }
    void each_button_plays_its_file()
    {
        QFETCH(const int, index);
        const QString file = QString::fromLatin1(sounds[index].file);
        Open();
        QCOMPARE(Form1->lblSound(index).Caption(), QString::fromLatin1(sounds[index].label));
        QCOMPARE(Form1->SSCommand2(index).Widget().accessibleName(),
                 QString::fromLatin1(sounds[index].label));
        QCOMPARE(Form1->SSCommand2(index).Widget().objectName(), u"SSCommand2(%1)"_s.arg(index));
        program_->Click(Form1->SSCommand2(index));
        QCOMPARE(state.SoundFile, u"G:\\wav\\"_s + file);
        QCOMPARE(Form1->MMControl1.FileName(), state.SoundFile);
        QVERIFY(Form1->MMControl1.IsOpen());
        QCOMPARE(state.YearCode, file);
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    void there_are_no_more_buttons_than_sounds()
    {
        QCOMPARE(Form1->SSCommand2.Count(), 29);
        QCOMPARE(Form1->lblSound.Count(), 29);
    }

    void a_sound_plays_at_once_and_stop_ends_it()
    {
        using Mode = MediaControl::Mode;
        program_->disc.AddFile(u"wav/taxi.wav"_s, TestMovie::Wav());
        Open();
        program_->Click(Form1->SSCommand2(5));
        QCOMPARE(Form1->MMControl1.State(), Mode::Playing);
        QTRY_VERIFY(Form1->MMControl1.Length() > 0);
        QCOMPARE(Form1->MMControl1.State(), Mode::Playing);
        program_->Click(Form1->SSCommand3);
        QCOMPARE(Form1->MMControl1.State(), Mode::NotOpen);
    }

    void a_second_sound_plays_in_place_of_one_that_is_playing()
    {
        using Mode = MediaControl::Mode;
        program_->disc.AddFile(u"wav/taxi.wav"_s, TestMovie::Wav());
        program_->disc.AddFile(u"wav/horns.wav"_s, TestMovie::Wav());
        Open();
        program_->Click(Form1->SSCommand2(5));
        QTRY_VERIFY(Form1->MMControl1.Length() > 0);
        QCOMPARE(Form1->MMControl1.State(), Mode::Playing);
        Clock::Turn(500);
        QTRY_VERIFY(Form1->MMControl1.Position() > 0);
        program_->Click(Form1->SSCommand2(3));
        QCOMPARE(Form1->MMControl1.FileName(), u"G:\\wav\\horns.wav"_s);
        QCOMPARE(Form1->MMControl1.Position(), 0);
        QTRY_VERIFY(Form1->MMControl1.Length() > 0);
        QCOMPARE(Form1->MMControl1.State(), Mode::Playing);
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    /// The name of the sound is the code of no photo, so a step finds nothing to show.
    void after_a_sound_a_step_changes_nothing_until_a_year_is_chosen()
    {
        Open();
        program_->Click(Form1->SSCommand2(5));
        QCOMPARE(state.YearCode, u"taxi.wav"_s);
        for (const Qt::Key key : {Qt::Key_Period, Qt::Key_Comma}) {
            program_->Press(Form1->cmdYR(2), key);
            QCOMPARE(Form1->Image4.Picture().FileName(), u"67A.JPG"_s);
            QCOMPARE(Form1->panPhoto.Caption(), u"1"_s);
        }
        QVERIFY(program_->messages.Shown().isEmpty());
        program_->Click(Form1->cmdYR(1 + 2));
        program_->Press(Form1->cmdYR(4), Qt::Key_Period);
        QCOMPARE(Form1->Image4.Picture().FileName(), u"69B.JPG"_s);
    }

    void a_second_sound_takes_the_place_of_the_first()
    {
        Open();
        program_->Click(Form1->SSCommand2(0));
        program_->Click(Form1->SSCommand2(4));
        QCOMPARE(Form1->MMControl1.FileName(), u"G:\\wav\\cop-car.wav"_s);
        QVERIFY(Form1->MMControl1.IsOpen());
    }

    void the_name_found_on_the_disc_stays_the_code_of_the_year_until_the_next_choice()
    {
        program_->disc.Remove(u"wav/backfrng.wav"_s);
        program_->disc.AddFile(u"wav/BACKFRNG.WAV"_s, "RIFF");
        QCOMPARE(state.YearCode, u"67"_s);
        Open();
        program_->Click(Form1->SSCommand2(0));
        QCOMPARE(state.YearCode, u"BACKFRNG.WAV"_s);
        program_->Click(Form1->cmdYR(3));
        QCOMPARE(state.YearCode, u"69"_s);
    }

    void a_missing_file_is_reported_and_the_sound_before_left_alone()
    {
        program_->disc.Remove(u"wav/carhorns.wav"_s);
        Open();
        program_->Click(Form1->SSCommand2(0));
        program_->Click(Form1->SSCommand2(2));
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(program_->messages.Last().text, soundReport);
        QCOMPARE(program_->messages.Last().style, 16);
        QCOMPARE(program_->messages.Last().title, u"The Torvik Vollandry"_s);
        QCOMPARE(state.YearCode, QString());
        QCOMPARE(state.ErrorCode, u"ER038"_s);
        QCOMPARE(Form1->MMControl1.FileName(), u"G:\\wav\\backfrng.wav"_s);
        QVERIFY(Form1->MMControl1.IsOpen());
        QCOMPARE(Program::Focus(), u"cmdYR(2)"_s);
    }

    void without_the_folder_every_press_is_reported()
    {
        for (const Sound& sound : sounds)
            program_->disc.Remove(u"wav/"_s + QString::fromLatin1(sound.file));
        Open();
        for (const int index : {0, 28}) {
            program_->messages.Clear();
            program_->Click(Form1->SSCommand2(index));
            QCOMPARE(program_->messages.Count(), 1);
            QCOMPARE(program_->messages.Last().text, soundReport);
            QCOMPARE(state.YearCode, QString());
        }
    }

    /// The look-up itself fails, so that nothing is stored any more; the focus stays.
    void without_the_disc_the_failure_is_reported_in_the_same_way()
    {
        Open();
        program_->PutDiscIn(QChar());
        program_->Click(Form1->SSCommand2(3));
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(program_->messages.Last().text, soundReport);
        QVERIFY(!Form1->MMControl1.IsOpen());
        QCOMPARE(state.YearCode, QString());
    }

    void stop_ends_the_sound_and_does_nothing_without_one()
    {
        Open();
        program_->Click(Form1->SSCommand3);
        QVERIFY(!Form1->MMControl1.IsOpen());
        program_->Click(Form1->SSCommand2(0));
        QVERIFY(Form1->MMControl1.IsOpen());
        program_->Click(Form1->SSCommand3);
        QVERIFY(!Form1->MMControl1.IsOpen());
        QCOMPARE(Form1->MMControl1.State(), MediaControl::Mode::NotOpen);
        QVERIFY(program_->messages.Shown().isEmpty());
        QVERIFY(Form1->pnlSound.Visible());
    }

    void close_hides_the_panel_and_lets_the_sound_go_on()
    {
        Open();
        program_->Click(Form1->SSCommand2(0));
        Form1->SetEnabled(false);
        Form1->SSCommand1.Click.Fire();
        QVERIFY(!Form1->pnlSound.Visible());
        QVERIFY(Form1->Enabled());
        QVERIFY(Form1->MMControl1.IsOpen());
        QCOMPARE(Form1->SSCommand1.Caption(), u"Close"_s);
        QCOMPARE(Form1->SSCommand3.Caption(), u"Stop"_s);
    }

private:
    void Open()
    {
        Form1->mnuSound.Click.Fire();
        program_->Settle();
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(SoundPanelButtonsTest)
#include "sound_panel_buttons_test.moc"
