#include "support/discs/picture_bytes.h"
#include "support/discs/test_movie.h"
#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/forms/clock.h"
#include "ui/look/button_widget.h"
#include "ui/media/media_track.h"
#include "ui/media/mm_control.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

using Mode = MediaControl::Mode;

struct PlayerForm : Form {
    PlayerForm() : Form(DesignOf(u"Player"_s)) {}
    MMControl MMControl1{*this, u"MMControl1"_s, {0, 0, 4500, 780}}; // 300 by 52 pixels
};

FormHandle<PlayerForm> player;

MMControl& Bar()
{
    return player->MMControl1;
}

template <typename T>
T& Part(const char* name)
{
    auto* part = player->Window().findChild<T*>(u"MMControl1(%1)"_s.arg(QString::fromLatin1(name)));
    if (part == nullptr)
        qFatal("there is no such part");
    return *part;
}

void Press(const char* name)
{
    QTest::mouseClick(&Part<ButtonWidget>(name), Qt::LeftButton);
}

/// The buttons that can be pressed, in their order.
QStringList Enabled()
{
    QStringList names;
    for (const char* name : {"Prev", "Next", "Play", "Pause", "Back", "Step", "Stop", "Record", "Eject"}) {
        const auto& button = Part<ButtonWidget>(name);
        if (button.isVisible() && button.isEnabled())
            names.append(QString::fromLatin1(name));
    }
    return names;
}

} // namespace

