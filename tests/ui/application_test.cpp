#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/application.h"
#include "ui/controls/button.h"
#include "ui/forms/screen.h"

#include <QIcon>
#include <QImageReader>
#include <QStyle>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s)) {}
    Button Go{*this, u"Go"_s, {0, 0, 1200, 375}};
};

FormHandle<MainForm> Main;

} // namespace

/// The application object: the start, the event loop, the end.
class ApplicationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        ForgetProgramEnd();
        application_ = std::make_unique<Application>(argc_, argv_);
    }
    void cleanup() { application_.reset(); }

    void it_bears_the_programs_name_and_look()
    {
        QCOMPARE(QApplication::applicationName(), u"torvik2001"_s);
        // A display name of its own would be appended to every title.
        QCOMPARE(QApplication::applicationDisplayName(), QApplication::applicationName());
        QCOMPARE(QApplication::palette().color(QPalette::Window), look::face);
        QVERIFY(QImageReader::allocationLimit() >= 1145); // MiB of 300 million pixels
    }

    void every_window_has_the_icon_in_the_sizes_of_desktops()
    {
        QWidget window;
        QVERIFY(!window.windowIcon().isNull());
        for (const int size : {16, 32, 48, 128})
            QVERIFY(window.windowIcon().availableSizes().contains(QSize(size, size)));
        QVERIFY(window.windowIcon().pixmap(32).toImage().pixelColor(16, 16).alpha() > 0);
    }

    void the_scale_is_the_factor_of_every_window_and_stays_in_the_program()
    {
        application_.reset();
        application_ = std::make_unique<Application>(argc_, argv_, u"2.5"_s);
        QCOMPARE(qApp->devicePixelRatio(), 2.5);
        QVERIFY(!qEnvironmentVariableIsSet("QT_SCALE_FACTOR"));
        QVERIFY(!Screen.IsScaledByDesktop());
        QCOMPARE(Screen.Width(), 320 * 15.0); // of 800
    }

    void a_factor_of_the_desktop_is_taken_unless_another_is_asked_for()
    {
        qputenv("QT_SCALE_FACTOR", "2");
        application_.reset();
        application_ = std::make_unique<Application>(argc_, argv_);
        const double taken = qApp->devicePixelRatio();
        const bool isScaled = Screen.IsScaledByDesktop();
        application_.reset();
        application_ = std::make_unique<Application>(argc_, argv_, u"1"_s);
        const double asked = qApp->devicePixelRatio();
        qunsetenv("QT_SCALE_FACTOR");
        QCOMPARE(taken, 2.0);
        QVERIFY(isScaled);
        QCOMPARE(asked, 1.0);
        QVERIFY(Screen.IsScaledByDesktop());
    }

    void closing_windows_does_not_end_the_program() { QVERIFY(!QApplication::quitOnLastWindowClosed()); }

    void run_begins_with_the_start_and_ends_with_the_program()
    {
        QStringList order;
        const int code = application_->Run([&] {
            Main->Show();
            order.append(u"start"_s);
            UiRoom::Soon([&] {
                order.append(u"event"_s);
                RunHandler([] { EndProgram(); });
            });
        });
        QCOMPARE(code, 0);
        QCOMPARE(order, (QStringList{u"start"_s, u"event"_s}));
    }

    void a_start_that_ends_the_program_runs_nothing_else()
    {
        bool event = false;
        UiRoom::Soon([&] { RunHandler([&] { event = true; }); });
        QCOMPARE(application_->Run([] { EndProgram(); }), 0);
        QVERIFY(!event);
    }

    void the_end_takes_loaded_forms_along()
    {
        Main->Show();
        Main->Unload = [] { QFAIL("a form is asked at the end"); };
        application_.reset();
        QVERIFY(!Main.IsLoaded());
    }

    void do_events_lets_what_is_pending_happen_and_returns()
    {
        int happened = 0;
        UiRoom::Soon([&] { ++happened; });
        DoEvents();
        QCOMPARE(happened, 1);
        DoEvents();
        QCOMPARE(happened, 1);
    }

    void wait_for_events_returns_when_nothing_comes()
    {
        int happened = 0;
        UiRoom::Soon([&] { ++happened; });
        while (happened == 0)
            WaitForEvents();
        WaitForEvents();
        QCOMPARE(happened, 1);
    }

    void a_program_can_begin_again()
    {
        application_->Run([] { EndProgram(); });
        application_.reset();
        ForgetProgramEnd();
        application_ = std::make_unique<Application>(argc_, argv_);
        bool started = false;
        application_->Run([&] {
            started = true;
            EndProgram();
        });
        QVERIFY(started);
    }

private:
    int argc_ = 1;
    char name_[11] = "torvik2001";
    char* argv_[2] = {name_, nullptr};
    std::unique_ptr<Application> application_;
};

TORVIK_APPLESS_TEST(ApplicationTest)
#include "application_test.moc"
