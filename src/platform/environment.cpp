#include "platform/environment.h"

#include <QtGlobal>

namespace torvik {

void SetEnvironmentDefault(const char* variable, const char* value)
{
    if (qEnvironmentVariableIsEmpty(variable))
        qputenv(variable, value);
}

} // namespace torvik
