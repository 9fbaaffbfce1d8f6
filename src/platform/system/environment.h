#pragma once

#include <QByteArray>

#include <optional>

namespace torvik {

/// Gives a variable of the environment a value, unless the user has set one that is not empty.
void SetEnvironmentDefault(const char* variable, const char* value);

/// Holds a variable of the environment at another value for the length of a scope.
class HeldVariable {
public:
    HeldVariable(const char* variable, const QByteArray& value);
    ~HeldVariable();
    HeldVariable(const HeldVariable&) = delete;
    HeldVariable& operator=(const HeldVariable&) = delete;

private:
    const char* variable_;
    std::optional<QByteArray> before_;
};

/// The variable's value as a number; 1 where it has none above 0.
double FactorInEnvironment(const char* variable);

} // namespace torvik
