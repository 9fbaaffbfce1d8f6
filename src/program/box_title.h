#pragma once

#include <QString>

namespace torvik {

using namespace Qt::StringLiterals;

/// The title of the boxes that are not the program's own name in full.
inline const QString boxTitle = u"The Torvik Vollandry"_s;

} // namespace torvik
