#pragma once

#include <QString>

namespace torvik {

/// Shows the photo at `state.PhotoIndex`. Failure 9 when there is no such index, or one of loading a picture;
/// the photo before stays then.
void LoadSlide();

/// Writes the position of `state.PhotoIndex`, "5 of 900".
void ShowSlidePosition();

/// Reports the failure that is being handled under a code of the slide show.
void ReportSlideFailure(const QString& code);

/// Puts the title for the photo at `state.PhotoIndex` on panYear. Failure 9 when there is no such index.
void SetSlideCaption();

} // namespace torvik
