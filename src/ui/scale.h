#pragma once

#include <QSizeF>
#include <QString>

namespace torvik {

/// How large everything is drawn, as a user says it: a factor from 1 to 8 such as "1.5", or "fit", or "auto".
bool IsScale(const QString& scale);
/// What is wrong with a text that is none, in words for the user.
QString ScaleProblem(const QString& scale);

/// The factor for that. "fit" is the largest quarter step at which a window of 800 by 600 fits into the work
/// area (in the display's own pixels). "auto", as any other text, is the desktop's own factor where that is
/// not 1, else the largest whole number at which such a window fits.
double ScaleFactor(const QString& scale, double desktopFactor, const QSizeF& workArea);

} // namespace torvik
