#pragma once

#include "rtf/parts/read_result.h"

#include <QByteArray>

#include <stop_token>

class QTextDocument;

namespace torvik::rtf {

/// Shows bytes that are no rich text: as UTF-8 or UTF-16 where they are, else as Windows-1252. Leaves out
/// what comes after `stop` was asked for.
ReadResult ReadPlainText(const QByteArray& bytes, QTextDocument& into, const std::stop_token& stop);

} // namespace torvik::rtf
