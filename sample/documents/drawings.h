#pragma once

#include "sample/files/rich_document.h"

namespace torvik::sample {

/// Line drawings for the articles, in at most 16 colours and without lettering.

/// The side of the car of a model year in the first colour of its card; `width` in twips.
Drawing CarDrawing(int year, int width);
/// An engine from the front: `layout` is "v8", "v6", "i6" or "i4".
Drawing EngineDrawing(const QString& layout, int width);
/// By the words of an article: "car" and a year (or "harwell", "kestra1", "kestra3", "super"), or "engine"
/// and a layout. Throws std::runtime_error for other names.
Drawing DrawingNamed(const QString& kind, const QString& name, int width);

} // namespace torvik::sample
