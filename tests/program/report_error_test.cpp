#include "browser/photo_caption.h"
#include "browser/pictures_over_photo.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "runtime/failure.h"
#include "support/browsing_fixture.h"
#include "support/test_class.h"
#include "ui/forms/program_end.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// The one reporter of errors: its box, its focus move, its two ways out.
class ReportErrorTest : public BrowsingFixture {
    Q_OBJECT

private Q_SLOTS:
    void an_ordinary_code_shows_number_text_and_disc_hint_in_a_critical_box()
    {
        state.ErrorCode = u"ER023"_s;
        ReportError();
        const MessageRequest box = program_->messages.Last();
        QCOMPARE(box.text, u"Error number: ER023\r\n\r\n Torvik photo not found for year selected.\r\n\r\n"
                           "Make sure that the Torvik Vollandry is in the CDROM drive."_s);
        QCOMPARE(box.style, 16);
        QCOMPARE(box.title, u"The Torvik Vollandry"_s);
        QCOMPARE(state.MessageText, box.text);
    }

    void the_codes_of_the_booklet_say_nothing_of_the_disc()
    {
        state.ErrorCode = u"ER034"_s;
        ReportError();
        QCOMPARE(program_->messages.Last().text,
                 u"Error number: ER034\r\n\r\n You must select both a Start Year and an End Year. "_s);
        state.ErrorCode = u"ER036"_s;
        ReportError();
        QCOMPARE(program_->messages.Last().text,
                 u"Error number: ER036\r\n\r\n 'TO' year may not be earlier than 'FROM' year."_s);
    }

    void a_failure_where_no_code_was_set_is_reported_under_the_one_before()
    {
        program_->disc.AddFile(u"emblems/emb67.jpg"_s, TestDisc::Jpeg(Qt::red, {8, 8}));
        LoadEmblem();
        QCOMPARE(program_->messages.Count(), 0);
        state.PhotoIndex = 1;
        OnError(LoadPhotoDetails, ReportError); // 67A has no caption
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY(program_->messages.Last().text.startsWith(
            u"Error number: ER022\r\n\r\n Unable to load  Emblem  for year selected."_s));
    }

    void a_code_that_nobody_knows_shows_its_number_and_the_hint()
    {
        state.ErrorCode = u"ER019"_s;
        ReportError();
        QCOMPARE(program_->messages.Last().text,
                 u"Error number: ER019\r\n\r\n\r\n\r\nMake sure that the Torvik Vollandry is in the "
                 "CDROM drive."_s);
    }

    void the_sound_code_names_the_file()
    {
        state.ErrorCode = u"ER032"_s;
        state.SoundFile = u"E:\\wav\\1969.wav"_s;
        ReportError();
        QVERIFY(program_->messages.Last().text.startsWith(
            u"Error number: ER032\r\n\r\n Unable to load sound file: v\\1969.wav\r\n\r\nMake sure"_s));
    }

    void retry_comes_back_and_keeps_its_answer_as_text()
    {
        for (const QString& code : {u"ER001"_s, u"ER037"_s, u"ER055"_s}) {
            Form1->SetEnabled(false);
            program_->messages.Answer(msgbox::answerRetry);
            state.ErrorCode = code;
            ReportError();
            QCOMPARE(program_->messages.Last().style, 5);
            QCOMPARE(program_->messages.Last().title, u"The Torvik Vollandry"_s);
            QCOMPARE(state.MessageAnswer, u"4"_s);
            QVERIFY2(!Form1->Enabled(), "the way of Retry does not touch the form");
        }
    }

    void cancel_on_a_retry_box_ends_the_program_at_once()
    {
        program_->messages.Answer(msgbox::answerCancel);
        state.ErrorCode = u"ER037"_s;
        bool ended = false;
        try {
            ReportError();
        } catch (const ProgramEnd&) {
            ended = true;
        }
        QVERIFY(ended);
        QVERIFY(ProgramIsEnding());
        QCOMPARE(state.MessageAnswer, u"2"_s);
    }

    void the_focus_goes_to_the_year_after_the_current_one_data()
    {
        QTest::addColumn<int>("current");
        QTest::addColumn<QString>("focus");
        QTest::newRow("a topic") << 0 << u"cmdYR(1)"_s;
        QTest::newRow("1969") << 3 << u"cmdYR(4)"_s;
        QTest::newRow("2000") << 34 << u"cmdYR(35)"_s;
        QTest::newRow("2001") << 35 << u"cmdYR(1)"_s;
    }

    void the_focus_goes_to_the_year_after_the_current_one()
    {
        QFETCH(int, current);
        QFETCH(QString, focus);
        Form1->cmdYR(1).SetEnabled(true);
        Form1->cmdYR(20).SetFocus();
        state.CurrentYearButton = current;
        state.ErrorCode = u"ER002"_s;
        ReportError();
        QCOMPARE(Program::Focus(), focus);
    }

    void a_pending_failure_leaves_the_focus_where_it_is()
    {
        Form1->cmdYR(20).SetFocus();
        Form1->SetEnabled(false);
        state.ErrorCode = u"ER012"_s;
        OnError([] { Fail(failure::fileNotFound); }, ReportError);
        QCOMPARE(Program::Focus(), u"cmdYR(20)"_s);
        QVERIFY(Form1->Enabled());
    }

    void without_a_pending_failure_the_form_is_enabled_too()
    {
        Form1->SetEnabled(false);
        state.ErrorCode = u"ER002"_s;
        ReportError();
        QVERIFY(Form1->Enabled());
    }

    void a_focus_that_cannot_move_is_the_callers_failure()
    {
        Form1->cmdYR(2).SetEnabled(false);
        state.CurrentYearButton = 1;
        state.ErrorCode = u"ER002"_s;
        QCOMPARE(ResumeNext(ReportError), 5);
        QCOMPARE(program_->messages.Count(), 1);
    }
};

TORVIK_TEST(ReportErrorTest)
#include "report_error_test.moc"
