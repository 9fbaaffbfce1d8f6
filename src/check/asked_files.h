#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace torvik {

/// How much a screen needs a file that it asks for.
enum class Need {
    Known,    ///< a table names it, but no button that works leads to it
    Optional, ///< its screen shows or plays it where it is there
    Remark,   ///< the program has always lived without it
    Full,     ///< without it the screen shows an error instead
};

/// A file that screens ask for.
struct AskedFile {
    QString path; ///< from the disc's root on, as the first screen spells it: "richtext\67desc.rtf"
    QStringList screens;
    Need most = Need::Known; ///< of all its screens
};

/// The form of a path by which files are the same: letter case does not count, nor a backslash in front.
QString FoldedPath(const QString& path);

/// All files that any button, menu entry, list or printed page asks a disc for, by their folded paths. They
/// come from the tables that the handlers read. `photos` are the names of the disc's photos, on which
/// captions and notes depend.
QHash<QString, AskedFile> AskedFiles(const QStringList& photos);

/// What a person calls the screen of a photo: "1967", "Torvik Kestra I".
QString ScreenOfPhoto(const QString& photo);

} // namespace torvik
