#pragma once

#include <QString>

namespace torvik {

/// The text with each "&" doubled, so that it shows as a plain ampersand in a menu caption.
QString DoubleAmpersands(const QString& text);

/// Makes the panel of the copy progress invisible.
void HideProgressPanel();

} // namespace torvik
