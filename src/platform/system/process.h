#pragma once

#include <QString>

#include <memory>

class QProcess;

namespace torvik {

/// A started program that can be asked for its exit code, as RunAndWait does.
class RunningProcess {
public:
    /// The exit code of a process that is still running.
    static constexpr int stillActive = 259;

    /// Starts a command line: a program by its drive path or plain name, then its arguments; quotes hold a
    /// name with blanks together. Failures: 53 File not found, 5 when it cannot be started, 68.
    explicit RunningProcess(const QString& commandLine);
    ~RunningProcess();
    RunningProcess(const RunningProcess&) = delete;
    RunningProcess& operator=(const RunningProcess&) = delete;

    /// 259 while it runs, afterwards its exit code. Asks the system anew at each call, without waiting.
    int ExitCode() const;

private:
    std::unique_ptr<QProcess> process_;
};

} // namespace torvik
