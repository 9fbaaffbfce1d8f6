#pragma once

#include <QString>

#include <span>

namespace torvik::sample {

/// The figures of a model year, from which every article takes its numbers.
struct ModelYear {
    int year;
    int price; ///< dollars, of the coupe with the standard engine
    int coupes;
    int fastbacks; ///< fastbacks to 1973, hatchbacks later; 0: not offered
    int convertibles;
    int weight; ///< kilograms, of the coupe

    constexpr int Built() const { return coupes + fastbacks + convertibles; }
};

/// All 35 in their order, 1967 to 2001.
std::span<const ModelYear> ModelYears();
/// Throws std::out_of_range for other years.
const ModelYear& ModelYearOf(int year);
/// What the body with the long roof was called then.
QString FastbackName(int year);

/// Outer measures in millimetres, as the photos show them.
struct Measures {
    int length;
    int wheelbase;
    int width;
    int height;
};
Measures MeasuresOf(int year);

} // namespace torvik::sample
