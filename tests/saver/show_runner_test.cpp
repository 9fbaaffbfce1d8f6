#include "saver/covered_screens.h"
#include "saver/show_runner.h"
#include "support/discs/disc_folder.h"
#include "support/discs/test_disc.h"
#include "support/test_class.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScreen>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// Two screens side by side, the second of twice the density.
const QByteArray twoScreens = R"({"screens": [
    {"name": "left", "x": 0, "y": 0, "width": 400, "height": 300, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
    {"name": "right", "x": 400, "y": 0, "width": 640, "height": 480, "logicalDpi": 192, "logicalBaseDpi": 96, "dpr": 1}
]})";

} // namespace

/// The show in real windows.
class ShowRunnerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        SetVolumeLister([] { return QList<QString>(); });
        QVERIFY(disc_.File("a.jpg", TestDisc::Jpeg(Qt::red, {400, 300}).toStdString()));
    }
    void cleanupTestCase() { SetVolumeLister({}); }

    void each_screen_is_covered_by_a_window_without_frame_or_pointer()
    {
        QCOMPARE(QGuiApplication::screens().size(), 2);
        const ShowRunner runner({5000, drive_}, 0, OpenOnAllScreens, nullptr);
        QCOMPARE(runner.Windows().size(), std::size_t(2));
        for (std::size_t i = 0; i < 2; ++i) {
            const SaverWindow& window = *runner.Windows()[i];
            QCOMPARE(window.geometry(), QGuiApplication::screens()[static_cast<qsizetype>(i)]->geometry());
            QVERIFY(window.isVisible());
            QVERIFY(window.flags().testFlag(Qt::FramelessWindowHint));
            QVERIFY(window.flags().testFlag(Qt::WindowStaysOnTopHint));
            QCOMPARE(window.cursor().shape(), Qt::BlankCursor);
        }
    }

    void each_window_gets_its_photo_at_the_pixels_of_its_screen()
    {
        const ShowRunner runner({5000, drive_}, 0, OpenOnAllScreens, nullptr);
        QCOMPARE(runner.Windows()[0]->Shown().Frame().size(), QSize(400, 300));
        QCOMPARE(runner.Windows()[1]->Shown().Frame().size(), QSize(640, 480));
    }

    void the_windows_behind_everything_take_no_input()
    {
        const ShowRunner runner({5000, drive_}, 0, OpenBehindAll, nullptr);
        QCOMPARE(runner.Windows().size(), std::size_t(2));
        for (const auto& window : runner.Windows()) {
            QVERIFY(window->isVisible());
            QVERIFY(window->flags().testFlag(Qt::WindowTransparentForInput));
            QVERIFY(window->flags().testFlag(Qt::WindowDoesNotAcceptFocus));
            QVERIFY(window->flags().testFlag(Qt::BypassWindowManagerHint));
        }
    }

    void a_key_on_any_of_the_windows_ends_the_show()
    {
        int ended = 0;
        const ShowRunner runner({5000, drive_}, 0, OpenOnAllScreens, [&ended] { ++ended; });
        QCOMPARE(ended, 0);
        QTest::keyPress(runner.Windows()[1].get(), Qt::Key_A);
        QCOMPARE(ended, 1);
    }

    void a_click_ends_the_show()
    {
        int ended = 0;
        const ShowRunner runner({5000, drive_}, 0, OpenOnAllScreens, [&ended] { ++ended; });
        QTest::mousePress(runner.Windows()[0].get(), Qt::LeftButton, {}, {20, 20});
        QVERIFY(ended > 0);
    }

    void the_mouse_is_watched_over_all_windows_together()
    {
        int ended = 0;
        const ShowRunner runner({5000, drive_}, 0, OpenOnAllScreens, [&ended] { ++ended; });
        Move(*runner.Windows()[0], {398, 100});
        Move(*runner.Windows()[1], {402, 100});
        QCOMPARE(ended, 0);
        Move(*runner.Windows()[1], {440, 100});
        QCOMPARE(ended, 1);
    }

    void inside_another_program_nothing_ends_the_show()
    {
        const ShowRunner runner({5000, drive_}, 0, OpenOnAllScreens, nullptr);
        QTest::keyPress(runner.Windows()[0].get(), Qt::Key_A);
        QTest::mousePress(runner.Windows()[0].get(), Qt::LeftButton, {}, {20, 20});
        QVERIFY(runner.Windows()[0]->isVisible());
    }

    void the_photo_is_on_the_screen_when_the_passage_is_over()
    {
        const ShowRunner runner({1000, drive_}, 0, OpenOnAllScreens, nullptr);
        SaverWindow& window = *runner.Windows()[0];
        QTRY_VERIFY(window.isExposed());
        QTRY_VERIFY(RedAt(window, {200, 150}) > 230);
    }

    void a_window_that_changes_its_size_shows_the_photo_at_the_new_size()
    {
        const auto openOne = [] {
            SaverWindows windows;
            windows.push_back(std::make_unique<SaverWindow>());
            windows.back()->resize(100, 100);
            windows.back()->show();
            return windows;
        };
        const ShowRunner runner({60'000, drive_}, 0, openOne, nullptr);
        SaverWindow& window = *runner.Windows()[0];
        window.resize(200, 100);
        QTRY_COMPARE(window.Shown().Frame().size(), QSize(200, 100));
    }

    void a_window_that_is_not_there_has_no_size()
    {
        const HostWindow host(4711);
        QVERIFY(!host.Size().has_value());
    }

private:
    /// The mouse at a place of the desktop.
    static void Move(SaverWindow& window, const QPointF& place)
    {
        QMouseEvent event(QEvent::MouseMove, window.mapFromGlobal(place), place, Qt::NoButton, Qt::NoButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&window, &event);
    }

    static int RedAt(const SaverWindow& window, const QPoint& place)
    {
        const QPixmap seen = window.screen()->grabWindow(window.winId());
        return seen.isNull() ? 0 : seen.toImage().pixelColor(place).red();
    }

    DiscFolder disc_;
    const QString drive_ = u"E:\\"_s;
};

void LayOutTwoScreens()
{
    static const QTemporaryDir folder;
    QFile configuration(folder.filePath(u"screens.json"_s));
    if (!configuration.open(QIODevice::WriteOnly) || configuration.write(twoScreens) != twoScreens.size())
        qFatal("cannot write the layout of the screens");
    configuration.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + configuration.fileName().toLocal8Bit());
}

TORVIK_TEST_AFTER(ShowRunnerTest, LayOutTwoScreens)
#include "show_runner_test.moc"
