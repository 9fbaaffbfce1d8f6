#pragma once

namespace torvik {

/// Ties cmdDesc, cmdColors, cmdOptions and cmdNostalgia to the articles of the year or topic on show.
void BindYearArticles();

} // namespace torvik
