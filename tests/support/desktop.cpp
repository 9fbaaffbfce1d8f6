#include "support/desktop.h"

#include <QDesktopServices>

namespace torvik {

namespace {

QStringList Schemes()
{
    return {QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("mailto"),
            QStringLiteral("file")};
}

} // namespace

Desktop::Desktop()
{
    for (const QString& scheme : Schemes())
        QDesktopServices::setUrlHandler(scheme, this, "Open");
}

Desktop::~Desktop()
{
    for (const QString& scheme : Schemes())
        QDesktopServices::unsetUrlHandler(scheme);
}

} // namespace torvik
