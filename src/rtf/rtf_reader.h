#pragma once

#include "rtf/parts/read_result.h"
#include "rtf/write/keep_together.h"

#include <QByteArray>
#include <QString>

class QTextDocument;

namespace torvik::rtf {

/// Whether bytes begin as rich text does; blanks and a byte-order mark before it are passed over.
bool LooksLikeRtf(const QByteArray& bytes);

/// Reads rich text into a document, whose former contents go. Bytes that are no rich text become plain text:
/// as UTF-8 when they are valid, else as Windows-1252. Never fails and never throws; nothing outside the
/// bytes is read. Lengths in the document are pixels at 96 to the inch, pictures are resources named
/// "rtf-picture:1" and so on.
ReadResult ReadRichText(const QByteArray& bytes, QTextDocument& into);

/// The text of a document alone, paragraphs ended by '\n'.
QString PlainText(const QByteArray& bytes);

} // namespace torvik::rtf
