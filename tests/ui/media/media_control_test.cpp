#include "runtime/failure.h"
#include "support/discs/picture_bytes.h"
#include "support/discs/test_movie.h"
#include "support/logged_messages.h"
#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/image.h"
#include "ui/forms/clock.h"
#include "ui/media/media_control.h"
#include "ui/media/video_pane.h"

#include <QElapsedTimer>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

using Mode = MediaControl::Mode;

struct ScreenForm : Form {
    ScreenForm() : Form(DesignOf(u"Cinema"_s)) {}
    Image PicMovie{*this, u"PicMovie"_s, {0, 0, 2400, 1800}}; // 160 by 120 pixels
    Image Other{*this, u"Other"_s, {2400, 0, 2400, 900}};     // 160 by 60
    MediaControl Device{u"MMControl1"_s};
};

FormHandle<ScreenForm> cinema;

/// The pane with the movie's pictures on a control; null while there is none on show.
VideoPane* PaneOn(const Control& control)
{
    auto* pane =
        dynamic_cast<VideoPane*>(control.Widget().findChild<QWidget*>(control.Name() + u"(Video)"_s));
    return pane == nullptr || pane->isHidden() ? nullptr : pane;
}

QImage Shown()
{
    const VideoPane* pane = PaneOn(cinema->PicMovie);
    return pane == nullptr ? QImage() : pane->Picture();
}

void Do(std::initializer_list<const char*> words)
{
    for (const char* word : words)
        cinema->Device.Command(QString::fromLatin1(word));
}

QByteArray Wave()
{
    return TestMovie::Wav();
}

} // namespace

