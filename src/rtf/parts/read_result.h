#pragma once

namespace torvik::rtf {

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
    /// Rows of tables are to have heights of their own.
    bool hasRowHeights = false;
    int paragraphs = 0;
    int tables = 0;
    /// Pictures that are shown.
    int pictures = 0;
    /// Pictures that are not, because nothing could be made of their bytes.
    int lostPictures = 0;
};

} // namespace torvik::rtf
