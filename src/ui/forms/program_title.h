#pragma once

#include <QString>

namespace torvik {

using namespace Qt::StringLiterals;

/// The title of the program: it stands on every box that gives no title of its own, and names the settings.
inline const QString applicationTitle = u"The Torvik Vollandry 2001"_s;

} // namespace torvik
