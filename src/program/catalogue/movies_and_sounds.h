#pragma once

#include <QString>

namespace torvik {

using namespace Qt::StringLiterals;

/// A movie of the player.
struct Movie {
    QString file; ///< its name in the folder of the movies; empty for an option without one
    QString windowTitle;
};

/// How many movies the player knows; it has options for the first six only.
inline constexpr int movieCountOfPlayer = 8;

/// The movie of an option, 0 to 7.
Movie MovieOf(int option);

/// The file of a sound effect by the index of its button, from 0 on, under the disc's root: "\wav\taxi.wav".
/// The folder alone for an index without a button.
QString SoundOf(int button);

/// The folder of the movies, on the disc and beside the program.
inline const QString movieFolder = u"\\movies\\"_s;

} // namespace torvik
