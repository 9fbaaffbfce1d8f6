#pragma once

#include "sample/car/skin.h"
#include "sample/geometry/camera.h"
#include "sample/render/environment.h"

#include <QImage>

namespace torvik::sample {

/// What the renderer is to draw.
struct Subject {
    std::vector<Mesh> parts;
    const CarShape* shape = nullptr;
    const CarSkin* skin = nullptr;
    bool clay = false; ///< everything of one dull material, as a modeller's clay
    Rgb clayColour = {0.55, 0.42, 0.30};
};

/// Draws the subject over `picture` (premultiplied ARGB; transparent places stay so where nothing covers
/// them), each pixel being the mean of four.
void Render(QImage& picture, const Subject& subject, const Camera& camera, const Environment& light);

} // namespace torvik::sample
