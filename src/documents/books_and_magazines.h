#pragma once

#include <QString>

namespace torvik {

/// Opens the document of a menu entry, "mnuBooks"; it must be one of the library's.
void ShowLibraryDocument(const QString& entry);

/// Open the magazine (1 to 5), the press release (1 to 3), the miscellaneous document (1 to 4) of a menu
/// entry. Another index, which no entry has, opens what `state.DocumentFile` already names.
void ShowMagazine(int index);
void ShowPressRelease(int index);
void ShowMiscellaneous(int index);

/// Two documents that no menu entry reaches.
void ShowSiblingGuide();
void ShowEngines();

} // namespace torvik
