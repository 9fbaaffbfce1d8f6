#pragma once

#include <QByteArray>
#include <QString>
#include <QTextFormat>

class QTextDocument;

namespace torvik::rtf {

/// True in the block format of a paragraph that is to stand on one page. The toolkit itself knows nothing
/// like it: lines that it calls unbreakable are never wrapped.
inline constexpr int keepTogetherProperty = QTextFormat::UserProperty + 1;

/// What came of reading a document.
struct ReadResult {
    /// False for bytes that are not rich text and were shown as plain text.
    bool wasRtf = false;
    /// There were no bytes at all.
    bool wasEmpty = false;
    /// The document ended early, or a part of it could not be read. What could be read is there.
    bool wasDamaged = false;
    /// Something was left out because the document grew out of proportion to its file.
    bool wasCut = false;
    int paragraphs = 0;
    int tables = 0;
    /// Pictures that are shown.
    int pictures = 0;
    /// Pictures that are not, because nothing could be made of their bytes.
    int lostPictures = 0;
};

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
