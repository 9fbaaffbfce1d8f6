#include "sample/movies/movie_plan.h"

#include "sample/scenery/place_script.h"
#include "sample/sounds/score.h"

namespace torvik::sample {

namespace {

QString Text(const char* text)
{
    return QString::fromLatin1(text);
}

Card EndCard(const char* below, const QColor& colour)
{
    return {Text("Torvik Motor Works"), Text("The End"), Text(below), colour};
}

std::function<std::unique_ptr<Stage>()> CarIn(int year, std::size_t paint, Trim::Stripe stripe,
                                              const Scenery& scenery, bool lamps = false)
{
    return [=] {
        const Trim trim{
            .stripe = stripe, .plate = QString::number(year), .script = Text("Vollandry"), .lampsLit = lamps};
        const std::vector<Paint>& card = PaintsOfYear(year);
        return std::make_unique<Stage>(ShapeOfYear(year), card[paint % card.size()], trim, scenery);
    };
}

/// A camera that runs along, beginning at `from` and ending at `to` after `seconds`, while the car drives at
/// `speed` metres a second from `start` on.
Shot Tracking(double seconds, const Vec& from, const Vec& to, double lens, double start, double speed)
{
    return {seconds, [=](double t) {
                const double share = SmoothStep(0, seconds, t);
                return Moment{Mix(from, to, share), {-0.05, 0, 0.68}, lens, start + speed * t};
            }};
}

/// A camera that stands beside the road and turns with the car, which passes it after `passing` seconds.
Shot Roadside(double seconds, double passing, double aside, double high, double lens, double speed)
{
    return {seconds, [=](double t) {
                const double ahead = speed * (t - passing);
                return Moment{{ahead, -aside, high}, {0, 0, 0.62}, lens, ahead};
            }};
}

/// The sound track of this name, which also knows when the title goes and when the end card comes.
std::function<Sound(double)> Track(const char* name)
{
    return [name](double seconds) {
        return PlayScore("movie_sounds", Text(name), {seconds, titleSeconds, seconds - endSeconds}).front();
    };
}

} // namespace

double MoviePlan::Seconds() const
{
    double seconds = titleSeconds + endSeconds;
    for (const Shot& shot : shots)
        seconds += shot.seconds;
    return seconds;
}

const std::vector<MoviePlan>& Movies()
{
    static const std::vector<MoviePlan> movies{
        {"Torvik67.avi",
         {Text("1967"), Text("\"Volcano\""), Text("The first Vollandry comes to the sea"),
          QColor(132, 34, 18)},
         EndCard("So began a road of 35 years", QColor(132, 34, 18)),
         CarIn(1967, 0, Trim::Stripe::None, CoastScenery(4)),
         {Roadside(3.25, 2.1, 4.6, 1.1, 38, 13),
          Tracking(3.5, {-4.6, -4.4, 0.8}, {-0.5, -6.4, 1.1}, 40, -20, 12),
          Tracking(3.0, {1.0, -6.2, 1.3}, {5.2, -3.6, 1.6}, 40, 0, 12)},
         Track("volcano")},
        {"Torvik69.avi",
         {Text("Torvik presents"), Text("1969"), Text("A long road and a full tank"), QColor(150, 92, 22)},
         EndCard("See you at the next filling station", QColor(150, 92, 22)),
         CarIn(1969, 2, Trim::Stripe::Hockey, DesertScenery(5)),
         {Tracking(3.25, {-9.0, -9.0, 3.4}, {-4.6, -5.0, 0.9}, 40, -40, 11),
          Roadside(3.25, 1.8, 4.4, 0.6, 30, 15),
          Tracking(3.25, {5.0, -3.6, 1.0}, {9.5, -5.8, 2.8}, 40, 0, 11)},
         Track("openRoad")},
        {"TheSuperGlider.avi",
         {Text("Winter trial"), Text("The Super Glider"), Text("No runners. No skis. No worries."),
          QColor(40, 84, 132)},
         EndCard("Please glide carefully", QColor(40, 84, 132)),
         CarIn(1971, 4, Trim::Stripe::Racing, SnowScenery(9)),
         {Tracking(3.25, {-6.2, -4.4, 1.0}, {-3.4, -5.6, 1.0}, 42, -30, 9),
          {3.5,
           [](double t) {
               // Seen from the car, the world slides to one side and back while the tail swings out.
               const double swing = 1.1 * std::sin(2 * pi * t / 3.5);
               return Moment{{-5.8 * std::sin(swing), -6.2 * std::cos(swing), 1.2}, {0, 0, 0.62}, 42, 9 * t};
           }},
          Roadside(3.25, 1.7, 5.2, 1.5, 36, 9)},
         Track("glider")},
        {"Q44.avi",
         {Text("The Q44 package"), Text("\"Shadows\""), Text("When the sun goes, it comes"),
          QColor(54, 34, 70)},
         EndCard("Good night, and dip your lamps", QColor(54, 34, 70)),
         CarIn(1970, 6, Trim::Stripe::Rocker, PlaceFrom("long_shadows", 11, CoastScenery(11)), true),
         {Tracking(3.75, {-6.8, -2.2, 0.55}, {-5.2, -4.2, 0.9}, 44, -20, 8),
          Tracking(3.25, {-2.6, -4.6, 0.5}, {2.6, -4.8, 0.7}, 34, -10, 10),
          Roadside(3.25, 1.6, 5.0, 1.0, 38, 13)},
         Track("shadows")},
        {"RocknRoll.avi",
         {Text("Saturday at the strip"), Text("Rock and Roll"), Text("Four beats, eight cylinders"),
          QColor(110, 20, 90)},
         EndCard("Thank you, you were a wonderful crowd", QColor(110, 20, 90)),
         CarIn(1970, 1, Trim::Stripe::Racing, StripScenery(6)),
         {{3.5,
           [](double t) {
               // The camera nods to the beat.
               const double beat = std::abs(std::sin(pi * t / 0.4375));
               return Moment{{-5.6 + 0.5 * t, -4.6, 0.6 + 0.16 * beat}, {-0.1, 0, 0.68}, 42, 0};
           }},
          {2.625,
           [](double t) {
               const double ahead = 4.5 * t * t;
               return Moment{{1.2 + 0.35 * ahead, -6.4, 1.0}, {0.2, 0, 0.66}, 38, ahead};
           }},
          {1.75,
           [](double t) {
               const double angle = 0.6 + 1.7 * t;
               return Moment{{-6.4 * std::cos(angle), -6.4 * std::sin(angle), 1.3}, {0, 0, 0.66}, 40, 14 * t};
           }},
          Roadside(2.625, 1.1, 4.6, 0.7, 32, 18)},
         Track("rock")},
    };
    return movies;
}

} // namespace torvik::sample
