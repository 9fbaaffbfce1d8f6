#pragma once

#include <QString>

#include <functional>
#include <memory>

class QApplication;

namespace torvik {

/// Qt's application object with the program's look. One lives while the program runs.
class Application {
public:
    /// Takes the command line's arguments out that are Qt's own (-platform, -style, ...).
    /// `scale` is how large everything is drawn (see ui/scale.h).
    Application(int& argc, char** argv, const QString& scale = {});
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    /// Runs `start` as the first handler, then the event loop until the program ends. Returns the exit code.
    int Run(const std::function<void()>& start);

private:
    std::unique_ptr<QApplication> application_;
};

/// Lets all pending events run once, then returns; the program's own long loops call it each round.
void DoEvents();

/// Lets pending events run and waits a moment for more, so that waiting for something outside costs nothing.
void WaitForEvents();

} // namespace torvik
