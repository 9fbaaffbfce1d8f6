#pragma once

#include <QString>

namespace torvik {

/// How large everything is drawn: what --scale says, which is remembered, else what it said last. "auto"
/// forgets it. Settings that cannot be written or read are no hindrance.
QString ChosenScale(const QString& given);

} // namespace torvik
