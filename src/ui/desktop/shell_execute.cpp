#include "ui/desktop/shell_execute.h"

#include <QDesktopServices>
#include <QStringList>
#include <QUrl>

namespace torvik {

namespace {
constexpr std::int32_t taken = 33;
constexpr std::int32_t noProgram = 31;
} // namespace

std::int32_t ShellExecute(const QString& address)
{
    static const QStringList schemes{QStringLiteral("http"), QStringLiteral("https"),
                                     QStringLiteral("mailto")};
    const QUrl url(address);
    return schemes.contains(url.scheme().toLower()) && QDesktopServices::openUrl(url) ? taken : noProgram;
}

} // namespace torvik
