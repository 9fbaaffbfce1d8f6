#pragma once

#include "sample/car/car_shape.h"
#include "sample/scenery/scenery.h"

#include <QSize>
#include <QString>

#include <vector>

namespace torvik::sample {

/// What a photograph is of.
enum class Motif {
    Car,
    Dashboard,
    Badge,
    Engine,
    Stamps,
    Sign,
    DieCast,
    Knife,
    Cookies,
    BoardGame,
    Clay,
    Sketch
};
/// From where a car is seen.
enum class View {
    FrontLeft,
    FrontRight,
    Side,
    SideRight,
    RearLeft,
    RearRight,
    High,
    LowFront,
    HeadOn,
    Wheel,
    Nose,
    Tail
};
/// How the file holds the picture.
enum class Storing { Upright, TurnedWithTag };

struct PlannedPhoto {
    QString file{};   ///< 8.3 name in capitals
    QString prefix{}; ///< the first two characters: the year or topic
    int number = 1;   ///< place inside the group, from 1
    Motif motif = Motif::Car;
    View view = View::FrontLeft;
    Place place = Place::Coast;
    Model model = Model::Vollandry;
    int year = 1967;
    int variant = 0;          ///< chooses paint, trim and details of the motif
    QSize size = {1280, 776}; ///< as it is looked at
    Storing storing = Storing::Upright;

    /// The file name without its extension.
    QString Stem() const { return file.left(8); }
};

/// A group of photos that is no model year.
struct Topic {
    QString prefix;
    QString letters; ///< three letters that follow the prefix in file names
    QString title;
    int photos;
    /// What the note documents of single photos begin with, for numbers below 5 and from 5 on; empty: no
    /// notes.
    QString notePrefixLow;
    QString notePrefixHigh;
};

/// All photos of the disc in the order of their names.
std::vector<PlannedPhoto> PlanPhotos();
const std::vector<Topic>& Topics();
/// "67" to "99", "A0", "A1".
QString PrefixOfYear(int year);

} // namespace torvik::sample
