#pragma once

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

} // namespace torvik::sample
