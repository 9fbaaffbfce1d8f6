#include "support/discs/photo_image.h"
#include "support/discs/picture_bytes.h"
#include "support/slide_visit.h"
#include "support/test_class.h"
#include "ui/forms/clock.h"
#include "ui/forms/program_end.h"

#include <QLabel>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

const QString playButton = u"mmSlide(Play)"_s;
const QString pauseButton = u"mmSlide(Pause)"_s;

/// Which of the bar's buttons are enabled: "Prev Next Play".
QString EnabledButtons()
{
    QStringList names;
    for (const auto& [button, name] : {std::pair{MediaButton::Prev, "Prev"},
                                       {MediaButton::Next, "Next"},
                                       {MediaButton::Play, "Play"},
                                       {MediaButton::Pause, "Pause"},
                                       {MediaButton::Back, "Back"},
                                       {MediaButton::Step, "Step"},
                                       {MediaButton::Stop, "Stop"},
                                       {MediaButton::Record, "Record"},
                                       {MediaButton::Eject, "Eject"}})
        if (frmSlide->mmSlide.ButtonEnabled(button))
            names += QString::fromLatin1(name);
    return names.join(u' ');
}

QColor MiddleOf(const QPixmap& pixmap)
{
    return pixmap.toImage().pixelColor(pixmap.rect().center());
}

/// Notes what a label shows each time it is painted.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QLabel& label) : label_(label) { label.installEventFilter(this); }
    QList<QColor> painted;

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            const QPixmap shown = label_.pixmap(Qt::ReturnByValue);
            painted.append(shown.isNull() ? QColor() : MiddleOf(shown));
        }
        return false;
    }

private:
    QLabel& label_;
};

} // namespace

