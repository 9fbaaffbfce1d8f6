#pragma once

namespace torvik {

/// Fills PhotoFiles, PhotoNumbers and PhotoCount from the listing of `state.PhotoRoot`: full paths in
/// ascending binary order of their upper-cased names, each with its number inside its prefix group, and one
/// empty element at the end. A failure, lack of memory included, is reported as ER037; Retry goes on at the
/// statement that failed. The list holds 32767 elements at most.
void BuildPhotoSet();

} // namespace torvik
