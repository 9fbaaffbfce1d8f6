#pragma once

#include <QtGlobal>

namespace torvik::rtf {

/// Bounds that keep a damaged or hostile document from costing more than it is worth.

/// Groups nested deeper than this are read, but no longer keep formatting of their own.
inline constexpr int maxGroupDepth = 1000;
/// Groups that turned out to have no end; after so many, no group is searched for its end in advance.
inline constexpr int maxUnendingGroups = 32;
/// Tables within tables; what is nested deeper is shown as part of the cell around it.
inline constexpr int maxTableNesting = 6;
/// Boxes within boxes; the text of what is nested deeper is part of the box around it.
inline constexpr int maxBoxNesting = 8;
/// Lines, rectangles and the like that are drawn into one picture.
inline constexpr int maxDrawnShapes = 500;
/// Corners of a polygon.
inline constexpr int maxCorners = 2000;
/// Columns of the grid of one table.
inline constexpr int maxTableColumns = 64;
/// Cell ends and cell definitions in one row.
inline constexpr int maxRowCells = maxTableColumns;
/// A longer table continues as a second one directly below, so that the cost of a table stays linear.
inline constexpr int maxTableCells = 4096;
/// Parts of a box with lines between its paragraphs; what comes below has no more lines.
inline constexpr int maxBoxParts = 1000;
/// Distinct character formats and distinct paragraph formats of one document.
inline constexpr int maxFormats = 12000;
inline constexpr int maxFonts = 4000;
inline constexpr int maxColors = 65536;
inline constexpr int maxLists = 4000;
inline constexpr int maxStyles = 4000;
inline constexpr int maxTabs = 64;
/// Characters of a field instruction, a font name, a list mark: all short texts that are no part of a
/// paragraph.
inline constexpr int maxAsideText = 8192;
/// Pixels along one side of a picture.
inline constexpr int maxPictureSide = 32767;
/// Twips: no indent, margin or picture side is larger than this (22 inches, the format's own bound).
inline constexpr int maxTwips = 31680;

/// 1 pixel is 15 twips: 1440 twips and 96 pixels to the inch.
inline constexpr double twipsPerPixel = 15.0;
/// The unit of fonts.
inline constexpr double pixelsPerPoint = 96.0 / 72.0;
/// The unit of metafiles.
inline constexpr double pixelsPerHundredthMillimetre = 96.0 / 2540.0;
constexpr double PixelsFromTwips(double twips)
{
    return twips / twipsPerPixel;
}

} // namespace torvik::rtf
