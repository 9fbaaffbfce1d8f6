#include "platform/system/environment.h"

#include <QByteArray>

namespace torvik {

void SetEnvironmentDefault(const char* variable, const char* value)
{
    if (qEnvironmentVariableIsEmpty(variable))
        qputenv(variable, value);
}

} // namespace torvik
