#pragma once

#include <QString>

namespace torvik {

using namespace Qt::StringLiterals;

/// The short title, of boxes that report or ask; other boxes bear the program's full name.
inline const QString boxTitle = u"The Torvik Vollandry"_s;

} // namespace torvik
