#pragma once

#include <QByteArray>
#include <QString>

#include <span>
#include <vector>

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

/// An engine in the tune in which it was sold during some years.
struct Engine {
    char code; ///< the letter on the plate
    QByteArray name;
    QByteArray layout; ///< "i4", "i6", "v6" or "v8"
    double litres;
    double bore;        ///< millimetres
    double stroke;      ///< millimetres
    double compression; ///< to one
    QByteArray feed;
    int power;   ///< bhp
    int powerAt; ///< revolutions a minute
    int torque;  ///< lb-ft
    int from;
    int to;
    int extra; ///< dollars of 1967 above the standard engine
};

const std::vector<Engine>& Engines();
/// Those of a year, the standard one first.
std::vector<Engine> EnginesOf(int year);
QString EngineName(const Engine& engine);
/// Seconds from rest to 60 mph, and miles an hour, for a car of that many kilograms; estimates of the
/// editors.
double SecondsToSixty(const Engine& engine, int weight);
int TopSpeed(const Engine& engine);

enum class OptionGroup { Drive, Comfort, Looks, Sound };

/// Something that could be ordered, in the years in which it could.
struct Option {
    OptionGroup group;
    QByteArray name; ///< UTF-8
    int from;
    int to;
    int price; ///< in dollars of 1967
};

/// The options of a group in a year.
std::vector<Option> OptionsOf(int year, OptionGroup group);
QString GroupName(OptionGroup group);
/// The price of something in a year, in whole dollars: it rose with that of the car.
int PriceIn(int year, int priceOf1967);
/// "$ 1,234".
QString Dollars(int amount);
/// "12,345".
QString Grouped(int number);

} // namespace torvik::sample
