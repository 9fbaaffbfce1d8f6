#include "sample/sounds/motion.h"
#include "support/test_class.h"

#include <QtTest>

using namespace torvik::sample;

namespace {

/// How often the sound crosses zero upward in that second.
int PitchIn(const Sound& sound, double from, double seconds)
{
    int crossings = 0;
    for (std::size_t i = SamplesIn(from) + 1; i < SamplesIn(from + seconds); ++i)
        crossings += sound[i - 1] < 0 && sound[i] >= 0 ? 1 : 0;
    return static_cast<int>(crossings / seconds);
}

double LoudestIn(const Sound& sound, double from, double seconds)
{
    double loudest = 0;
    for (std::size_t i = SamplesIn(from); i < SamplesIn(from + seconds); ++i)
        loudest = std::max(loudest, std::abs(sound[i]));
    return loudest;
}

} // namespace

class MotionTest : public QObject {
    Q_OBJECT

private:
    const Sound tone_ = PureTone(6, Always(500.0));
    const Drive drive_{[](double t) { return 34 * (t - 3); }, 2};

private Q_SLOTS:
    void what_comes_near_sounds_higher_and_what_goes_away_lower_by_the_tenth_that_its_speed_is_of_sound()
    {
        const Sound heard = Passing(tone_, drive_);
        QCOMPARE(heard.size(), tone_.size());
        // 500 / (1 - 0.1) and 500 / (1 + 0.1).
        QVERIFY2(std::abs(PitchIn(heard, 0.5, 1) - 555) <= 2,
                 qPrintable(QString::number(PitchIn(heard, 0.5, 1))));
        QVERIFY2(std::abs(PitchIn(heard, 4.5, 1) - 455) <= 2,
                 qPrintable(QString::number(PitchIn(heard, 4.5, 1))));
    }

    void the_nearest_moment_is_the_loudest()
    {
        const Sound heard = Passing(tone_, drive_);
        QVERIFY(LoudestIn(heard, 2.5, 0.5) > 5 * LoudestIn(heard, 0.0, 0.5));
        QVERIFY(LoudestIn(heard, 2.5, 0.5) > 5 * LoudestIn(heard, 5.0, 0.5));
    }

    void a_drive_from_left_to_right_is_first_louder_in_the_left_ear()
    {
        const TwoEars heard = PassingBothEars(tone_, drive_);
        QVERIFY(LoudestIn(heard.left, 1, 0.5) > 2 * LoudestIn(heard.right, 1, 0.5));
        QVERIFY(LoudestIn(heard.right, 4.5, 0.5) > 2 * LoudestIn(heard.left, 4.5, 0.5));
    }
};

TORVIK_APPLESS_TEST(MotionTest)
#include "motion_test.moc"
