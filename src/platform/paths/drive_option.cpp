#include "platform/paths/drive_option.h"

#include <QRegularExpression>

namespace torvik {

std::optional<DriveOption> ReadDriveOption(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("^([D-Zd-z]):?=(.+)$"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    return DriveOption{match.captured(1).at(0).toUpper(), match.captured(2)};
}

QString DriveOptionProblem(const QString& text)
{
    return QStringLiteral(
               "--drive takes a letter from D to Z and a folder, such as E=/media/disc; not \"%1\".")
        .arg(text);
}

} // namespace torvik
