#pragma once

#include "runtime/failure.h"

namespace torvik {

/// The number of the failure that `statement` ends with, 0 when it goes through.
template <typename Statement>
int FailureOf(Statement&& statement)
{
    try {
        statement();
    } catch (const RunTimeError& error) {
        return error.Number();
    }
    return 0;
}

} // namespace torvik
