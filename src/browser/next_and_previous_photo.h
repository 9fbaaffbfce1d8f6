#pragma once

namespace torvik {

/// Shows the next photo of the year or topic on show, after the last one the first. A failure is reported as
/// ER012. When no photo has the code at all, nothing changes.
void StepPhotoForward();

/// Shows the photo before, before the first one the last. A failure is reported as ER011.
/// When no photo has the code at all, nothing changes.
void StepPhotoBackward();

} // namespace torvik
