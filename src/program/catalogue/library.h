#pragma once

#include <QString>

#include <span>

namespace torvik {

/// How a library document's title reaches the window.
enum class TitleWay {
    Stored,       ///< in DocumentTitle before the viewer is touched: its Load shows it
    Late,         ///< in DocumentTitle after the file: the window still shows the title before
    DirectBefore, ///< on the window, before the file
    DirectAfter,  ///< on the window, after the file
};

/// A document that is the same whatever year is on show.
struct LibraryDocument {
    const char* entry;  ///< name of its menu entry, "mnuMag(2)"
    const char* screen; ///< where a person finds that: "Literature > Torvik Books"; empty without a way
    const char* file;   ///< under the disc's root; none keeps what DocumentFile names
    const char* title;  ///< of the window, after the product's name
    const char* errorCode;
    TitleWay way;
    bool comesToFront = false;
    bool settlesButtons = true; ///< repeats what the viewer's Load did to its buttons
    bool hasNarrowTitle = false;
};

std::span<const LibraryDocument> LibraryDocuments();

/// The document of a menu entry; null for a name that no entry has.
const LibraryDocument* LibraryDocumentOf(const QString& entry);

/// The whole window title.
QString WindowTitleOf(const LibraryDocument& document);

} // namespace torvik
