#pragma once

#include <QByteArray>
#include <QString>

namespace torvik::sample {

/// A short rich-text document: a bold heading, and a paragraph under it.
QByteArray ShortDocument(const QString& heading, const QString& text);
/// The text with what rich text reserves written by its escapes.
QByteArray RtfEscaped(const QString& text);

} // namespace torvik::sample
