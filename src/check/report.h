#pragma once

#include "check/finding.h"

#include <QByteArray>

namespace torvik {

/// The report for people: a line for each finding in aligned columns, then how many there are of each kind.
/// `inColour`: with the colours of terminals.
QString ReportText(const CheckResult& result, bool inColour);

/// The report for programs; docs/disc-layout.md describes it.
QByteArray ReportJson(const CheckResult& result);

/// The bar that a terminal shows meanwhile, without an end of line.
QString ProgressLine(int done, int all);

} // namespace torvik
