#include "browser/next_and_previous_photo.h"
#include "browser/select_year.h"
#include "program/program_state.h"
#include "support/program.h"
#include "windows/main_window.h"

#include <QTest>

using namespace torvik;

/// Stepping through the photos of a year, in both directions.
class NextAndPreviousPhotoTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        for (const char* prefix : {"67", "68", "99", "A0", "A1", "PT"})
            program_->Disc.AddGroup(QString::fromLatin1(prefix), 3);
        program_->Disc.AddGroup(QStringLiteral("70"), 1);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void forward_after_a_selection_shows_the_second_photo()
    {
        StepPhotoForward();
        QCOMPARE(Shown(), QStringLiteral("67B.JPG 2"));
        QCOMPARE(int(state.PhotoIndex), 2);
        QCOMPARE(int(state.ShownPhotoIndex), 2);
        QVERIFY(state.SteppedForward);
        QVERIFY(!state.SteppedBackward);
        QCOMPARE(state.CurrentPhotoFile, QStringLiteral("G:\\Torviks\\67B.JPG"));
    }

    void backward_after_a_selection_shows_the_last_photo()
    {
        StepPhotoBackward();
        QCOMPARE(Shown(), QStringLiteral("67C.JPG 3"));
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
        QCOMPARE(seen.join(u' '), QStringLiteral("2 3 1 2 1 3 2 1 3"));
        QVERIFY(program_->Messages.Shown().isEmpty());
    }

    void forward_forward_backward_lands_on_the_second_neighbour()
    {
        // From the selected photo 1: 2, 3, and back to 2; one step more is photo 1.
        StepPhotoForward();
        StepPhotoForward();
        StepPhotoBackward();
        QCOMPARE(Shown(), QStringLiteral("67B.JPG 2"));
        StepPhotoBackward();
        QCOMPARE(Shown(), QStringLiteral("67A.JPG 1"));
    }

    void backward_then_forward_returns_to_where_it_was()
    {
        StepPhotoBackward();
        StepPhotoBackward();
        QCOMPARE(Shown(), QStringLiteral("67B.JPG 2"));
        StepPhotoForward();
        QCOMPARE(Shown(), QStringLiteral("67C.JPG 3"));
    }

    void a_group_of_one_photo_shows_it_again()
    {
        program_->Click(Form1->cmdYR(4));
        QCOMPARE(Shown(), QStringLiteral("70A.JPG 1"));
        StepPhotoForward();
        QCOMPARE(Shown(), QStringLiteral("70A.JPG 1"));
        StepPhotoForward();
        StepPhotoBackward();
        QCOMPARE(Shown(), QStringLiteral("70A.JPG 1"));
    }

    void the_spin_button_steps()
    {
        QTest::mouseClick(Form1->SpinButton1.Widget().findChild<QWidget*>(QStringLiteral("SpinButton1(Up)")),
                          Qt::LeftButton);
        QCOMPARE(Shown(), QStringLiteral("67B.JPG 2"));
        QTest::mouseClick(
            Form1->SpinButton1.Widget().findChild<QWidget*>(QStringLiteral("SpinButton1(Down)")),
            Qt::LeftButton);
        QCOMPARE(Shown(), QStringLiteral("67A.JPG 1"));
    }

    void a_double_click_on_the_number_after_a_selection_shows_the_second_photo()
    {
        program_->DoubleClick(Form1->panPhoto);
        QCOMPARE(Shown(), QStringLiteral("67B.JPG 2"));
    }

    void a_double_click_on_the_number_after_a_backward_step_shows_the_first_photo()
    {
        StepPhotoBackward();
        program_->DoubleClick(Form1->panPhoto);
        QCOMPARE(Shown(), QStringLiteral("67A.JPG 1"));
    }

    void a_double_click_on_the_number_sees_a_photo_that_came_meanwhile()
    {
        program_->Disc.AddPhoto(QStringLiteral("670.JPG"));
        StepPhotoBackward();
        program_->DoubleClick(Form1->panPhoto);
        QCOMPARE(Shown(), QStringLiteral("670.JPG 1"));
    }

    void the_focus_stays_behind_the_year_on_show_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("focus");
        QTest::newRow("1967") << QStringLiteral("1967") << QStringLiteral("cmdYR(2)");
        QTest::newRow("1999") << QStringLiteral("1999") << QStringLiteral("cmdYR(34)");
        QTest::newRow("2000") << QStringLiteral("2000") << QStringLiteral("cmdYR(35)");
        QTest::newRow("2001") << QStringLiteral("2001") << QStringLiteral("cmdYR(1)");
        QTest::newRow("a topic") << QStringLiteral("Early Torvik Prototypes ") << QStringLiteral("cmdYR(1)");
    }

    void the_focus_stays_behind_the_year_on_show()
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
        Form1->panYear.SetCaption(QStringLiteral("2000"));
        SelectYear();
        Form1->cmdYR(35).SetEnabled(false);
        StepPhotoForward();
        QVERIFY(Form1->cmdYR(35).Enabled());
        Form1->panYear.SetCaption(QStringLiteral("2001"));
        SelectYear();
        Form1->cmdYR(1).SetEnabled(false);
        StepPhotoBackward();
        QVERIFY(Form1->cmdYR(1).Enabled());
    }

    void the_raw_digits_of_2000_and_2001_are_corrected()
    {
        program_->Click(Form1->cmdYR(34));
        state.YearCode = QStringLiteral("00");
        StepPhotoForward();
        QCOMPARE(state.YearCode, QStringLiteral("A0"));
        QCOMPARE(Shown(), QStringLiteral("A0B.JPG 2"));
        program_->Click(Form1->cmdYR(35));
        state.YearCode = QStringLiteral("01");
        StepPhotoBackward();
        QCOMPARE(state.YearCode, QStringLiteral("A1"));
        QCOMPARE(Shown(), QStringLiteral("A1C.JPG 3"));
    }

    void with_nothing_chosen_forward_only_moves_the_focus()
    {
        Form1->panYear.SetCaption(nothingChosen);
        Form1->cmdYR(20).SetFocus();
        StepPhotoForward();
        QVERIFY(Form1->cmdYR(1).Enabled());
        QCOMPARE(Program::Focus(), QStringLiteral("cmdYR(1)"));
        QCOMPARE(Shown(), QStringLiteral("67A.JPG 1"));
        QVERIFY(!state.SteppedForward);
    }

    void a_code_without_any_photo_changes_nothing()
    {
        StepPhotoForward();
        for (auto* step : {StepPhotoForward, StepPhotoBackward}) {
            state.YearCode = QStringLiteral("mu");
            step();
            QCOMPARE(Shown(), QStringLiteral("67B.JPG 2"));
            QCOMPARE(int(state.PhotoIndex), 2);
            QVERIFY(state.SteppedForward);
            QVERIFY(!state.SteppedBackward);
        }
        QVERIFY(program_->Messages.Shown().isEmpty());
    }

    void the_list_need_not_hold_a_year_in_one_run()
    {
        // Names in between that sort inside the group's range but carry another prefix do not disturb.
        program_->Disc.AddPhoto(QStringLiteral("67.JPG"));
        StepPhotoBackward();
        program_->DoubleClick(Form1->panPhoto);
        QCOMPARE(Shown(), QStringLiteral("67.JPG 1"));
    }

    void forward_with_a_missing_photo_is_ER012_and_ends_the_step()
    {
        program_->Disc.Remove(QStringLiteral("Torviks/67B.JPG"));
        Form1->cmdYR(20).SetFocus();
        StepPhotoForward();
        QCOMPARE(program_->Messages.Count(), 1);
        QCOMPARE(program_->Messages.Last().Text,
                 QStringLiteral("Error number: ER012\r\n\r\n Unable to load photo.\r\n\r\n"
                                "Make sure that the Torvik Vollandry is in the CDROM drive."));
        QCOMPARE(Program::Focus(), QStringLiteral("cmdYR(20)"));
        QCOMPARE(Form1->panPhoto.Caption(), QStringLiteral("1"));
        QCOMPARE(int(state.ShownPhotoIndex), 1);
        StepPhotoForward();
        QCOMPARE(Shown(), QStringLiteral("67C.JPG 3"));
    }

    void backward_with_a_missing_photo_is_ER011_and_the_rest_of_the_step_still_runs()
    {
        program_->Disc.Remove(QStringLiteral("Torviks/67C.JPG"));
        Form1->cmdYR(20).SetFocus();
        StepPhotoBackward();
        QCOMPARE(program_->Messages.Count(), 1);
        QVERIFY(program_->Messages.Last().Text.startsWith(
            QStringLiteral("Error number: ER011\r\n\r\n Unable to load Slide Show photo.")));
        QCOMPARE(int(state.ShownPhotoIndex), 4);
        QCOMPARE(Program::Focus(), QStringLiteral("cmdYR(2)"));
        QCOMPARE(Form1->panPhoto.Caption(), QStringLiteral("1"));
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
        program_->Disc.AddFile(QStringLiteral("Torviks/67B.JPG"), content);
        program_->Press(Qt::Key_Period);
        QCOMPARE(program_->Messages.Count(), 1);
        QVERIFY(program_->Messages.Last().Text.startsWith(QStringLiteral("Error number: ER012")));
        QCOMPARE(Form1->Image4.Picture().FileName(), QStringLiteral("67A.JPG"));
        QVERIFY(Form1->Enabled());
        program_->Press(Qt::Key_Period);
        QCOMPARE(Shown(), QStringLiteral("67C.JPG 3"));
    }

    void a_disc_that_vanished_between_two_steps_is_reported()
    {
        program_->PutDiscIn({});
        program_->Press(Qt::Key_Period);
        QVERIFY(program_->Messages.Last().Text.startsWith(QStringLiteral("Error number: ER012")));
        program_->PutDiscIn(u'G');
        program_->Messages.Clear();
        program_->Press(Qt::Key_Period);
        QVERIFY(program_->Messages.Shown().isEmpty());
    }

private:
    /// File and number of the photo on show.
    static QString Shown()
    {
        return Form1->Image4.Picture().FileName() + QStringLiteral(" ") + Form1->panPhoto.Caption();
    }

    std::unique_ptr<Program> program_;
};

QTEST_MAIN(NextAndPreviousPhotoTest)
#include "next_and_previous_photo_test.moc"
