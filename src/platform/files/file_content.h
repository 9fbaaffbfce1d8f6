#pragma once

#include <QByteArray>

namespace torvik {

struct Place;

/// The whole content of a file, on any thread. Failures: 53 File not found, 76 Path not found, 70 Permission
/// denied or 75 (not readable, a folder), 57 Device I/O error, 67 Too many files, 7 Out of memory (also for
/// 2 GiB and more).
QByteArray ContentOf(const Place& place);

} // namespace torvik
