#pragma once

#include <QString>

namespace torvik {

using namespace Qt::StringLiterals;

/// A special topic: what its title in panYear stands for.
struct Topic {
    const char* Title;      ///< with its trailing blank
    const char* Code;       ///< the prefix of its photos
    bool RenamesStatistics; ///< cmdStats reads "Details" while it is selected
    bool HasDescription;    ///< cmdDesc is enabled
    bool HasStatistics;     ///< cmdStats is enabled
    bool DropsOverlays;     ///< emblem, script and clip art make way for it
};

/// The topic of a title; null for a year and for a title that the catalogue does not hold.
const Topic* TopicOf(const QString& title);

/// The title of the coupe that keeps some of a year's buttons.
inline const QString classicHarwell = u"The Classic Harwell "_s;

/// The caption of the slide show for the prefix of a photo; a year's is followed by a blank.
QString SlideCaptionOf(const QString& prefix);

/// Puts the caption for the photo at `state.PhotoIndex` on panYear of frmSlide. Failure 9 when there is no
/// photo at that index.
void SetSlideCaption();

} // namespace torvik
