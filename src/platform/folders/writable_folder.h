#pragma once

#include <QString>

namespace torvik {

/// Whether files can be made in a folder of the host, found out by making one without a trace. The permission
/// bits alone do not tell: they do not bind the administrator, and a read-only medium may carry any.
bool IsWritableFolder(const QString& hostFolder);

} // namespace torvik
