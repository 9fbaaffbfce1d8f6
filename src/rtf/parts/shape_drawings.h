#pragma once

namespace torvik::rtf {

struct DocumentState;

/// Puts what was drawn in the paragraph that is being read before or after it, as pictures: shapes that
/// lie close together share one.
void PlaceDrawings(DocumentState& document);

} // namespace torvik::rtf
