#pragma once

#include "rtf/model/content.h"

#include <QString>

#include <cstddef>

namespace torvik::rtf {

class Formats;

/// The text of a span whose characters run from right to left, `start` being its place in the paragraph's
/// text. In a paragraph from left to right it gets marks that hold the signs at the ends of the run on its
/// side: Qt lays them out by the direction of the paragraph alone.
QString WithDirectionMarks(const Paragraph& paragraph, std::size_t span, qsizetype start,
                           const Formats& formats);

} // namespace torvik::rtf
