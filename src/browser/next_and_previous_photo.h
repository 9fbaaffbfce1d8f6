#pragma once

namespace torvik {

/// Shows the next photo of the year or topic on show; after the last one, the first. A failure is reported as
/// ER012. When no photo has the code at all, nothing changes.
void StepPhotoForward();

/// Shows the previous photo; before the first one, the last. A failure is reported as ER011; after that of
/// the photo itself no other one is. When no photo has the code at all, nothing changes.
void StepPhotoBackward();

/// Shows the photo at an index of the list as a step forward does. It must be one of the year or topic on
/// show.
void StepToPhoto(int index);

} // namespace torvik
