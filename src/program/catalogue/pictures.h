#pragma once

#include <QString>

#include <span>

namespace torvik {

// What the screens ask the disc for in pictures beside the photos, under its root.

/// Emblem and script of a title. Two topics have some of their own; all else goes by the title's third and
/// fourth character.
QString EmblemOf(const QString& title);
QString ScriptOf(const QString& title);

/// The clip art of a year's two digits.
QString ClipArtOf(const QString& code);

/// The advertisement of the title's third and fourth character.
QString AdvertisementOf(const QString& title);

/// A picture on the cover of the printed booklet.
struct CoverPicture {
    const char* file;
    double x; ///< twips, like Y
    double y;
};

std::span<const CoverPicture> CoverPictures();

} // namespace torvik
