#include "support/slide_visit.h"
#include "support/test_class.h"
#include "ui/forms/clock.h"

#include <QLocale>

using namespace Qt::StringLiterals;
using namespace torvik;

/// The clock strip of the slide show.
class SlideClockTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 2);
        program_->StartBrowsing();
    }
    void cleanup()
    {
        program_.reset();
        QLocale::setDefault(QLocale::c());
    }

    void time_date_and_day_have_their_formats_data()
    {
        QTest::addColumn<QDateTime>("now");
        QTest::addColumn<QString>("time");
        QTest::addColumn<QString>("date");
        QTest::addColumn<QString>("day");
        const auto row = [](const char* name, const QDate& date, const QTime& time, const char* t,
                            const char* d, const char* w) {
            QTest::newRow(name) << QDateTime(date, time) << QString::fromLatin1(t) << QString::fromLatin1(d)
                                << QString::fromLatin1(w);
        };
        row("afternoon", {2001, 6, 17}, QTime(14, 5, 9), "02:05:09 pm", "06/17/01", "Sunday");
        row("midnight", {1999, 12, 31}, QTime(0, 0, 0), "12:00:00 am", "12/31/99", "Friday");
        row("noon", {2000, 1, 1}, QTime(12, 0, 0), "12:00:00 pm", "01/01/00", "Saturday");
        row("before noon", {2026, 11, 18}, QTime(11, 59, 59), "11:59:59 am", "11/18/26", "Wednesday");
        row("evening", {2026, 3, 2}, QTime(23, 0, 1), "11:00:01 pm", "03/02/26", "Monday");
    }

    void time_date_and_day_have_their_formats()
    {
        QFETCH(QDateTime, now);
        QFETCH(QString, time);
        QFETCH(QString, date);
        QFETCH(QString, day);
        QVERIFY(InSlideShow(*program_, [&] {
            Clock::StopAt(now.addMSecs(-10));
            Clock::Turn(10);
            QCOMPARE(frmSlide->StatusTime.Caption(), time);
            QCOMPARE(frmSlide->StatusDate.Caption(), date);
            QCOMPARE(frmSlide->StatusDay.Caption(), day);
        }));
    }

    void the_strip_speaks_the_programs_language_on_every_desktop()
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        QVERIFY(InSlideShow(*program_, [] {
            Clock::Turn(10);
            QCOMPARE(frmSlide->StatusDay.Caption(), u"Sunday"_s);
            QVERIFY(frmSlide->StatusTime.Caption().endsWith(u" pm"_s));
        }));
    }

    void it_follows_within_ten_milliseconds_whether_the_show_runs_or_not()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            QCOMPARE(frmSlide->Timer3.Interval(), 10);
            Clock::StopAt(QDateTime(QDate(2001, 6, 17), QTime(14, 5, 9, 985)));
            Clock::Turn(10);
            QCOMPARE(frmSlide->StatusTime.Caption(), u"02:05:09 pm"_s);
            Clock::Turn(10);
            QCOMPARE(frmSlide->StatusTime.Caption(), u"02:05:10 pm"_s);
            ClickSlidePart(*program_, u"mmSlide(Play)"_s);
            Clock::Turn(60'000);
            QCOMPARE(frmSlide->StatusTime.Caption(), u"02:06:10 pm"_s);
        }));
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(SlideClockTest)
#include "slide_clock_test.moc"
