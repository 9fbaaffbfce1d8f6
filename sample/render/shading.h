#pragma once

#include "sample/render/renderer.h"

namespace torvik::sample {

/// Knows what each point of a subject is made of and how the light falls on it.
class Shader {
public:
    Shader(const Subject& subject, const Environment& light, const Vec& eye);

    bool IsWheelArch(const Vec& at) const;
    bool IsGlass(const Vec& at, const Vec& normal) const;
    Rgb Shade(const Mesh& part, const Vec& at, const Vec& normal) const;

    /// What a pane lets through and what it adds by its own reflection.
    struct Pane {
        Rgb through;
        Rgb light;
    };
    Pane ShadePane(const Vec& at, const Vec& normal) const;

private:
    /// The sheet that covers a point of the body, and the place on it.
    struct Sheet {
        const SkinMap* map;
        double u;
        double v;
        Vec axisU;
        Vec axisV;
    };
    Sheet SheetAt(const Vec& at, const Vec& normal) const;
    double ShoulderAt(double s) const;
    Rgb Lit(const Material& material, const Vec& at, const Vec& normal, double metallic, double open) const;

    const Subject& subject_;
    const Environment& light_;
    Vec eye_;
    double half_ = 2.3;
    std::vector<double> shoulders_; ///< the shoulder line every centimetre, as it is asked for at each point
};

} // namespace torvik::sample
