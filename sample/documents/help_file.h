#pragma once

#include <QByteArray>
#include <QString>

namespace torvik::sample {

/// The help as rich text: its chapters are headings with bookmarks, and links lead from one to the other.
QByteArray HelpText();

/// "Torvik2001.HLP" in the program folder.
void MakeHelpFile(const QString& program);

} // namespace torvik::sample
