#pragma once

#include <QString>

namespace torvik {

enum class SlideWalk { Forward, Backward };

/// Shows the photo at `state.PhotoIndex` and has its neighbours read ahead, those in the direction of the
/// walk first. Failure 9 when there is no such index, or one of loading a picture; the photo before stays
/// then.
void LoadSlide(SlideWalk walk = SlideWalk::Forward);

/// Writes the position of `state.PhotoIndex`, "5 of 900".
void ShowSlidePosition();

/// Reports the failure that is being handled under a code of the slide show.
void ReportSlideFailure(const QString& code);

/// Puts the title for the photo at `state.PhotoIndex` on panYear. Failure 9 when there is no such index.
void SetSlideCaption();

} // namespace torvik
