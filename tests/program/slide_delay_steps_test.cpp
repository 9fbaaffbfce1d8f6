#include "program/slide_delay_steps.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// The steps of the delay between two photos.
class SlideDelayStepsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void each_delay_has_one_above_and_one_below_data()
    {
        QTest::addColumn<int>("delay");
        QTest::addColumn<int>("up");
        QTest::addColumn<int>("down");
        const auto row = [](int delay, int up, int down) {
            QTest::addRow("%d", delay) << delay << up << down;
        };
        row(1000, 2000, 60000);
        row(2000, 3000, 1000);
        row(3000, 4000, 2000);
        row(4000, 5000, 3000);
        row(5000, 10000, 4000);
        row(10000, 15000, 5000);
        row(15000, 20000, 10000);
        row(20000, 25000, 15000);
        row(25000, 30000, 20000);
        row(30000, 35000, 25000);
        row(35000, 40000, 30000);
        row(40000, 45000, 35000);
        row(45000, 50000, 40000);
        row(50000, 55000, 45000);
        row(55000, 60000, 50000);
        row(60000, 1000, 55000);
    }

    void each_delay_has_one_above_and_one_below()
    {
        QFETCH(const int, delay);
        QFETCH(const int, up);
        QFETCH(const int, down);
        QCOMPARE(StepDelayUp(delay), up);
        QCOMPARE(StepDelayDown(delay), down);
    }

    void a_value_between_the_steps_moves_by_five_seconds_data()
    {
        QTest::addColumn<int>("delay");
        for (const int delay : {1500, 6000, 7000, 12000, 59999})
            QTest::addRow("%d", delay) << delay;
    }

    void a_value_between_the_steps_moves_by_five_seconds()
    {
        QFETCH(const int, delay);
        QCOMPARE(StepDelayUp(delay), delay + 5000);
        QCOMPARE(StepDelayDown(delay), delay - 5000);
    }

    void sixteen_presses_go_once_around()
    {
        int up = 1000;
        int down = 1000;
        for (int press = 0; press < 16; ++press) {
            up = StepDelayUp(up);
            down = StepDelayDown(down);
            QVERIFY(up >= 1000 && up <= 60000);
            QVERIFY(down >= 1000 && down <= 60000);
        }
        QCOMPARE(up, 1000);
        QCOMPARE(down, 1000);
    }

    void the_text_is_the_number_of_seconds_without_a_blank()
    {
        QCOMPARE(DelayInSeconds(1000), u"1"_s);
        QCOMPARE(DelayInSeconds(5000), u"5"_s);
        QCOMPARE(DelayInSeconds(60000), u"60"_s);
        QCOMPARE(DelayInSeconds(1500), u"1.5"_s);
    }
};

TORVIK_TEST(SlideDelayStepsTest)
#include "slide_delay_steps_test.moc"
