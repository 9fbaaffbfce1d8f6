#pragma once

#include "sample/car/car_shape.h"
#include "sample/geometry/vec.h"

#include <QColor>
#include <QImage>
#include <QString>

#include <vector>

namespace torvik::sample {

/// A lacquer of the time.
struct Paint {
    QString name;
    QColor colour;
    double metallic = 0; ///< 0 plain to 1 full of flakes
};

/// What a point of a surface is made of. The shares of metal, glass and roughness run from 0 to 1.
struct Material {
    Rgb colour; ///< linear
    double metal = 0;
    double glass = 0;
    double rough = 0;
    double glow = 0;
    double slopeU = 0; ///< tilt of the surface along the map's axes
    double slopeV = 0;
};

/// One drawn sheet that is laid over a side of the car: colour, material and relief, in metres.
class SkinMap {
public:
    SkinMap() = default;
    SkinMap(const QImage& colour, const QImage& material, const QImage& relief, double left, double bottom,
            double pixelsPerMetre);

    bool IsEmpty() const { return points_.empty(); }
    /// The material at u metres to the right and v metres up.
    Material At(double u, double v) const;
    /// Only the share of glass at the place.
    double GlassAt(double u, double v) const;

private:
    struct Point {
        std::uint8_t red, green, blue, metal, glass, rough, relief, glow;
    };
    const Point& PointAt(int x, int y) const;

    std::vector<Point> points_;
    int width_ = 0;
    int height_ = 0;
    double left_ = 0;
    double bottom_ = 0;
    double scale_ = 1;
};

/// Decoration that is not a matter of the body.
struct Trim {
    enum class Stripe { None, Rocker, Racing, Flank, Hockey, Flames };
    Stripe stripe = Stripe::None;
    QColor stripeColour = Qt::white;
    QString plate{};  ///< what the number plate says
    QString script{}; ///< the lettering on the wing
    bool vinylRoof = false;
    bool lampsLit = false;
    bool whiteWalls = false;
    bool redLine = false;
};

/// The sheets for a whole car.
struct CarSkin {
    Paint paint;
    SkinMap side;
    SkinMap front;
    SkinMap rear;
    SkinMap top;
    SkinMap wheel;
};

enum class CarSide { Left, Right };

/// Points per metre of each sheet.
struct Sharpness {
    double side = 460;
    double front = 620;
    double rear = 620;
    double top = 330;
    double wheel = 1150;
};

/// Draws the sheets; the lettering is written so that it can be read on the given side.
CarSkin DrawCarSkin(const CarShape& shape, const Paint& paint, const Trim& trim, CarSide side,
                    const Sharpness& sharpness = {});

/// From a colour of the screen to linear light, and back.
Rgb LinearOf(const QColor& colour);

} // namespace torvik::sample
