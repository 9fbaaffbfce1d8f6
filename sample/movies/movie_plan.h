#pragma once

#include "sample/geometry/curve.h"
#include "sample/movies/cards.h"
#include "sample/movies/stage.h"
#include "sample/sounds/sound.h"

#include <functional>
#include <memory>
#include <vector>

namespace torvik::sample {

/// A piece of a movie between two cuts.
struct Shot {
    double seconds;
    std::function<Moment(double seconds)> look; ///< where the camera is after so many seconds of the shot
};

/// One of the movies of the disc: a title card, shots of one car in one place, an end card.
struct MoviePlan {
    const char* file;
    Card title;
    Card end;
    std::function<std::unique_ptr<Stage>()> stage;
    std::vector<Shot> shots;
    std::function<Sound(double seconds)> sound; ///< for the whole movie; the cards are part of it

    /// Seconds from the first frame of the title to the last of the end card.
    double Seconds() const;
};

constexpr QSize movieSize{320, 240};
constexpr int framesPerSecond = 12;
constexpr double titleSeconds = 1.75;
constexpr double endSeconds = 1.5;

const std::vector<MoviePlan>& Movies();
/// The whole file.
QByteArray MakeMovie(const MoviePlan& plan);

} // namespace torvik::sample
