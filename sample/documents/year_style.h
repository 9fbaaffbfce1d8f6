#pragma once

#include "sample/documents/article.h"

namespace torvik::sample {

enum class YearArticle { Description, Statistics, Colours, Options, Nostalgia };

/// An empty article of the year in the manner of its kind: each model generation has its accent colour, and
/// the library of articles was written over years with the word processor at hand.
Article NewYearArticle(int year, YearArticle kind, const QString& title);

} // namespace torvik::sample
