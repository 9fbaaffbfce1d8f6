#include "support/slide_visit.h"
#include "support/test_class.h"
#include "ui/forms/clock.h"
#include "ui/forms/program_end.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// Going to another photo of a show that is paused.
class SlideStepsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 24); // 67A to 67X
        program_->disc.AddGroup(u"VC"_s, 1);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void each_step_goes_where_it_says_data()
    {
        QTest::addColumn<QString>("press");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        const auto row = [](const char* press, int from, int to) {
            QTest::addRow("%s from %d", press, from) << QString::fromLatin1(press) << from << to;
        };
        row("mmSlide(Next)", 5, 6);
        row("mmSlide(Next)", 25, 1);
        row("mmSlide(Next)", 0, 1);
        row("mmSlide(Prev)", 5, 4);
        row("mmSlide(Prev)", 2, 1);
        row("mmSlide(Prev)", 1, 25);
        row("mmSlide(Prev)", 0, 25);
        row("mmSlide(Back)", 20, 10);
        row("mmSlide(Back)", 11, 1);
        row("mmSlide(Back)", 10, 25);
        row("mmSlide(Back)", 7, 25);
        row("mmSlide(Step)", 1, 11);
        row("mmSlide(Step)", 14, 24);
        row("mmSlide(Step)", 15, 1); // it would have ended on the last one
        row("mmSlide(Step)", 16, 1);
        row("mmSlide(Step)", 25, 1);
        row("SSCommand1", 9, 1);
        row("SSCommand2", 9, 12); // half of 25, halves to the even neighbour
    }

    void each_step_goes_where_it_says()
    {
        QFETCH(QString, press);
        QFETCH(int, from);
        QFETCH(int, to);
        QVERIFY(InSlideShow(*program_, [&] {
            state.PhotoIndex = from;
            frmSlide->cmdExit.SetFocus();
            ClickSlidePart(*program_, press);
            QCOMPARE(int(state.PhotoIndex), to);
            QCOMPARE(frmSlide->Image1.Picture().FileName(), state.PhotoFiles(to).mid(11));
            QCOMPARE(frmSlide->pnlPhotoNumber.Caption(), u"%1 of 25"_s.arg(to));
            QCOMPARE(Program::Focus(), u"SSCommand1"_s);
        }));
        QCOMPARE(program_->messages.Count(), 0);
    }

    void after_play_twice_on_the_last_photo_forward_stays_where_every_way_back_begins_data()
    {
        QTest::addColumn<QString>("press");
        QTest::addColumn<QString>("shown");
        QTest::newRow("back") << u"mmSlide(Prev)"_s << u"VCA.JPG, 25 of 25, Torvik Cookies "_s;
        QTest::newRow("jump forward") << u"mmSlide(Step)"_s << u"67A.JPG, 1 of 25, 1967 "_s;
        QTest::newRow("jump back") << u"mmSlide(Back)"_s << u"67P.JPG, 16 of 25, 1967 "_s;
        QTest::newRow("play") << u"mmSlide(Play)"_s << u"67A.JPG, 1 of 25, 1967 "_s;
    }

    void after_play_twice_on_the_last_photo_forward_stays_where_every_way_back_begins()
    {
        QFETCH(QString, press);
        QFETCH(QString, shown);
        QVERIFY(InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, u"mmSlide(Prev)"_s);
            QCOMPARE(ShownSlide(), u"VCA.JPG, 25 of 25, Torvik Cookies "_s);
            for (const char* part : {"mmSlide(Play)", "mmSlide(Play)", "mmSlide(Pause)"})
                ClickSlidePart(*program_, QString::fromLatin1(part));
            for (int time = 0; time < 3; ++time) {
                ClickSlidePart(*program_, u"mmSlide(Next)"_s);
                QCOMPARE(ShownSlide(), u", 26 of 25, 19 "_s);
                QCOMPARE(int(state.PhotoIndex), 26);
            }
            ClickSlidePart(*program_, press);
            Clock::Turn(press.contains(u"Play"_s) ? 2000 : 0);
            QCOMPARE(ShownSlide(), shown);
        }));
        QCOMPARE(program_->messages.Count(), 0);
    }

    void the_photos_of_the_next_steps_are_read_ahead()
    {
        const auto isReady = [](int index) { return frmSlide->Image1.HasReadAhead(state.PhotoFiles(index)); };
        QVERIFY(InSlideShow(*program_, [&] {
            state.PhotoIndex = 5;
            ClickSlidePart(*program_, u"mmSlide(Next)"_s);
            QTRY_VERIFY(isReady(7) && isReady(8) && isReady(5));
            ClickSlidePart(*program_, u"mmSlide(Next)"_s);
            QCOMPARE(frmSlide->Image1.Picture().FileName(), u"67G.JPG"_s);
            state.PhotoIndex = 2;
            ClickSlidePart(*program_, u"mmSlide(Prev)"_s);
            QTRY_VERIFY(isReady(25) && isReady(24) && isReady(2)); // round the beginning
        }));
        QCOMPARE(program_->messages.Count(), 0);
    }

    void a_step_shows_the_caption_of_the_photo()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, u"mmSlide(Prev)"_s);
            QCOMPARE(ShownSlide(), u"VCA.JPG, 25 of 25, Torvik Cookies "_s);
            ClickSlidePart(*program_, u"mmSlide(Next)"_s);
            QCOMPARE(ShownSlide(), u"67A.JPG, 1 of 25, 1967 "_s);
        }));
    }

    void what_a_step_leaves_behind_data()
    {
        QTest::addColumn<QString>("press");
        QTest::addColumn<bool>("showsPosition");
        QTest::newRow("forward") << u"mmSlide(Next)"_s << true;
        QTest::newRow("back") << u"mmSlide(Prev)"_s << true;
        QTest::newRow("jump back") << u"mmSlide(Back)"_s << true;
        QTest::newRow("jump forward") << u"mmSlide(Step)"_s << false;
    }

    void what_a_step_leaves_behind()
    {
        QFETCH(QString, press);
        QFETCH(bool, showsPosition);
        QVERIFY(InSlideShow(*program_, [&] {
            frmSlide->pnlPhotoNumber.Hide();
            frmSlide->panYear.Hide();
            state.SlideRestorePending = true;
            state.TorviksPathPos = 0;
            ClickSlidePart(*program_, press);
            QCOMPARE(frmSlide->pnlPhotoNumber.Visible(), showsPosition);
            QVERIFY(frmSlide->panYear.Visible());
            QVERIFY(!state.SlideRestorePending);
            QCOMPARE(int(state.TorviksPathPos), 3);
        }));
    }

    void comma_and_period_step_with_and_without_shift()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            QCOMPARE(Program::Focus(), u"SSCommand1"_s);
            for (const auto& [key, shown] : {std::pair{Qt::Key_Period, "67B.JPG"},
                                             {Qt::Key_Greater, "67C.JPG"},
                                             {Qt::Key_Comma, "67B.JPG"},
                                             {Qt::Key_Less, "67A.JPG"}}) {
                program_->Press(key);
                QCOMPARE(frmSlide->Image1.Picture().FileName(), QString::fromLatin1(shown));
            }
        }));
    }

    void other_keys_do_nothing()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            const QString before = ShownSlide();
            for (const Qt::Key key : {Qt::Key_A, Qt::Key_5, Qt::Key_Slash, Qt::Key_F5, Qt::Key_Escape})
                program_->Press(frmSlide->SSCommand1, key);
            QCOMPARE(ShownSlide(), before);
        }));
    }

    void the_beginning_is_always_captioned_1967()
    {
        Restart(u"72"_s, 2);
        state.ShownPhotoIndex = 2;
        QVERIFY(InSlideShow(*program_, [&] {
            frmSlide->Image1.Hide();
            frmSlide->panYear.Hide();
            frmSlide->pnlPhotoNumber.Hide();
            program_->Click(frmSlide->SSCommand1);
            QCOMPARE(ShownSlide(), u"72A.JPG, 1 of 2, 1967"_s);
            for (const Control* control : std::initializer_list<const Control*>{
                     &frmSlide->Image1, &frmSlide->panYear, &frmSlide->pnlPhotoNumber})
                QVERIFY(control->Visible());
        }));
    }

    void the_middle_has_a_plain_caption_for_a_topic_too()
    {
        Restart(u"VC"_s, 5);
        QVERIFY(InSlideShow(*program_, [&] {
            frmSlide->Image1.Hide();
            frmSlide->panYear.Hide();
            frmSlide->pnlPhotoNumber.Hide();
            state.TorviksPathPos = 0;
            program_->Click(frmSlide->SSCommand2);
            QCOMPARE(ShownSlide(), u"VCB.JPG, 2 of 5, 19VC"_s); // 5 / 2 gives 2
            QCOMPARE(int(state.TorviksPathPos), 3);
            for (const Control* control : std::initializer_list<const Control*>{
                     &frmSlide->Image1, &frmSlide->panYear, &frmSlide->pnlPhotoNumber})
                QVERIFY(control->Visible());
        }));
    }

    void the_middle_of_seven_is_the_fourth()
    {
        Restart(u"67"_s, 7);
        QVERIFY(InSlideShow(*program_, [&] {
            program_->Click(frmSlide->SSCommand2);
            QCOMPARE(ShownSlide(), u"67D.JPG, 4 of 7, 1967"_s);
        }));
    }

    void the_middle_of_one_photo_asks_for_photo_0_and_ends_the_program()
    {
        Restart(u"67"_s, 1);
        QVERIFY(InSlideShow(*program_, [&] { program_->Click(frmSlide->SSCommand2); }));
        QCOMPARE(int(state.PhotoIndex), 0);
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(program_->messages.Last().text, u"Run-time error '9':\r\n\r\nSubscript out of range"_s);
        QVERIFY(ProgramIsEnding());
    }

    void a_photo_that_is_gone_is_reported_and_the_old_one_stays_data()
    {
        QTest::addColumn<QString>("press");
        QTest::addColumn<int>("from");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("position");
        QTest::newRow("jump back") << u"mmSlide(Back)"_s << 12 << u"ER013"_s
                                   << u"1 of 25"_s; // not written anew
        QTest::newRow("forward") << u"mmSlide(Next)"_s << 1 << u"ER014"_s << u"2 of 25"_s;
        QTest::newRow("back") << u"mmSlide(Prev)"_s << 3 << u"ER015"_s << u"2 of 25"_s;
        QTest::newRow("jump forward") << u"mmSlide(Step)"_s << -8 << u"ER018"_s << u"2 of 25"_s;
    }

    void a_photo_that_is_gone_is_reported_and_the_old_one_stays()
    {
        QFETCH(QString, press);
        QFETCH(int, from);
        QFETCH(QString, code);
        QFETCH(QString, position);
        QVERIFY(InSlideShow(*program_, [&] {
            program_->disc.Remove(u"Torviks/67B.JPG"_s);
            state.PhotoIndex = from;
            frmSlide->cmdExit.SetFocus();
            ClickSlidePart(*program_, press);
            QCOMPARE(program_->messages.Count(), 1);
            QCOMPARE(program_->messages.Last().text,
                     u"Error number: %1\r\n\r\n Unable to load Slide Show photo.\r\n\r\n"
                     "Make sure that the Torvik Vollandry is in the CDROM drive."_s.arg(code));
            QCOMPARE(program_->messages.Last().style, 16);
            QCOMPARE(program_->messages.Last().title, u"The Torvik Vollandry"_s);
            QCOMPARE(int(state.PhotoIndex), 2);
            QCOMPARE(frmSlide->Image1.Picture().FileName(), u"67A.JPG"_s);
            QCOMPARE(frmSlide->pnlPhotoNumber.Caption(), position);
            QCOMPARE(Program::Focus(), u"SSCommand1"_s);
            QVERIFY(!ProgramIsEnding());
        }));
    }

    void a_cut_off_photo_is_reported_like_one_that_is_gone()
    {
        const QByteArray whole = TestDisc::Jpeg(Qt::red, {64, 48});
        program_->disc.AddFile(u"Torviks/67B.JPG"_s, whole.left(whole.size() - 20));
        QVERIFY(InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, u"mmSlide(Next)"_s);
            QCOMPARE(state.ErrorCode, u"ER014"_s);
            QCOMPARE(frmSlide->Image1.Picture().FileName(), u"67A.JPG"_s);
            ClickSlidePart(*program_, u"mmSlide(Next)"_s);
            QCOMPARE(ShownSlide(), u"67C.JPG, 3 of 25, 1967 "_s);
        }));
        QCOMPARE(program_->messages.Count(), 1);
    }

    void a_step_that_succeeds_leaves_the_error_code_alone()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            state.ErrorCode = u"ER055"_s;
            for (const char* press : {"mmSlide(Next)", "mmSlide(Prev)", "mmSlide(Back)", "mmSlide(Step)"})
                ClickSlidePart(*program_, QString::fromLatin1(press));
            QCOMPARE(state.ErrorCode, u"ER055"_s);
        }));
    }

    void beginning_and_middle_have_no_trap_data()
    {
        QTest::addColumn<QString>("press");
        QTest::addColumn<QString>("gone");
        QTest::newRow("Beginning") << u"SSCommand1"_s << u"Torviks/67A.JPG"_s;
        QTest::newRow("Middle") << u"SSCommand2"_s << u"Torviks/67L.JPG"_s;
    }

    void beginning_and_middle_have_no_trap()
    {
        QFETCH(QString, press);
        QFETCH(QString, gone);
        QVERIFY(InSlideShow(*program_, [&] {
            program_->disc.Remove(gone);
            ClickSlidePart(*program_, press);
        }));
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(program_->messages.Last().text, u"Run-time error '53':\r\n\r\nFile not found"_s);
        QVERIFY(ProgramIsEnding());
    }

private:
    /// The program anew, with a disc of one group.
    void Restart(const QString& prefix, int count)
    {
        program_.reset();
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(prefix, count);
        program_->StartBrowsing();
        program_->messages.Clear();
        state.ShownPhotoIndex = 1;
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(SlideStepsTest)
#include "slide_steps_test.moc"
