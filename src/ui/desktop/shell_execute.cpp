#include "ui/desktop/shell_execute.h"

#include <QDesktopServices>
#include <QStringList>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {
constexpr std::int32_t taken = 33;
constexpr std::int32_t noProgram = 31;
} // namespace

std::int32_t ShellExecute(const QString& address)
{
    static const QStringList schemes{u"http"_s, u"https"_s, u"mailto"_s};
    const QUrl url(address);
    return schemes.contains(url.scheme().toLower()) && QDesktopServices::openUrl(url) ? taken : noProgram;
}

} // namespace torvik
