#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace torvik {

/// What can be said of a file of a disc. The order is that of the report.
enum class FindingKind {
    Missing,    ///< a screen asks for it and it is not there
    Empty,      ///< it has no bytes
    Unreadable, ///< the disc does not give it, or not to its end
    Damaged,    ///< its content is not what its name promises, or not all of it
    NeverAsked, ///< no screen asks for it
    Odd,        ///< it works, but is hardly meant so
    Remark,     ///< what the program itself lives with
};

/// One line of the report.
struct Finding {
    FindingKind kind = FindingKind::Missing;
    QString file;        ///< from the disc's root on, "Torviks\67TOR001.JPG"
    QString what;        ///< in words for the user, without a point
    QStringList screens; ///< that suffer, "1972 > Advertisement"
};

/// The kind in one word, as the machine-readable report has it: "missing", "never-asked".
QString KindWord(FindingKind kind);

/// What was found on a disc.
struct CheckResult {
    QString disc; ///< as it was named, or where it was found
    int fileCount = 0;
    qint64 bytes = 0;
    QList<Finding> findings; ///< by kind and file

    int CountOf(FindingKind kind) const;
    /// Whether there is nothing but remarks.
    bool IsWhole() const;
};

} // namespace torvik