/// A media device behind its bar of buttons.
class MmControlTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        room_ = std::make_unique<UiRoom>();
        Clock::StopAt(QDateTime(QDate(2001, 6, 17), QTime(14, 5, 9)));
        QVERIFY(UiRoom::Open(*player));
    }
    void cleanup() { room_.reset(); }

    void without_a_medium_no_button_can_be_pressed()
    {
        QCOMPARE(Enabled(), QStringList());
        QVERIFY(!Part<MediaTrack>("Position").isEnabled());
        QVERIFY(!Bar().ButtonVisible(MediaButton::Record));
        QVERIFY(!Bar().ButtonVisible(MediaButton::Eject));
    }

    void the_buttons_follow_the_state_of_the_device()
    {
        const QStringList standing{"Prev", "Next", "Play", "Back", "Step"};
        Open();
        QCOMPARE(Enabled(), standing);
        Press("Play");
        QCOMPARE(Bar().device.State(), Mode::Playing);
        QCOMPARE(Enabled(), (QStringList{"Prev", "Next", "Pause", "Stop"}));
        Press("Pause");
        QCOMPARE(Bar().device.State(), Mode::Paused);
        QCOMPARE(Enabled(), (QStringList{"Prev", "Next", "Play", "Pause", "Back", "Step", "Stop"}));
        Press("Stop");
        QCOMPARE(Enabled(), standing);
        Press("Play");
        QTRY_VERIFY((Clock::Turn(200), Bar().device.State() == Mode::Stopped));
        QCOMPARE(Enabled(), standing);
        Bar().device.Command(u"close"_s);
        QCOMPARE(Enabled(), QStringList());
    }

    void a_file_that_is_no_movie_leaves_no_button_to_press()
    {
        Bar().device.SetFileName(folder_.Add(u"text.avi"_s, "no movie"));
        Bar().device.Command(u"open"_s);
        QTRY_COMPARE(Enabled(), QStringList());
    }

    void a_button_gives_the_command_of_its_name()
    {
        Open();
        Press("Step");
        QVERIFY(std::abs(Bar().device.Position() - 67) <= 1);
        Press("Next");
        QCOMPARE(Bar().device.Position(), Bar().device.Length());
        Press("Prev");
        QCOMPARE(Bar().device.Position(), 0);
        Press("Play");
        Press("Pause");
        Press("Pause");
        QCOMPARE(Bar().device.State(), Mode::Playing);
    }

    void a_bound_handler_takes_the_place_of_the_command()
    {
        int pressed = 0;
        Bar().ButtonClick(MediaButton::Play) = [&pressed] { ++pressed; };
        Open();
        Press("Play");
        QCOMPARE(pressed, 1);
        QCOMPARE(Bar().device.State(), Mode::Stopped);
    }

    void the_position_is_shown_in_minutes_and_seconds()
    {
        auto& track = Part<MediaTrack>("Position");
        QCOMPARE(track.TimeText(), u"0:00 / 0:00"_s);
        Open();
        QCOMPARE(track.TimeText(), u"0:00 / 0:02"_s);
        Bar().device.Seek(1400);
        QCOMPARE(track.value(), 1400);
        QCOMPARE(track.TimeText(), u"0:01 / 0:02"_s);
        track.ShowPlace(83'000, 600'000);
        QCOMPARE(track.TimeText(), u"1:23 / 10:00"_s);
    }

    void the_position_moves_while_it_plays()
    {
        Open();
        Press("Play");
        QTRY_VERIFY((Clock::Turn(50), Part<MediaTrack>("Position").value() > 300));
    }

    void a_press_on_the_groove_goes_there()
    {
        Open();
        auto& track = Part<MediaTrack>("Position");
        QTest::mouseClick(&track, Qt::LeftButton, {}, QPoint(0, track.height() / 2));
        QCOMPARE(Bar().device.Position(), 0);
        const int end = track.width() - 84; // the time stands behind the groove
        QTest::mouseClick(&track, Qt::LeftButton, {}, QPoint(end / 2, track.height() / 2));
        QVERIFY(std::abs(Bar().device.Position() - Bar().device.Length() / 2) < 50);
        QTest::mouseClick(&track, Qt::LeftButton, {}, QPoint(end, track.height() / 2));
        QCOMPARE(Bar().device.Position(), Bar().device.Length());
        QTest::mouseClick(&track, Qt::RightButton, {}, QPoint(0, track.height() / 2));
        QCOMPARE(Bar().device.Position(), Bar().device.Length());
    }

    void the_position_follows_the_mouse_while_its_left_button_is_held()
    {
        Open();
        auto& track = Part<MediaTrack>("Position");
        const int end = track.width() - 84;
        const QPoint middle(end / 2, track.height() / 2);
        QTest::mousePress(&track, Qt::LeftButton, {}, QPoint(0, middle.y()));
        QTest::mouseMove(&track, middle);
        QVERIFY(std::abs(Bar().device.Position() - Bar().device.Length() / 2) < 50);
        QTest::mouseRelease(&track, Qt::LeftButton, {}, middle);
        QTest::mouseMove(&track, QPoint(end, middle.y()));
        QVERIFY(std::abs(Bar().device.Position() - Bar().device.Length() / 2) < 50);
    }

    void the_arrow_keys_move_the_position()
    {
        Open();
        auto& track = Part<MediaTrack>("Position");
        track.setFocus();
        QTest::keyClick(&track, Qt::Key_Right);
        QCOMPARE(Bar().device.Position(), 250);
        QTest::keyClick(&track, Qt::Key_Left);
        QCOMPARE(Bar().device.Position(), 0);
    }

    void the_buttons_leave_the_foot_to_the_position()
    {
        const QRect track = Part<MediaTrack>("Position").geometry();
        QCOMPARE(track, QRect(0, 30, 300, 22));
        QCOMPARE(Part<ButtonWidget>("Play").geometry().bottom(), 29);
        Bar().SetWidth(6000);
        QCOMPARE(Part<MediaTrack>("Position").width(), 400);
    }

    void the_focus_finds_the_next_button_that_can_be_pressed()
    {
        Open();
        auto& play = Part<ButtonWidget>("Play");
        play.setFocus();
        QTest::keyClick(&play, Qt::Key_Space);
        QCOMPARE(QApplication::focusWidget(), &Part<ButtonWidget>("Pause"));
    }

    void screen_readers_get_a_name_for_each_part()
    {
        QCOMPARE(Part<QWidget>("Play").accessibleName(), u"Play"_s);
        QCOMPARE(Part<QWidget>("Position").accessibleName(), u"Position"_s);
    }

private:
    void Open()
    {
        Bar().device.SetDeviceType(u"AVIVideo"_s);
        Bar().device.SetFileName(folder_.Add(u"movie.avi"_s, TestMovie::Avi()));
        Bar().device.Command(u"open"_s);
        QTRY_VERIFY(Bar().device.Length() > 0);
    }

    PictureFolder folder_;
    std::unique_ptr<UiRoom> room_;
};

TORVIK_TEST(MmControlTest)
#include "mm_control_test.moc"
