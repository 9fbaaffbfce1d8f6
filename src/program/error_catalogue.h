#pragma once

#include <QString>

namespace torvik {

/// What the catalogue of errors says of a code.
struct CatalogueEntry {
    QString text;         ///< with its leading blank; empty for a code that is not in the catalogue
    bool retry = false;   ///< Retry and Cancel instead of OK
    bool discHint = true; ///< the last paragraph reminds of the disc
};

/// The entry of a code, "ER001". The text of ER032 ends with the sound file from its sixth character on.
CatalogueEntry CatalogueEntryOf(const QString& code);

} // namespace torvik
