#pragma once

#include "rtf/parts/read_result.h"

#include <QByteArray>

class QTextDocument;

namespace torvik::rtf {

/// Shows bytes that are no rich text: as UTF-8 or UTF-16 where they are, else as Windows-1252.
ReadResult ReadPlainText(const QByteArray& bytes, QTextDocument& into);

} // namespace torvik::rtf
