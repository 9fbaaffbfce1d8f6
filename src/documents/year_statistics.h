#pragma once

namespace torvik {

/// Ties cmdStats to the statistics of the year or topic on show, which is an article in the viewer or a note
/// of the photo in rtbDetails, and rtbDetails to its own click.
void BindYearStatistics();

} // namespace torvik
