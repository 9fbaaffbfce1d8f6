#pragma once

#include "bind_handlers.h"
#include "browsing.h"

#include <QApplication>

namespace torvik::bench {

/// The whole `main` of a bench that drives the program's forms: a home of its own, the handlers bound, and
/// `measure`, which tells whether all figures are within their limits. Gives the exit code.
template <typename Measure>
int RunBench(int argc, char** argv, Measure&& measure)
{
    const Home home;
    const QApplication application(argc, argv);
    BindHandlers();
    return measure() ? 0 : 1;
}

} // namespace torvik::bench
