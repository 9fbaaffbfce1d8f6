#pragma once

namespace torvik {

/// Fills `state.MovieFiles` and `state.MovieCount` with the movies of the disc, in capitals, and leaves an
/// empty element after the last one. Without any movie the count stays what it was. A failure is reported as
/// "ER055", and the next statement runs.
void BuildMovieList();

} // namespace torvik
