#pragma once

#include <QString>

namespace torvik::rtf {

/// The result of a calculation with plain numbers such as `1 + 2 * (3 - 4) / 5 ^ 6`, worked out from the left
/// with the usual precedence. `picture` may tell decimals and thousands (`0.00`, `#,##0`); else there are two
/// decimals at most. Empty for everything else: cells, functions, a division by nought, a number that is too
/// large.
QString CalculationText(const QString& formula, const QString& picture);

} // namespace torvik::rtf
