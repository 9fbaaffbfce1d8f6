#pragma once

#include "sample/documents/article.h"
#include "sample/files/rich_document.h"

namespace torvik::sample {

enum class YearArticle { Description, Statistics, Colours, Options, Nostalgia };

/// An empty article of the year in the manner of its kind: each model generation has its accent colour, and
/// the library of articles was written over years with the word processor at hand.
Article NewYearArticle(int year, YearArticle kind, const QString& title);

/// The five articles of a model year, 1967 to 2001. Their figures come from one table, so that they agree.
RichDocument YearDescription(int year);
RichDocument YearStatistics(int year);
RichDocument YearColours(int year);
RichDocument YearOptions(int year);
RichDocument YearNostalgia(int year);

/// The figures of all years side by side.
RichDocument LibraryStatistics();

} // namespace torvik::sample
