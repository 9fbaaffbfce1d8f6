#include "program/catalogue/movies_and_sounds.h"

#include "windows/sound_panel.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

struct MovieRow {
    const char* file;
    const char* title;
};

/// The sixth option has no movie, and there are no options for the last two.
constexpr MovieRow movies[movieCountOfPlayer] = {
    {"Torvik67.avi", "Torvik Movies - The 1967 Torvik"},
    {"Torvik69.avi", "Torvik Movies - The 1969 Torvik"},
    {"TheSuperGlider.avi", "Torvik Movies - The Super Glider"},
    {"Q44.avi", "Torvik Movies - Q44"},
    {"RocknRoll.avi", "Torvik Movies - Rock and Roll"},
    {"", "Torvik Movies - xxxx"},
    {"", "Torvik Movies - 1968 Commercial"},
    {"", "Torvik Movies - 1967 Commercial"},
};

/// Some labels have always had the sound of another car.
constexpr const char* sounds[soundCount] = {
    "backfrng.wav", "car_door.wav", "carhorns.wav", "horns.wav",     "cop-car.wav",   "taxi.wav",
    "sportcar.wav", "18wheelr.wav", "peel-out.wav", "Track2.wav",    "nascar.wav",    "racecar.wav",
    "indy-car.wav", "mcycle.wav",   "batmoble.wav", "62sellark.wav", "63sellark.wav", "selstart.wav",
    "passby.wav",   "selcar.wav",   "qr7start.wav", "motorcyc2.wav", "hot_rod.wav",   "red_lght.wav",
    "porche.wav",   "stealth.wav",  "stuck.wav",    "revnrun.wav",   "goingby.wav"};

} // namespace

Movie MovieOf(int option)
{
    return {QString::fromLatin1(movies[option].file), QString::fromLatin1(movies[option].title)};
}

QString SoundOf(int button)
{
    const bool known = button >= 0 && button < soundCount;
    return u"\\wav\\"_s + (known ? QString::fromLatin1(sounds[button]) : QString());
}

} // namespace torvik
