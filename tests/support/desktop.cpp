#include "support/desktop.h"

#include <QDesktopServices>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

QStringList Schemes()
{
    return {u"http"_s, u"https"_s, u"mailto"_s, u"file"_s};
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
