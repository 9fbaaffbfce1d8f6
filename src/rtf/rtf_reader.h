#pragma once

#include "rtf/paint/extra_lines.h"
#include "rtf/paint/format_properties.h"
#include "rtf/paint/letter_shadows.h"
#include "rtf/parts/read_result.h"

#include <QByteArray>
#include <QString>

#include <stop_token>

class QTextDocument;

namespace torvik::rtf {

/// Whether bytes are rich text. Up to 4 KiB of anything else before it are passed over, and the first brace
/// may be missing.
bool LooksLikeRtf(const QByteArray& bytes);

/// Reads rich text into a document, whose former contents go. Bytes that are no rich text become plain text:
/// as UTF-8 when they are valid, else as Windows-1252. Never fails and never throws; nothing outside the
/// bytes is read. Lengths in the document are pixels at 96 to the inch, pictures are resources named
/// "rtf-picture:1" and so on.
ReadResult ReadRichText(const QByteArray& bytes, QTextDocument& into);

/// The text of a document alone, paragraphs ended by '\n'. Once `stop` is asked for, from any thread, it
/// soon returns what it has so far.
QString PlainText(const QByteArray& bytes, const std::stop_token& stop = {});

} // namespace torvik::rtf
