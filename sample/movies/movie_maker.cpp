#include "sample/files/avi_file.h"
#include "sample/files/in_parallel.h"
#include "sample/files/jpeg_file.h"
#include "sample/movies/movie_plan.h"
#include "sample/sounds/wave_file.h"

#include <cmath>

namespace torvik::sample {

namespace {

constexpr double fadeSeconds = 0.25; // seconds in which a card comes and goes

/// From 0 (black) to 1: how light the picture is, `age` seconds after a cut and `left` before the next.
double Dimmed(double age, double left)
{
    return SmoothStep(-0.05, fadeSeconds, age) * SmoothStep(-0.05, fadeSeconds, left);
}

QImage Darker(QImage picture, double light)
{
    if (light < 1) {
        QPainter painter(&picture);
        painter.fillRect(picture.rect(), QColor(0, 0, 0, static_cast<int>(255 * (1 - light))));
    }
    return picture;
}

QImage DrawFrame(const MoviePlan& plan, const Stage& stage, double t)
{
    if (t < titleSeconds)
        return Darker(DrawCard(plan.title, t, movieSize), Dimmed(t, titleSeconds - t));
    double from = titleSeconds;
    const double last = plan.Seconds() - endSeconds;
    for (const Shot& shot : plan.shots) {
        if (t < from + shot.seconds)
            return Darker(stage.Draw(shot.look(t - from), movieSize), Dimmed(t - titleSeconds, last - t));
        from += shot.seconds;
    }
    return Darker(DrawCard(plan.end, t - from, movieSize), Dimmed(t - from, plan.Seconds() - t));
}

} // namespace

QByteArray MakeMovie(const MoviePlan& plan)
{
    constexpr SoundForm soundForm{22050, 8};
    const double seconds = plan.Seconds();
    AviMovie movie{.size = movieSize, .framesPerSecond = framesPerSecond};
    movie.frames.resize(static_cast<std::size_t>(std::lround(seconds * framesPerSecond)));
    const std::unique_ptr<Stage> stage = plan.stage();
    InParallel(movie.frames.size(), [&](std::size_t i) {
        movie.frames[i] = JpegBytes(DrawFrame(plan, *stage, static_cast<double>(i) / framesPerSecond), 74);
    });
    const Sound track = Faded(Lasting(plan.sound(seconds), seconds), 0.05, 0.5);
    movie.sound = PcmSamples({Levelled(AtRate(track, soundForm.rate), 0.9)}, soundForm);
    movie.soundFormat = PcmFormat(1, soundForm);
    movie.bytesPerSample = soundForm.bits / 8;
    movie.bytesPerSecond = soundForm.rate * movie.bytesPerSample;
    return AviFile(movie);
}

} // namespace torvik::sample
