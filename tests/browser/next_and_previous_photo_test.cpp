#include "browser/next_and_previous_photo.h"
#include "browser/select_year.h"
#include "program/program_state.h"
#include "support/program.h"
#include "support/test_class.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// Stepping through the photos of a year, in both directions.
class NextAndPreviousPhotoTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        for (const char* prefix : {"67", "68", "99", "A0", "A1", "PT"})
            program_->disc.AddGroup(QString::fromLatin1(prefix), 3);
        program_->disc.AddGroup(u"70"_s, 1);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void forward_after_a_selection_shows_the_second_photo()
    {
        StepPhotoForward();
        QCOMPARE(Shown(), u"67B.JPG 2"_s);
        QCOMPARE(int(state.PhotoIndex), 2);
        QCOMPARE(int(state.ShownPhotoIndex), 2);
        QVERIFY(state.SteppedForward);
        QVERIFY(!state.SteppedBackward);
        QCOMPARE(state.CurrentPhotoFile, u"G:\\Torviks\\67B.JPG"_s);
    }

    void backward_after_a_selection_shows_the_last_photo()
    {
        StepPhotoBackward();
        QCOMPARE(Shown(), u"67C.JPG 3"_s);
        QCOMPARE(int(state.PhotoIndex), 2);
        QCOMPARE(int(state.ShownPhotoIndex), 3);
        QVERIFY(state.SteppedBackward);
        QVERIFY(!state.SteppedForward);
    }

    void the_walk_goes_round_in_both_directions()
    {
        QStringList seen;
        for (int step = 0; step < 4; ++step) {
            StepPhotoForward();
            seen.append(Form1->panPhoto.Caption());
        }
        for (int step = 0; step < 5; ++step) {
            StepPhotoBackward();
            seen.append(Form1->panPhoto.Caption());
        }
        QCOMPARE(seen.join(u' '), u"2 3 1 2 1 3 2 1 3"_s);
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    void forward_forward_backward_lands_on_the_second_neighbour()
    {
        // From the selected photo 1: 2, 3, and back to 2; one step more is photo 1.
        StepPhotoForward();
        StepPhotoForward();
        StepPhotoBackward();
        QCOMPARE(Shown(), u"67B.JPG 2"_s);
        StepPhotoBackward();
        QCOMPARE(Shown(), u"67A.JPG 1"_s);
    }

    void backward_then_forward_returns_to_where_it_was()
    {
        StepPhotoBackward();
        StepPhotoBackward();
        QCOMPARE(Shown(), u"67B.JPG 2"_s);
        StepPhotoForward();
        QCOMPARE(Shown(), u"67C.JPG 3"_s);
    }

    void a_group_of_one_photo_shows_it_again()
    {
        program_->Click(Form1->cmdYR(4));
        QCOMPARE(Shown(), u"70A.JPG 1"_s);
        StepPhotoForward();
        QCOMPARE(Shown(), u"70A.JPG 1"_s);
        StepPhotoForward();
        StepPhotoBackward();
        QCOMPARE(Shown(), u"70A.JPG 1"_s);
    }

    void the_spin_button_steps()
    {
        QTest::mouseClick(Form1->SpinButton1.Widget().findChild<QWidget*>(u"SpinButton1(Up)"_s),
                          Qt::LeftButton);
        QCOMPARE(Shown(), u"67B.JPG 2"_s);
        QTest::mouseClick(Form1->SpinButton1.Widget().findChild<QWidget*>(u"SpinButton1(Down)"_s),
                          Qt::LeftButton);
        QCOMPARE(Shown(), u"67A.JPG 1"_s);
    }

    void a_double_click_on_the_number_after_a_selection_shows_the_second_photo()
    {
        program_->DoubleClick(Form1->panPhoto);
        QCOMPARE(Shown(), u"67B.JPG 2"_s);
    }

    void a_double_click_on_the_number_after_a_backward_step_shows_the_first_photo()
    {
        StepPhotoBackward();
        program_->DoubleClick(Form1->panPhoto);
        QCOMPARE(Shown(), u"67A.JPG 1"_s);
    }

    void a_double_click_on_the_number_sees_a_photo_that_came_meanwhile()
    {
        program_->disc.AddPhoto(u"670.JPG"_s);
        StepPhotoBackward();
        program_->DoubleClick(Form1->panPhoto);
        QCOMPARE(Shown(), u"670.JPG 1"_s);
    }

    void the_focus_stays_on_the_year_after_the_one_on_show_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("focus");
        QTest::newRow("1967") << u"1967"_s << u"cmdYR(2)"_s;
        QTest::newRow("1999") << u"1999"_s << u"cmdYR(34)"_s;
        QTest::newRow("2000") << u"2000"_s << u"cmdYR(35)"_s;
        QTest::newRow("2001") << u"2001"_s << u"cmdYR(1)"_s;
        QTest::newRow("a topic") << u"Early Torvik Prototypes "_s << u"cmdYR(1)"_s;
    }

    void the_focus_stays_on_the_year_after_the_one_on_show()
    {
        QFETCH(QString, title);
        QFETCH(QString, focus);
        for (auto* step : {StepPhotoForward, StepPhotoBackward}) {
            Form1->panYear.SetCaption(title);
            SelectYear();
            state.PhotoIndex = 0;
            Form1->cmdYR(20).SetFocus();
            step();
            QCOMPARE(Program::Focus(), focus);
        }
    }

    void the_last_two_years_enable_their_button_themselves()
    {
        Form1->panYear.SetCaption(u"2000"_s);
        SelectYear();
        Form1->cmdYR(35).SetEnabled(false);
        StepPhotoForward();
        QVERIFY(Form1->cmdYR(35).Enabled());
        Form1->panYear.SetCaption(u"2001"_s);
        SelectYear();
        Form1->cmdYR(1).SetEnabled(false);
        StepPhotoBackward();
        QVERIFY(Form1->cmdYR(1).Enabled());
    }

    void the_raw_digits_of_2000_and_2001_are_corrected()
    {
        program_->Click(Form1->cmdYR(34));
        state.YearCode = u"00"_s;
        StepPhotoForward();
        QCOMPARE(state.YearCode, u"A0"_s);
        QCOMPARE(Shown(), u"A0B.JPG 2"_s);
        program_->Click(Form1->cmdYR(35));
        state.YearCode = u"01"_s;
        StepPhotoBackward();
        QCOMPARE(state.YearCode, u"A1"_s);
        QCOMPARE(Shown(), u"A1C.JPG 3"_s);
    }

    void with_nothing_chosen_forward_only_moves_the_focus()
    {
        Form1->panYear.SetCaption(nothingChosen);
        Form1->cmdYR(20).SetFocus();
        StepPhotoForward();
        QVERIFY(Form1->cmdYR(1).Enabled());
        QCOMPARE(Program::Focus(), u"cmdYR(1)"_s);
        QCOMPARE(Shown(), u"67A.JPG 1"_s);
        QVERIFY(!state.SteppedForward);
    }

    void a_code_without_any_photo_changes_nothing()
    {
        StepPhotoForward();
        for (auto* step : {StepPhotoForward, StepPhotoBackward}) {
            state.YearCode = u"mu"_s;
            step();
            QCOMPARE(Shown(), u"67B.JPG 2"_s);
            QCOMPARE(int(state.PhotoIndex), 2);
            QVERIFY(state.SteppedForward);
            QVERIFY(!state.SteppedBackward);
        }
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    void the_list_need_not_hold_a_year_in_one_run()
    {
        // 67A 68B 67C 68A 67B 68C
        std::swap(state.PhotoFiles(2), state.PhotoFiles(5));
        QStringList seen;
        for (void (*step)() : {StepPhotoForward, StepPhotoForward, StepPhotoForward, StepPhotoBackward,
                               StepPhotoBackward, StepPhotoForward}) {
            step();
            seen.append(Form1->Image4.Picture().FileName().left(3));
        }
        QCOMPARE(seen.join(u' '), u"67C 67B 67A 67B 67C 67B"_s);
    }

    void a_name_without_more_than_its_code_is_a_photo_of_the_year()
    {
        program_->disc.AddPhoto(u"67.JPG"_s);
        StepPhotoBackward();
        program_->DoubleClick(Form1->panPhoto);
        QCOMPARE(Shown(), u"67.JPG 1"_s);
    }

    void forward_with_a_missing_photo_is_ER012_and_ends_the_step()
    {
        program_->disc.Remove(u"Torviks/67B.JPG"_s);
        Form1->cmdYR(20).SetFocus();
        StepPhotoForward();
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(program_->messages.Last().text,
                 u"Error number: ER012\r\n\r\n Unable to load photo.\r\n\r\n"
                 "Make sure that the Torvik Vollandry is in the CDROM drive."_s);
        QCOMPARE(Program::Focus(), u"cmdYR(20)"_s);
        QCOMPARE(Form1->panPhoto.Caption(), u"1"_s);
        QCOMPARE(int(state.ShownPhotoIndex), 1);
        StepPhotoForward();
        QCOMPARE(Shown(), u"67C.JPG 3"_s);
    }

    void backward_with_a_missing_photo_is_ER011_and_the_rest_of_the_step_still_runs()
    {
        program_->disc.Remove(u"Torviks/67C.JPG"_s);
        Form1->cmdYR(20).SetFocus();
        StepPhotoBackward();
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY(program_->messages.Last().text.startsWith(
            u"Error number: ER011\r\n\r\n Unable to load Slide Show photo."_s));
        QCOMPARE(int(state.ShownPhotoIndex), 4);
        QCOMPARE(Program::Focus(), u"cmdYR(2)"_s);
        QCOMPARE(Form1->panPhoto.Caption(), u"1"_s);
        StepPhotoBackward();
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(Shown(), u"67B.JPG 2"_s);
    }

    void a_damaged_photo_is_told_once_in_each_direction_and_then_passed()
    {
        program_->disc.AddFile(u"Torviks/67B.JPG"_s, "damaged");
        program_->Press(Form1->cmdYR(2), Qt::Key_Comma);
        QCOMPARE(Shown(), u"67C.JPG 3"_s);
        program_->Press(Form1->cmdYR(2), Qt::Key_Comma);
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(Shown(), u"67C.JPG 3"_s);
        QCOMPARE(int(state.ShownPhotoIndex), 3);
        program_->Press(Form1->cmdYR(2), Qt::Key_Comma);
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(Shown(), u"67A.JPG 1"_s);
        QCOMPARE(int(state.ShownPhotoIndex), 1);
        program_->Press(Form1->cmdYR(2), Qt::Key_Period);
        QCOMPARE(program_->messages.Count(), 2);
        program_->Press(Form1->cmdYR(2), Qt::Key_Period);
        QCOMPARE(program_->messages.Count(), 2);
        QCOMPARE(Shown(), u"67C.JPG 3"_s);
    }

    void a_year_whose_first_photo_is_damaged_shows_the_others()
    {
        program_->disc.AddFile(u"Torviks/68A.JPG"_s, "damaged");
        for (const Qt::Key key : {Qt::Key_Period, Qt::Key_Comma}) {
            program_->messages.Clear();
            program_->Click(Form1->cmdYR(2));
            QCOMPARE(program_->messages.Count(), 1);
            QVERIFY(program_->messages.Last().text.startsWith(u"Error number: ER023"_s));
            QVERIFY(!Form1->Image4.Visible());
            program_->Press(Form1->cmdYR(3), key);
            QVERIFY(Form1->Image4.Visible());
            QCOMPARE(Shown(), key == Qt::Key_Period ? u"68B.JPG 2"_s : u"68C.JPG 3"_s);
        }
    }

    void damaged_photos_are_reported_and_the_window_stays_usable_data()
    {
        QTest::addColumn<QByteArray>("content");
        const QByteArray whole = TestDisc::Jpeg(Qt::red, {200, 120});
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut off") << whole.left(whole.size() / 2);
        QTest::newRow("cut off at its very end") << whole.left(whole.size() - 2);
        QTest::newRow("fake") << QByteArray("This is a letter, not a picture.");
    }

    void damaged_photos_are_reported_and_the_window_stays_usable()
    {
        QFETCH(QByteArray, content);
        program_->disc.AddFile(u"Torviks/67B.JPG"_s, content);
        program_->Press(Qt::Key_Period);
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY(program_->messages.Last().text.startsWith(u"Error number: ER012"_s));
        QCOMPARE(Form1->Image4.Picture().FileName(), u"67A.JPG"_s);
        QVERIFY(Form1->Enabled());
        program_->Press(Qt::Key_Period);
        QCOMPARE(Shown(), u"67C.JPG 3"_s);
    }

    void a_disc_that_vanished_between_two_steps_is_reported()
    {
        program_->PutDiscIn({});
        program_->Press(Qt::Key_Period);
        QVERIFY(program_->messages.Last().text.startsWith(u"Error number: ER012"_s));
        program_->PutDiscIn(u'G');
        program_->messages.Clear();
        program_->Press(Qt::Key_Period);
        QVERIFY(program_->messages.Shown().isEmpty());
    }

private:
    /// File and number of the photo on show.
    static QString Shown() { return Form1->Image4.Picture().FileName() + u" "_s + Form1->panPhoto.Caption(); }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(NextAndPreviousPhotoTest)
#include "next_and_previous_photo_test.moc"
