#pragma once

#include <QString>

#include <vector>

namespace torvik::sample {

/// An engine in the tune in which it was sold during some years.
struct Engine {
    char code; ///< the letter on the plate
    const char* name;
    const char* layout; ///< "i4", "i6", "v6" or "v8"
    double litres;
    double bore;        ///< millimetres
    double stroke;      ///< millimetres
    double compression; ///< to one
    const char* feed;
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

} // namespace torvik::sample
