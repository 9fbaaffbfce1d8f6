#pragma once

#include "sample/files/rich_document.h"

namespace torvik::sample {

/// The five articles of a model year, 1967 to 2001. Their figures come from one table, so that they agree.
RichDocument YearDescription(int year);
RichDocument YearStatistics(int year);
RichDocument YearColours(int year);
RichDocument YearOptions(int year);
RichDocument YearNostalgia(int year);

} // namespace torvik::sample
