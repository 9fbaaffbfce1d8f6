#pragma once

#include <QString>

namespace torvik::sample {

/// The steps that draw what is no photo; each writes its own folder and throws std::runtime_error where it
/// cannot. Every run writes the same bytes.

/// "emblems": the emblem of each year and topic that has one.
void MakeEmblems(const QString& disc);
/// "SCRIPTS": the lettering likewise.
void MakeScripts(const QString& disc);
/// "Clipart": the strip of small drawings of each year.
void MakeClipArt(const QString& disc);
/// "ads": the advertisement of each year that has one.
void MakeAds(const QString& disc);
/// "graphics": the cover of the printed booklet.
void MakeBookletArt(const QString& disc);

} // namespace torvik::sample
