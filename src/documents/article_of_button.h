#pragma once

#include "program/catalogue/articles.h"

namespace torvik {

/// Looks the article of a button up for the title in panYear. `state.DocumentFile` becomes its path, empty
/// when the disc has none. Returns the window title.
QString FindArticle(ArticleButton button);

} // namespace torvik