/// A media device that is driven by commands, on a machine that may have no sound at all.
class MediaControlTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        room_ = std::make_unique<UiRoom>();
        Clock::StopAt(QDateTime(QDate(2001, 6, 17), QTime(14, 5, 9)));
        QVERIFY(UiRoom::Open(*cinema));
    }
    void cleanup() { room_.reset(); }

    // Movies

    void an_open_movie_stands_at_its_beginning_and_shows_nothing_yet()
    {
        OpenMovie();
        QCOMPARE(cinema->Device.State(), Mode::Stopped);
        QCOMPARE(cinema->Device.Position(), 0);
        QVERIFY(std::abs(cinema->Device.Length() - 2000) < 100);
        Turn(500);
        QCOMPARE(cinema->Device.Position(), 0);
        QVERIFY(Shown().isNull());
    }

    void a_playing_movie_shows_its_pictures_at_their_time_and_ends()
    {
        OpenMovie();
        Do({"play"});
        QCOMPARE(cinema->Device.State(), Mode::Playing);
        QTRY_VERIFY(!Shown().isNull());
        const QImage first = Shown();
        QCOMPARE(first.size(), QSize(TestMovie::width, TestMovie::height));
        Turn(1000);
        QTRY_COMPARE(cinema->Device.Position(), 1000);
        QTRY_VERIFY(Shown() != first);
        Turn(1500);
        QTRY_COMPARE(cinema->Device.State(), Mode::Stopped);
        QCOMPARE(cinema->Device.Position(), cinema->Device.Length());
        Turn(1500);
        QCOMPARE(cinema->Device.State(), Mode::Stopped);
    }

    void every_picture_of_a_movie_comes_on_the_screen()
    {
        OpenMovie();
        QList<QImage> seen;
        Do({"play"});
        for (int picture = 0; picture < TestMovie::pictures; ++picture) {
            QTRY_VERIFY2(!Shown().isNull() && (seen.isEmpty() || Shown() != seen.last()),
                         qPrintable(QString::number(picture)));
            seen.append(Shown());
            Clock::Turn(67);
        }
        QTRY_COMPARE((Clock::Turn(20), cinema->Device.State()), Mode::Stopped);
        QCOMPARE(seen.size(), TestMovie::pictures);
    }

    void stop_stands_still_and_prev_goes_back_to_the_first_picture()
    {
        OpenMovie();
        Do({"play"});
        QTRY_VERIFY(!Shown().isNull());
        const QImage first = Shown();
        Turn(1000);
        QTRY_VERIFY(cinema->Device.Position() == 1000 && Shown() != first);
        Do({"stop"});
        QCOMPARE(cinema->Device.State(), Mode::Stopped);
        Turn(700);
        QCOMPARE(cinema->Device.Position(), 1000);
        Do({"prev"});
        QCOMPARE(cinema->Device.Position(), 0);
        QTRY_COMPARE(Shown(), first);
        QCOMPARE(cinema->Device.State(), Mode::Stopped);
    }

    void prev_while_it_plays_stops_it_at_the_beginning()
    {
        OpenMovie();
        Do({"play"});
        QTRY_VERIFY(!Shown().isNull());
        Turn(500);
        QTRY_COMPARE(cinema->Device.Position(), 500);
        Do({"prev"});
        QCOMPARE(cinema->Device.State(), Mode::Stopped);
        QCOMPARE(cinema->Device.Position(), 0);
    }

    void pause_holds_the_movie_and_goes_on_with_it()
    {
        OpenMovie();
        Do({"pause"});
        QCOMPARE(cinema->Device.State(), Mode::Stopped);
        Do({"play"});
        QTRY_VERIFY(!Shown().isNull());
        Turn(600);
        QTRY_COMPARE(cinema->Device.Position(), 600);
        Do({"pause"});
        QCOMPARE(cinema->Device.State(), Mode::Paused);
        Turn(400);
        UiRoom::Settle();
        QCOMPARE(cinema->Device.Position(), 600);
        Do({"pause"});
        QCOMPARE(cinema->Device.State(), Mode::Playing);
        QTRY_VERIFY((Clock::Turn(10), cinema->Device.Position() > 600));
        Do({"pause", "play"});
        QCOMPARE(cinema->Device.State(), Mode::Playing);
    }

    void step_and_back_go_one_picture()
    {
        OpenMovie();
        Do({"step"});
        QTRY_VERIFY(!Shown().isNull());
        const QImage second = Shown();
        QVERIFY(std::abs(cinema->Device.Position() - 67) <= 1);
        Do({"step"});
        QTRY_VERIFY(Shown() != second);
        const QImage third = Shown();
        QVERIFY(std::abs(cinema->Device.Position() - 133) <= 1);
        Do({"back"});
        QTRY_COMPARE(Shown(), second);
        Do({"step"});
        QTRY_COMPARE(Shown(), third);
        Do({"back"});
        QTRY_COMPARE(Shown(), second);
        Do({"back"});
        QTRY_VERIFY(Shown() != second);
        QCOMPARE(cinema->Device.Position(), 0);
        Do({"back"});
        UiRoom::Settle();
        QCOMPARE(cinema->Device.Position(), 0);
    }

    void next_goes_to_the_last_picture_and_play_begins_again_from_there()
    {
        OpenMovie();
        Do({"next"});
        QCOMPARE(cinema->Device.Position(), cinema->Device.Length());
        QTRY_VERIFY(!Shown().isNull());
        const QImage last = Shown();
        Do({"step"});
        UiRoom::Settle();
        QCOMPARE(Shown(), last);
        Do({"next", "play"});
        QTRY_VERIFY(Shown() != last);
        QCOMPARE(cinema->Device.State(), Mode::Playing);
        QVERIFY(cinema->Device.Position() < 1000);
    }

    void a_command_given_before_the_file_is_known_is_carried_out_then()
    {
        SetMovie();
        Do({"open", "next"});
        QTRY_VERIFY(cinema->Device.Length() > 0);
        QTRY_COMPARE(cinema->Device.Position(), cinema->Device.Length());
        Do({"open", "play"});
        QTRY_VERIFY(!Shown().isNull());
        QCOMPARE(cinema->Device.State(), Mode::Playing);
    }

    void a_place_is_sought_while_it_stands_and_while_it_plays()
    {
        OpenMovie();
        cinema->Device.Seek(1500);
        QCOMPARE(cinema->Device.Position(), 1500);
        QTRY_VERIFY(!Shown().isNull());
        QCOMPARE(cinema->Device.State(), Mode::Stopped);
        Do({"play"});
        cinema->Device.Seek(200);
        QCOMPARE(cinema->Device.State(), Mode::Playing);
        QTRY_VERIFY((Clock::Turn(10), cinema->Device.Position() > 200));
        QVERIFY(cinema->Device.Position() < 1500);
        cinema->Device.Seek(-50);
        QCOMPARE(cinema->Device.Position(), 0);
        cinema->Device.Seek(1'000'000);
        QCOMPARE(cinema->Device.Position(), cinema->Device.Length());
    }

    void the_display_may_be_given_before_or_after_the_movie_was_opened()
    {
        SetMovie();
        cinema->Device.SetDisplay(nullptr);
        Do({"open", "play"});
        QTRY_VERIFY(cinema->Device.Length() > 0);
        Turn(100);
        QVERIFY(Shown().isNull());
        cinema->Device.SetDisplay(&cinema->PicMovie);
        QTRY_VERIFY((Clock::Turn(20), !Shown().isNull()));
    }

    void the_display_may_change_while_pictures_are_on_show()
    {
        OpenMovie();
        Do({"step"});
        QTRY_VERIFY(!Shown().isNull());
        const QImage picture = Shown();
        cinema->Device.SetDisplay(&cinema->Other);
        QVERIFY(PaneOn(cinema->PicMovie) == nullptr);
        QVERIFY(PaneOn(cinema->Other) != nullptr);
        QCOMPARE(PaneOn(cinema->Other)->Picture(), picture);
        QCOMPARE(PaneOn(cinema->Other)->PlaceOfPicture(), QRect(40, 0, 80, 60));
        cinema->Device.SetDisplay(nullptr);
        QVERIFY(PaneOn(cinema->Other) == nullptr);
        Do({"step"});
        UiRoom::Settle();
    }

    void close_gives_the_display_back_its_own_picture()
    {
        OpenMovie();
        Do({"play"});
        QTRY_VERIFY(!Shown().isNull());
        Do({"close"});
        QVERIFY(Shown().isNull());
        QCOMPARE(cinema->Device.State(), Mode::NotOpen);
        QCOMPARE(cinema->Device.Position(), 0);
        QCOMPARE(cinema->Device.Length(), 0);
    }

    void a_sound_device_shows_no_pictures()
    {
        OpenMovie();
        cinema->Device.SetDeviceType(u"WaveAudio"_s);
        Do({"play"});
        QTRY_VERIFY((Clock::Turn(50), cinema->Device.Position() > 500));
        QVERIFY(Shown().isNull());
    }

    void a_sound_ends_without_an_audio_device()
    {
        MediaControl& device = cinema->Device;
        device.SetDeviceType(u"WaveAudio"_s);
        device.SetFileName(folder_.Add(u"horns.wav"_s, Wave()));
        Do({"open", "play"});
        QTRY_VERIFY(device.Length() > 0);
        QCOMPARE(device.State(), Mode::Playing);
        QTRY_COMPARE((Clock::Turn(200), device.State()), Mode::Stopped);
        QVERIFY(std::abs(device.Position() - 2000) < 100);
        Do({"step", "back"}); // a sound has no pictures
        QVERIFY(std::abs(device.Position() - 2000) < 100);
    }

    void a_sound_that_stands_lets_the_machine_rest()
    {
        MediaControl& device = cinema->Device;
        device.SetFileName(folder_.Add(u"horns.wav"_s, Wave()));
        Do({"open", "play"});
        QTRY_VERIFY((Clock::Turn(50), device.Position() > 200));
        const auto* ticks = device.findChild<QTimer*>();
        QVERIFY(ticks->isActive());
        Do({"stop", "prev"});
        QCOMPARE(device.Position(), 0);
        QTRY_VERIFY(!ticks->isActive());
    }

    void a_movie_whose_file_is_deleted_while_it_plays_goes_on_to_an_end()
    {
        OpenMovie();
        Do({"play"});
        QTRY_VERIFY(!Shown().isNull());
        folder_.Remove(u"movie.avi"_s);
        QTRY_COMPARE((Clock::Turn(100), cinema->Device.State()), Mode::Stopped);
        Do({"prev", "play", "stop", "close", "open", "play"});
        QTRY_COMPARE(cinema->Device.State(), Mode::NotOpen);
        QVERIFY(cinema->Device.IsOpen());
    }

    void a_movie_that_ends_early_stops_where_it_ends()
    {
        const QByteArray whole = TestMovie::Avi();
        OpenMovie(whole.left(whole.size() / 2));
        Do({"play"});
        QTRY_COMPARE((Clock::Turn(100), cinema->Device.State()), Mode::Stopped);
        QVERIFY(cinema->Device.Position() < 1700);
        QVERIFY(cinema->Device.Position() > 300);
        QCOMPARE(cinema->Device.Position(), cinema->Device.Length());
    }

    void a_file_of_another_kind_is_not_open_soon_after_data()
    {
        a_missing_or_damaged_file_stays_silent_data();
    }
    void a_file_of_another_kind_is_not_open_soon_after()
    {
        QFETCH(const QByteArray, bytes);
        MediaControl& device = cinema->Device;
        device.SetFileName(bytes.isEmpty() ? folder_.PathOf(u"none.avi"_s)
                                           : folder_.Add(u"damaged.avi"_s, bytes.left(60)));
        Do({"open", "play"});
        QTRY_COMPARE((Clock::Turn(100), device.State()), Mode::NotOpen);
        Do({"play", "pause", "stop", "prev", "next", "back", "step"});
        QCOMPARE(device.State(), Mode::NotOpen);
    }

    void what_changes_is_told()
    {
        int told = 0;
        cinema->Device.changed = [&told] { ++told; };
        OpenMovie();
        QVERIFY(told >= 2);
        const int before = told;
        Do({"play"});
        QVERIFY(told > before);
        QTRY_VERIFY((Clock::Turn(100), cinema->Device.State() == Mode::Stopped));
        QVERIFY(told > before + 2);
    }

    void the_flags_are_kept_as_they_are_set()
    {
        MediaControl& device = cinema->Device;
        device.notify = device.shareable = false;
        device.wait = true;
        Do({"open"});
        QVERIFY(device.wait && !device.notify && !device.shareable);
    }

    void opening_does_not_keep_the_window_waiting()
    {
        SetMovie();
        QElapsedTimer taken;
        taken.start();
        Do({"close", "open", "play", "stop", "prev", "close"});
        QVERIFY2(taken.elapsed() < 1000, qPrintable(QString::number(taken.elapsed())));
    }

    // Any device

    void it_is_open_between_open_and_close()
    {
        MediaControl device(u"MMControl1"_s);
        QCOMPARE(device.objectName(), u"MMControl1"_s);
        device.SetDeviceType(u"WaveAudio"_s);
        device.SetFileName(folder_.Add(u"passby.wav"_s, Wave()));
        QVERIFY(!device.IsOpen());
        device.Command(u"open"_s);
        QVERIFY(device.IsOpen());
        device.Command(u"play"_s);
        QVERIFY(device.IsOpen());
        device.Command(u"close"_s);
        QVERIFY(!device.IsOpen());
    }

    void commands_come_in_any_order_and_letter_case()
    {
        MediaControl device(u"MMControl1"_s);
        device.SetFileName(folder_.Add(u"horns.wav"_s, Wave()));
        for (const char* word :
             {"play", "stop", "prev", "next",  "back",  "step", "pause", "CLOSE", "Close", "OPEN",
              "Open", "Play", "PLAY", "pause", "Pause", "back", "BACK",  "step",  "next",  "next",
              "prev", "Prev", "stop", "Stop",  "open",  "stop", "close", "play",  "close"})
            device.Command(QString::fromLatin1(word));
        QVERIFY(!device.IsOpen());
    }

    void an_unknown_word_is_failure_380()
    {
        MediaControl device(u"MMControl1"_s);
        for (const char* word : {"", "stop it", "opened"})
            QCOMPARE(ResumeNext([&] { device.Command(QString::fromLatin1(word)); }), 380);
    }

    void a_missing_or_damaged_file_stays_silent_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("missing") << QByteArray();
        QTest::newRow("text") << QByteArray("no sound at all");
        QTest::newRow("cut off") << Wave().left(60);
        QTest::newRow("header alone") << Wave().left(20);
        QTest::newRow("picture") << Encoded(FourCorners({8, 8}), "jpg");
    }

    void a_missing_or_damaged_file_stays_silent()
    {
        QFETCH(const QByteArray, bytes);
        MediaControl device(u"MMControl1"_s);
        device.SetFileName(bytes.isEmpty() ? folder_.PathOf(u"none.wav"_s)
                                           : folder_.Add(u"damaged.wav"_s, bytes));
        QCOMPARE(ResumeNext([&] {
                     device.Command(u"open"_s);
                     device.Command(u"play"_s);
                 }),
                 0);
        QCoreApplication::processEvents();
        device.Command(u"close"_s);
        QVERIFY(!device.IsOpen());
    }

    void what_is_opened_is_logged_and_that_it_is_nothing()
    {
        LoggedMessages log(u"torvik.media"_s);
        MediaControl device(u"Logged"_s);
        const QString path = folder_.Add(u"text.wav"_s, "no sound at all");
        device.SetFileName(path);
        device.Command(u"open"_s);
        // The thread of a device that is gone may still tell of its decoder.
        const auto ofDevice = [&log] { return log.Texts().filter(u"Logged"_s); };
        QTRY_COMPARE(ofDevice(), (QStringList{u"torvik.media: Logged opens "_s + path,
                                              u"torvik.media: Logged can play nothing of it"_s}));
    }

    void a_drive_that_is_not_there_stays_silent()
    {
        MediaControl device(u"MMControl1"_s);
        for (const QString& path : {u"Q:\\wav\\horns.wav"_s, QString(), u"no path"_s}) {
            device.SetFileName(path);
            QCOMPARE(device.FileName(), path);
            QCOMPARE(ResumeNext([&] { device.Command(u"open"_s); }), 0);
            QCOMPARE(ResumeNext([&] { device.Command(u"play"_s); }), 0);
        }
    }

    void a_new_file_name_counts_from_the_next_open()
    {
        MediaControl device(u"MMControl1"_s);
        device.SetFileName(folder_.Add(u"a.wav"_s, Wave()));
        device.Command(u"open"_s);
        device.SetFileName(folder_.PathOf(u"none.wav"_s));
        device.Command(u"play"_s);
        device.Command(u"open"_s);
        QVERIFY(device.IsOpen());
    }

    void a_playing_device_may_go()
    {
        auto device = std::make_unique<MediaControl>(u"MMControl1"_s);
        device->SetFileName(folder_.Add(u"a.wav"_s, Wave()));
        device->Command(u"open"_s);
        device->Command(u"play"_s);
        QCoreApplication::processEvents();
        device.reset();
        QCoreApplication::processEvents();
        QVERIFY(device == nullptr);
    }

private:
    void SetMovie(const QByteArray& bytes = TestMovie::Avi())
    {
        cinema->Device.SetDeviceType(u"AVIVideo"_s);
        cinema->Device.SetFileName(folder_.Add(u"movie.avi"_s, bytes));
        cinema->Device.SetDisplay(&cinema->PicMovie);
    }
    void OpenMovie(const QByteArray& bytes = TestMovie::Avi())
    {
        SetMovie(bytes);
        Do({"open"});
        QTRY_VERIFY(cinema->Device.Length() > 0);
    }
    /// Lets the movie begin, then time pass.
    static void Turn(int milliseconds)
    {
        UiRoom::Settle();
        Clock::Turn(milliseconds);
        UiRoom::Settle();
    }

    PictureFolder folder_;
    std::unique_ptr<UiRoom> room_;
};

TORVIK_TEST(MediaControlTest)
#include "media_control_test.moc"
