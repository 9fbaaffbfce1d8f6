#include "platform/paths/program_folder.h"
#include "program/photo_list.h"
#include "support/slide_visit.h"
#include "support/test_class.h"
#include "ui/forms/clock.h"
#include "ui/forms/form_window.h"
#include "ui/forms/program_end.h"
#include "windows/play_list_window.h"

#include <QWindow>

using namespace Qt::StringLiterals;
using namespace torvik;

/// The button of the main window that opens the slide show.
class OpenSlideShowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 3);
        program_->disc.AddGroup(u"68"_s, 2);
        program_->disc.AddGroup(u"A0"_s, 1);
        program_->disc.AddGroup(u"VC"_s, 1);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void the_show_opens_paused_on_the_photo_of_the_main_window()
    {
        program_->Click(Form1->cmdYR(2));
        QVERIFY(InSlideShow(*program_, [&] {
            QCOMPARE(ShownSlide(), u"68A.JPG, 4 of 7, 1968 "_s);
            QVERIFY(frmSlide->pnlPhotoNumber.Visible());
            QVERIFY(frmSlide->panYear.Visible());
            QCOMPARE(int(state.PhotoIndex), 4);
            QCOMPARE(frmSlide->Timer1.Interval(), 0);
            Clock::Turn(120'000);
            QCOMPARE(ShownSlide(), u"68A.JPG, 4 of 7, 1968 "_s);
        }));
    }

    void the_show_starts_with_a_delay_of_one_second()
    {
        state.SlideDelay = 15000;
        Form1->panInterval.SetCaption(u"15 Seconds"_s);
        QVERIFY(InSlideShow(*program_, [&] {
            QCOMPARE(state.SlideDelay, 1000);
            QCOMPARE(frmSlide->panInterval.Caption(), u" 1 second"_s);
            QVERIFY(frmSlide->SpinInterval.Enabled());
        }));
        QCOMPARE(Form1->panInterval.Caption(), u"15 Seconds"_s); // the panel of the screen saver
    }

    void a_delay_chosen_in_an_earlier_show_is_not_kept()
    {
        InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, u"SpinInterval(Up)"_s);
            QCOMPARE(state.SlideDelay, 2000);
        });
        QVERIFY(InSlideShow(*program_, [&] {
            QCOMPARE(state.SlideDelay, 1000);
            QCOMPARE(frmSlide->panInterval.Caption(), u" 1 second"_s);
        }));
    }

    void the_window_takes_the_place_and_size_of_the_main_window()
    {
        Form1->SetLeft(300);
        Form1->SetTop(450);
        Form1->SetWidth(11994);
        Form1->SetHeight(9100);
        QVERIFY(InSlideShow(*program_, [] {
            QCOMPARE(frmSlide->Left(), 300.0);
            QCOMPARE(frmSlide->Top(), 450.0);
            QCOMPARE(frmSlide->Width(), 11994.0);
            QCOMPARE(frmSlide->Height(), 9100.0);
        }));
    }

    void over_a_maximized_main_window_the_show_stands_exactly_on_it()
    {
        Form1->SetLeft(300);
        Form1->SetTop(450);
        Form1->SetWidth(9000);
        Form1->SetHeight(7500);
        QTRY_VERIFY(!Form1->IsSettling());
        Form1->Window().setWindowState(Qt::WindowMaximized);
        QTRY_VERIFY(Form1->Left() == 0.0 && !Form1->IsSettling());
        const QRect covered = Form1->Window().windowHandle()->frameGeometry();
        QVERIFY(InSlideShow(
            *program_, [&] { QTRY_COMPARE(frmSlide->Window().windowHandle()->frameGeometry(), covered); }));
    }

    void the_show_is_modal_and_marked_as_open()
    {
        QVERIFY(!state.SlideShowOpen);
        QVERIFY(InSlideShow(*program_, [] {
            QCOMPARE(QApplication::activeModalWidget(), static_cast<QWidget*>(&frmSlide->Window()));
            QVERIFY(state.SlideShowOpen);
        }));
        QVERIFY(!frmSlide.IsLoaded());
    }

    void an_open_play_list_is_taken_away()
    {
        program_->Click(Form1->Image4, Qt::RightButton);
        QVERIFY(frmSSPhoto->Visible());
        Form1->SetEnabled(true);
        QVERIFY(InSlideShow(*program_, [] { QVERIFY(!frmSSPhoto->Visible()); }));
    }

    void without_a_photo_the_form_keeps_its_own_picture_and_has_the_caption_of_the_first_photo()
    {
        state.ShownPhotoIndex = 0;
        QVERIFY(InSlideShow(*program_, [] {
            QCOMPARE(frmSlide->Image1.Picture().FileName(), u"slide_show.jpg"_s);
            QVERIFY(!frmSlide->pnlPhotoNumber.Visible());
            QCOMPARE(frmSlide->panYear.Caption(), u"1967 "_s);
            QCOMPARE(int(state.PhotoIndex), 0);
        }));
    }

    void after_a_copy_of_the_photos_the_caption_is_that_of_the_year()
    {
        program_->AddToProgramFolder(u"Torviks/68A.JPG"_s, TestDisc::Jpeg(Qt::red, {8, 8}));
        state.PhotoRoot = ProgramFolder();
        BuildPhotoSet();
        QVERIFY(InSlideShow(*program_, [] { QCOMPARE(ShownSlide(), u"68A.JPG, 1 of 1, 1968 "_s); }));
    }

    void after_a_title_without_photos_the_show_opens_on_nothing()
    {
        program_->Click(Form1->cmdYR(4)); // no photo of 1970 is on the disc
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(int(state.ShownPhotoIndex), 8);
        QVERIFY(InSlideShow(*program_, [&] {
            QVERIFY(frmSlide->Image1.Picture().IsEmpty());
            QCOMPARE(frmSlide->pnlPhotoNumber.Caption(), u"8 of 7"_s);
            QVERIFY(frmSlide->pnlPhotoNumber.Visible());
            QCOMPARE(frmSlide->panYear.Caption(), u"19 "_s);
            QCOMPARE(int(state.PhotoIndex), 8);
            ClickSlidePart(*program_, u"mmSlide(Prev)"_s);
            QCOMPARE(ShownSlide(), u"VCA.JPG, 7 of 7, Torvik Cookies "_s);
        }));
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(Form1->panYear.Caption(), u"1970"_s);
        QVERIFY(!ProgramIsEnding());
    }

    void on_a_title_without_photos_forward_stays_where_every_way_back_begins_data()
    {
        QTest::addColumn<QString>("press");
        QTest::addColumn<QString>("shown");
        QTest::newRow("back") << u"mmSlide(Prev)"_s << u"VCA.JPG, 7 of 7, Torvik Cookies "_s;
        QTest::newRow("jump forward") << u"mmSlide(Step)"_s << u"67A.JPG, 1 of 7, 1967 "_s;
        QTest::newRow("jump back") << u"mmSlide(Back)"_s << u"VCA.JPG, 7 of 7, Torvik Cookies "_s;
        QTest::newRow("play") << u"mmSlide(Play)"_s << u"67A.JPG, 1 of 7, 1967 "_s;
    }

    void on_a_title_without_photos_forward_stays_where_every_way_back_begins()
    {
        QFETCH(QString, press);
        QFETCH(QString, shown);
        program_->Click(Form1->cmdYR(4));
        program_->messages.Clear();
        QVERIFY(InSlideShow(*program_, [&] {
            for (int time = 0; time < 3; ++time) {
                program_->Press(Qt::Key_Period);
                QCOMPARE(int(state.PhotoIndex), 8);
                QCOMPARE(frmSlide->pnlPhotoNumber.Caption(), u"8 of 7"_s);
            }
            ClickSlidePart(*program_, press);
            Clock::Turn(press.contains(u"Play"_s) ? 2000 : 0);
            QCOMPARE(ShownSlide(), shown);
        }));
        QCOMPARE(program_->messages.Count(), 0);
    }

    void a_show_that_opens_on_nothing_runs_from_the_first_photo()
    {
        program_->Click(Form1->cmdYR(4));
        QVERIFY(InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, u"mmSlide(Play)"_s);
            Clock::Turn(2000); // the first tick goes back to the start
            QCOMPARE(ShownSlide(), u"67A.JPG, 1 of 7, 1967 "_s);
        }));
        QCOMPARE(program_->messages.Count(), 1);
    }

    void a_code_that_is_no_number_becomes_67_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("inTheShow");
        QTest::newRow("a year") << u"68"_s << u"68"_s;
        QTest::newRow("2000 as restored") << u"00"_s << u"00"_s;
        QTest::newRow("2000") << u"A0"_s << u"67"_s;
        QTest::newRow("a topic") << u"VC"_s << u"67"_s;
        QTest::newRow("a topic with a digit") << u"M1"_s << u"67"_s;
        QTest::newRow("none") << QString() << u"67"_s;
    }

    void a_code_that_is_no_number_becomes_67()
    {
        QFETCH(QString, code);
        QFETCH(QString, inTheShow);
        state.YearCode = code;
        QVERIFY(InSlideShow(*program_, [&] { QCOMPARE(state.YearCode, inTheShow); }));
    }

    void the_show_runs_on_through_other_years_to_the_end_of_all_photos()
    {
        program_->Click(Form1->cmdYR(2));
        QVERIFY(InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, u"mmSlide(Play)"_s);
            for (const char* slide :
                 {"68B.JPG, 5 of 7, 1968 ", "A0A.JPG, 6 of 7, 2000", "VCA.JPG, 7 of 7, Torvik Cookies "}) {
                Clock::Turn(1000);
                QCOMPARE(ShownSlide(), QString::fromLatin1(slide));
            }
        }));
    }

    void the_layout_for_640_by_480_is_for_that_size_alone_data()
    {
        QTest::addColumn<QSize>("screen");
        QTest::addColumn<bool>("isSmall");
        QTest::newRow("640 x 480") << QSize(640, 480) << true;
        QTest::newRow("smaller") << QSize(320, 240) << false;
        QTest::newRow("as wide") << QSize(640, 400) << false;
        QTest::newRow("as high") << QSize(720, 480) << false;
        QTest::newRow("800 x 600") << QSize(800, 600) << false;
        QTest::newRow("1920 x 1080") << QSize(1920, 1080) << false;
    }

    void the_layout_for_640_by_480_is_for_that_size_alone()
    {
        QFETCH(QSize, screen);
        QFETCH(bool, isSmall);
        program_->SetScreen(screen);
        QVERIFY(InSlideShow(*program_, [&] { QCOMPARE(frmSlide->mmSlide.Top() == 6140, isSmall); }));
    }

    void the_small_layout_does_not_add_up_over_shows()
    {
        program_->SetScreen({640, 480});
        double first = 0;
        InSlideShow(*program_, [&] { first = frmSlide->Image1.Width(); });
        QVERIFY(InSlideShow(*program_, [&] { QCOMPARE(frmSlide->Image1.Width(), first); }));
        QVERIFY(first > 0);
    }

    void the_return_is_pending_when_the_main_window_is_active_again()
    {
        QList<bool> pending;
        const auto handler = Form1->Activate;
        Form1->Activate = [&] {
            pending.append(state.SlideRestorePending);
            handler.Call();
        };
        QVERIFY(InSlideShow(*program_, [] { QVERIFY(!state.SlideRestorePending); }));
        QVERIFY(pending.contains(true));
        QVERIFY(!state.SlideRestorePending);
    }

    void a_photo_that_is_gone_ends_the_program_with_its_failure()
    {
        program_->disc.Remove(u"Torviks/67A.JPG"_s);
        QVERIFY(!InSlideShow(*program_, [] {}));
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(program_->messages.Last().text, u"Run-time error '53':\r\n\r\nFile not found"_s);
        QVERIFY(ProgramIsEnding());
    }

    void a_photo_that_is_cut_off_ends_the_program_with_its_failure()
    {
        const QByteArray whole = TestDisc::Jpeg(Qt::red, {64, 48});
        program_->disc.AddFile(u"Torviks/67A.JPG"_s, whole.left(whole.size() / 2));
        QVERIFY(!InSlideShow(*program_, [] {}));
        QCOMPARE(program_->messages.Last().text, u"Run-time error '481':\r\n\r\nInvalid picture"_s);
        QVERIFY(ProgramIsEnding());
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(OpenSlideShowTest)
#include "open_slide_show_test.moc"
