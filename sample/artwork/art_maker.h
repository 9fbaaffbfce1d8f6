#pragma once

#include <QImage>
#include <QString>

#include <vector>

namespace torvik::sample {

/// Whose emblem or script a small picture shows.
enum class Marque { Vollandry, Harwell, Prototype };

struct SmallPicture {
    QString file; ///< with its folder
    int year = 0;
    Marque marque = Marque::Vollandry;
};

/// The last two digits, by which the small pictures and advertisements are named: "67" to "99", "00", "01".
QString TwoDigits(int year);
/// One for each year, those of the Classic Harwell and of the prototypes.
std::vector<SmallPicture> PlanEmblems();
std::vector<SmallPicture> PlanScripts();
/// One for each year. The topics have none: their buttons are off or lead to the message for a missing
/// picture.
std::vector<SmallPicture> PlanClipArt();

/// The emblem on the car: one for each of the six bodies, its enamel after the fashion of the year; 200 x
/// 124.
QImage PaintEmblem(const SmallPicture& emblem);

/// The lettering on the car's flank, with the plate of an engine in years that had one to boast of; 240 x 72.
QImage PaintScript(const SmallPicture& script);

/// A strip of small drawings of a year: what it is remembered by, the car in a colour of its card, its wheel
/// and the year itself; 480 x 80.
QImage PaintClipArt(const SmallPicture& strip);

/// What stands on the cover of the printed booklet, drawn for white paper. Each is printed at its natural
/// size, 96 points to the inch, at a place that the booklet fixes; the sizes are chosen so that the page
/// looks composed.

/// Shield and lettering of the car, 560 x 160.
QImage PaintBookletLogo();
/// The title of the booklet, 700 x 190.
QImage PaintBookletTitle();
/// The mark of the publisher, a sword with its cross guard, 420 x 130.
QImage PaintPublisherMark();

/// The steps that draw what is no photo; each writes its own folder and throws std::runtime_error where it
/// cannot. Every run writes the same bytes.

/// "emblems": the emblem of each year and topic that has one.
void MakeEmblems(const QString& disc);
/// "SCRIPTS": the lettering likewise.
void MakeScripts(const QString& disc);
/// "Clipart": the strip of small drawings of each year.
void MakeClipArt(const QString& disc);
/// "ads": the advertisement of each year that has one.
void MakeAds(const QString& disc);
/// "graphics": the cover of the printed booklet.
void MakeBookletArt(const QString& disc);

} // namespace torvik::sample
