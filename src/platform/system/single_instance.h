#pragma once

namespace torvik {

/// Whether an earlier instance of this program of the same user is running. The first call that answers
/// false makes this process the running instance until it ends, however it ends: a crash leaves nothing
/// behind.
bool PreviousInstance();

/// Gives the claim up again, for the tests.
void ReleaseInstance();

} // namespace torvik
