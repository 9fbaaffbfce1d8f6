#pragma once

namespace torvik::rtf {

/// The page that the document was written for, twips.
struct PageMeasures {
    int width = 12240;
    int leftMargin = 1800;
    int rightMargin = 1800;
    /// The page that is being read, from 1, as far as breaks that are told bring it.
    int number = 1;

    int TextWidth() const { return width - leftMargin - rightMargin; }
};

} // namespace torvik::rtf
