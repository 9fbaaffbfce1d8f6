#pragma once

#include <QString>

namespace torvik {

/// An installed program lies where its user may not write, so its program folder is another one. This brings
/// there what lies beside the executable: the start-up sound, the help, the opening picture, the screen
/// saver. What is there and not older stays. Nothing happens for a folder that the user chose, nor where a
/// file is missing or cannot be copied: the program goes on without it.
void SupplyProgramFolder();

/// The same for given folders of the host.
void SupplyFolder(const QString& from, const QString& to);

} // namespace torvik