/// The slide show running by itself.
class SlideTimerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 6);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void a_show_opened_at_photo_5_shows_6_after_one_delay()
    {
        state.ShownPhotoIndex = 5;
        QVERIFY(InSlideShow(*program_, [&] {
            QCOMPARE(ShownSlide(), u"67E.JPG, 5 of 6, 1967 "_s);
            ClickSlidePart(*program_, playButton);
            QCOMPARE(int(state.PhotoIndex), 6);
            Clock::Turn(999);
            QCOMPARE(ShownSlide(), u"67E.JPG, 5 of 6, 1967 "_s);
            Clock::Turn(1);
            QCOMPARE(ShownSlide(), u"67F.JPG, 6 of 6, 1967 "_s);
            QCOMPARE(int(state.PhotoIndex), 7);
        }));
    }

    void play_turns_stepping_off_and_pause_on()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            QCOMPARE(EnabledButtons(), u"Prev Next Play Back Step Stop"_s);
            frmSlide->pnlPhotoNumber.Hide();
            ClickSlidePart(*program_, playButton);
            QCOMPARE(EnabledButtons(), u"Play Pause Stop"_s);
            for (const Control* control : std::initializer_list<const Control*>{
                     &frmSlide->SpinInterval, &frmSlide->SSCommand1, &frmSlide->SSCommand2})
                QVERIFY2(!control->Enabled(), qPrintable(control->Name()));
            QVERIFY(frmSlide->pnlPhotoNumber.Visible());
            QVERIFY(frmSlide->cmdExit.Enabled());
            QVERIFY(state.SlidePlayPressed);
            QVERIFY(state.SlideRestorePending);
            QCOMPARE(frmSlide->Timer1.Interval(), 1000);
        }));
    }

    void pause_gives_all_of_that_back_and_holds_the_photo()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, playButton);
            Clock::Turn(2000);
            frmSlide->cmdExit.SetFocus();
            ClickSlidePart(*program_, pauseButton);
            QCOMPARE(EnabledButtons(), u"Prev Next Play Back Step Stop"_s);
            for (const Control* control : std::initializer_list<const Control*>{
                     &frmSlide->SpinInterval, &frmSlide->SSCommand1, &frmSlide->SSCommand2})
                QVERIFY2(control->Enabled(), qPrintable(control->Name()));
            QVERIFY(!state.SlideRestorePending);
            QVERIFY(state.SlidePlayPressed);
            QCOMPARE(frmSlide->Timer1.Interval(), 0);
            QCOMPARE(int(state.PhotoIndex), 3);
            QCOMPARE(Program::Focus(), u"SSCommand1"_s);
            Clock::Turn(60'000);
            QCOMPARE(ShownSlide(), u"67C.JPG, 3 of 6, 1967 "_s);
        }));
    }

    void play_pressed_again_passes_over_a_photo_and_waits_anew()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, playButton);
            Clock::Turn(600);
            ClickSlidePart(*program_, playButton);
            QCOMPARE(int(state.PhotoIndex), 3);
            Clock::Turn(999);
            QCOMPARE(ShownSlide(), u"67A.JPG, 1 of 6, 1967 "_s);
            Clock::Turn(1);
            QCOMPARE(ShownSlide(), u"67C.JPG, 3 of 6, 1967 "_s);
        }));
    }

    void the_last_photo_stays_for_two_delays_and_the_show_begins_again()
    {
        state.ShownPhotoIndex = 5;
        QVERIFY(InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, playButton);
            Clock::Turn(1000);
            QCOMPARE(ShownSlide(), u"67F.JPG, 6 of 6, 1967 "_s);
            Clock::Turn(1000);
            QCOMPARE(ShownSlide(), u"67F.JPG, 6 of 6, 1967 "_s);
            QCOMPARE(int(state.PhotoIndex), 1);
            Clock::Turn(1000);
            QCOMPARE(ShownSlide(), u"67A.JPG, 1 of 6, 1967 "_s);
        }));
    }

    void pause_right_after_the_turn_gives_0_and_the_next_step_shows_photo_1()
    {
        state.ShownPhotoIndex = 6;
        QVERIFY(InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, playButton);
            Clock::Turn(1000);
            QCOMPARE(int(state.PhotoIndex), 1);
            ClickSlidePart(*program_, pauseButton);
            QCOMPARE(int(state.PhotoIndex), 0);
            ClickSlidePart(*program_, u"mmSlide(Next)"_s);
            QCOMPARE(ShownSlide(), u"67A.JPG, 1 of 6, 1967 "_s);
        }));
    }

    void pause_at_photo_0_goes_to_the_last()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, playButton);
            state.PhotoIndex = 0;
            ClickSlidePart(*program_, pauseButton);
            QCOMPARE(int(state.PhotoIndex), 6);
        }));
    }

    void a_tick_takes_0_for_1()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, playButton);
            state.PhotoIndex = 0;
            state.TorviksPathPos = 0;
            frmSlide->panYear.Hide();
            Clock::Turn(1000);
            QCOMPARE(ShownSlide(), u"67A.JPG, 1 of 6, 1967 "_s);
            QCOMPARE(int(state.PhotoIndex), 2);
            QCOMPARE(int(state.TorviksPathPos), 3);
            QVERIFY(frmSlide->panYear.Visible());
        }));
    }

    void a_show_without_a_shown_photo_begins_with_photo_1()
    {
        state.ShownPhotoIndex = 0;
        QVERIFY(InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, playButton);
            Clock::Turn(1000);
            QCOMPARE(ShownSlide(), u"67A.JPG, 1 of 6, 1967 "_s);
        }));
    }

    void a_tick_with_the_interval_0_does_nothing()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            state.PhotoIndex = 0;
            frmSlide->Timer1.Tick.Fire();
            QCOMPARE(int(state.PhotoIndex), 0);
            QCOMPARE(ShownSlide(), u"67A.JPG, 1 of 6, 1967 "_s);
        }));
    }

    void the_delay_steps_while_paused_and_takes_effect_with_the_next_play()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            for (const char* caption : {"2 seconds", "3 seconds", "4 seconds", "5 seconds", "10 seconds"}) {
                frmSlide->cmdExit.SetFocus();
                ClickSlidePart(*program_, u"SpinInterval(Up)"_s);
                QCOMPARE(frmSlide->panInterval.Caption(), QString::fromLatin1(caption));
                QCOMPARE(Program::Focus(), u"SSCommand1"_s);
            }
            frmSlide->cmdExit.SetFocus();
            ClickSlidePart(*program_, u"SpinInterval(Down)"_s);
            QCOMPARE(frmSlide->panInterval.Caption(), u"5 seconds"_s);
            QCOMPARE(state.SlideDelay, 5000);
            QCOMPARE(Program::Focus(), u"SSCommand1"_s);
            ClickSlidePart(*program_, playButton);
            Clock::Turn(4999);
            QCOMPARE(ShownSlide(), u"67A.JPG, 1 of 6, 1967 "_s);
            Clock::Turn(1);
            QCOMPARE(ShownSlide(), u"67B.JPG, 2 of 6, 1967 "_s);
        }));
    }

    void down_from_one_second_is_sixty_and_up_from_sixty_is_one()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, u"SpinInterval(Down)"_s);
            QCOMPARE(frmSlide->panInterval.Caption(), u"60 seconds"_s);
            ClickSlidePart(*program_, u"SpinInterval(Up)"_s);
            QCOMPARE(frmSlide->panInterval.Caption(), u"1 seconds"_s);
        }));
    }

    void the_delay_cannot_be_changed_while_the_show_runs()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, playButton);
            ClickSlidePart(*program_, u"SpinInterval(Up)"_s);
            QCOMPARE(state.SlideDelay, 1000);
        }));
        QCOMPARE(program_->messages.Count(), 0);
    }

    void a_photo_that_vanishes_in_mid_show_is_reported_and_the_show_stays_on_it()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            program_->disc.Remove(u"Torviks/67C.JPG"_s);
            ClickSlidePart(*program_, playButton);
            Clock::Turn(2000);
            QCOMPARE(program_->messages.Count(), 1);
            QCOMPARE(program_->messages.Last().text,
                     u"Error number: ER016\r\n\r\n Unable to load Slide Show photo.\r\n\r\n"
                     "Make sure that the Torvik Vollandry is in the CDROM drive."_s);
            QCOMPARE(frmSlide->Image1.Picture().FileName(), u"67B.JPG"_s);
            QCOMPARE(int(state.PhotoIndex), 3);
            QVERIFY(!frmSlide->SSCommand1.Enabled());
            QVERIFY(!ProgramIsEnding());
            // It is tried again with each tick; back on the disc it is shown.
            program_->disc.AddPhoto(u"67C.JPG"_s);
            Clock::Turn(1000);
            QCOMPARE(ShownSlide(), u"67C.JPG, 3 of 6, 1967 "_s);
            QCOMPARE(program_->messages.Count(), 1);
        }));
    }

    void a_cut_off_photo_is_reported_and_never_shown_half_grey()
    {
        const QByteArray whole = TestDisc::Jpeg(Qt::red, {400, 300});
        program_->disc.AddFile(u"Torviks/67B.JPG"_s, whole.left(whole.size() / 2));
        QVERIFY(InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, playButton);
            Clock::Turn(1000);
            QCOMPARE(state.ErrorCode, u"ER016"_s);
            QCOMPARE(frmSlide->Image1.Picture().FileName(), u"67A.JPG"_s);
        }));
        QCOMPARE(program_->messages.Count(), 1);
    }

    void no_tick_interrupts_the_message_about_a_photo()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            program_->disc.Remove(u"Torviks/67B.JPG"_s);
            program_->messages.WhenAsked([] { Clock::Turn(10'000); });
            ClickSlidePart(*program_, playButton);
            Clock::Turn(1000);
            QCOMPARE(program_->messages.Count(), 1);
            QCOMPARE(int(state.PhotoIndex), 2);
        }));
    }

    void the_next_photo_never_flashes_blank()
    {
        const QList<QColor> colours{Qt::red, Qt::green, Qt::blue};
        for (int number = 0; number < colours.size(); ++number)
            program_->disc.AddPhoto(u"67%1.JPG"_s.arg(QChar(u'A' + number)), colours.at(number), {1200, 900});
        QVERIFY(InSlideShow(*program_, [&] {
            auto& label = static_cast<QLabel&>(frmSlide->Image1.Widget());
            ClickSlidePart(*program_, playButton);
            const PaintWatch watch(label);
            for (int slide = 1; slide < 3; ++slide) {
                QVERIFY(Alike(MiddleOf(label.grab()), colours.at(slide - 1)));
                Clock::Turn(1000);
                program_->Settle();
            }
            QVERIFY(watch.painted.size() >= 4);
            for (const QColor& painted : watch.painted)
                QVERIFY(Alike(painted, colours.at(0)) || Alike(painted, colours.at(1)) ||
                        Alike(painted, colours.at(2)));
            QVERIFY(Alike(watch.painted.last(), colours.at(2)));
        }));
    }

    void each_tick_has_the_next_photos_ready_and_shows_them()
    {
        PhotoImage disc;
        const QList<QColor> colours{Qt::red, Qt::green, Qt::blue, Qt::yellow, Qt::cyan, Qt::magenta};
        for (int number = 0; number < colours.size(); ++number)
            disc.Add(QByteArray("67") + static_cast<char>('A' + number) + ".JPG",
                     TestDisc::Jpeg(colours.at(number), {64, 48}));
        program_.reset();
        program_ = std::make_unique<Program>();
        disc.Stand();
        program_->StartBrowsing();
        const auto isReady = [](const char* name) {
            return frmSlide->Image1.HasReadAhead(u"E:\\Torviks\\"_s + QString::fromLatin1(name));
        };
        QVERIFY(InSlideShow(*program_, [&] {
            const Control& pane = frmSlide->Image1;
            QCOMPARE(ShownSlide(), u"67A.JPG, 1 of 6, 1967 "_s);
            QTRY_VERIFY(isReady("67B.JPG") && isReady("67C.JPG") && isReady("67F.JPG"));
            ClickSlidePart(*program_, playButton);
            Clock::Turn(1000);
            QCOMPARE(ShownSlide(), u"67B.JPG, 2 of 6, 1967 "_s);
            QTRY_VERIFY(isReady("67C.JPG") && isReady("67D.JPG"));

            // What is shown now can only be what was ready.
            disc.Spoil();
            for (int number = 2; number < 4; ++number) {
                Clock::Turn(1000);
                QVERIFY(Alike(MiddleOf(pane.Widget().grab()), colours.at(number)));
            }
            QCOMPARE(ShownSlide(), u"67D.JPG, 4 of 6, 1967 "_s);
            QCOMPARE(program_->messages.Count(), 0);

            Clock::Turn(1000);
            QCOMPARE(state.ErrorCode, u"ER016"_s);
            QCOMPARE(frmSlide->Image1.Picture().FileName(), u"67D.JPG"_s);
        }));
        QCOMPARE(program_->messages.Count(), 1);
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(SlideTimerTest)
#include "slide_timer_test.moc"
