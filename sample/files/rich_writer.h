#pragma once

#include "sample/files/rich_document.h"

#include <QByteArray>

namespace torvik::sample {

/// The document as rich text in its dialect. The same document gives the same bytes.
/// Throws std::runtime_error where a drawing cannot be encoded.
QByteArray WriteRichText(const RichDocument& document);

} // namespace torvik::sample
