#include "runtime/logging.h"

using namespace Qt::StringLiterals;

namespace torvik {

Q_LOGGING_CATEGORY(logStart, "torvik.start", QtWarningMsg)
Q_LOGGING_CATEGORY(logDisc, "torvik.disc", QtWarningMsg)
Q_LOGGING_CATEGORY(logFiles, "torvik.files", QtWarningMsg)
Q_LOGGING_CATEGORY(logMedia, "torvik.media", QtWarningMsg)
Q_LOGGING_CATEGORY(logPrint, "torvik.print", QtWarningMsg)

void LogEverything()
{
    QLoggingCategory::setFilterRules(u"torvik.*=true"_s);
}

} // namespace torvik
