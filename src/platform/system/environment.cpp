#include "platform/system/environment.h"

namespace torvik {

void SetEnvironmentDefault(const char* variable, const char* value)
{
    if (qEnvironmentVariableIsEmpty(variable))
        qputenv(variable, value);
}

HeldVariable::HeldVariable(const char* variable, const QByteArray& value) : variable_(variable)
{
    if (qEnvironmentVariableIsSet(variable))
        before_ = qgetenv(variable);
    qputenv(variable, value);
}

HeldVariable::~HeldVariable()
{
    if (before_)
        qputenv(variable_, *before_);
    else
        qunsetenv(variable_);
}

double FactorInEnvironment(const char* variable)
{
    const double factor = qgetenv(variable).toDouble();
    return factor > 0 ? factor : 1;
}

} // namespace torvik
