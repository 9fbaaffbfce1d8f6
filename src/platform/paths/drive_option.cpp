#include "platform/paths/drive_option.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace torvik {

std::optional<DriveOption> ReadDriveOption(const QString& text)
{
    static const QRegularExpression form(u"^([D-Zd-z]):?=(.+)$"_s);
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    return DriveOption{match.captured(1).at(0).toUpper(), match.captured(2)};
}

QString DriveOptionProblem(const QString& text)
{
    return u"--drive takes a letter from D to Z and a folder or a disc image, such as E=/media/disc; not \"%1\"."_s
        .arg(text);
}

} // namespace torvik
