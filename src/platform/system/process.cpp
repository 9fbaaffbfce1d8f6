#include "platform/system/process.h"

#include "platform/paths/drives.h"
#include "runtime/failure.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

#include <utility>

namespace torvik {

namespace {

/// Lets the started program go on when its object ends; Qt's own class would kill it.
class Started : public QProcess {
public:
    ~Started() override { setProcessState(QProcess::NotRunning); }
};

/// The words of a command line. Quotes keep blanks together and are taken away; nothing else has a meaning.
QStringList Words(const QString& commandLine)
{
    QStringList words;
    QString word;
    bool isQuoted = false;
    bool isOpen = false;
    for (const QChar character : commandLine) {
        if (character == u'"') {
            isQuoted = !isQuoted;
            isOpen = true;
        } else if (!isQuoted && (character == u' ' || character == u'\t')) {
            if (isOpen)
                words.append(std::exchange(word, QString()));
            isOpen = false;
        } else {
            word.append(character);
            isOpen = true;
        }
    }
    if (isOpen)
        words.append(word);
    return words;
}

bool IsPlainName(const QString& program)
{
    return !program.contains(u'\\') && !program.contains(u'/') && !program.contains(u':');
}

/// The host's file of a program. Failure 53 when there is none.
QString ProgramFile(const QString& program)
{
    QString file = IsPlainName(program) ? QStandardPaths::findExecutable(program) : HostPath(program);
    if (file.isEmpty() || !QFileInfo(file).isFile())
        Fail(failure::fileNotFound);
    return file;
}

} // namespace

RunningProcess::RunningProcess(const QString& commandLine) : process_(std::make_unique<Started>())
{
    QStringList words = Words(commandLine);
    if (words.isEmpty() || words.first().isEmpty())
        Fail(failure::invalidCall);
    const QString program = ProgramFile(words.takeFirst());
    process_->setProcessChannelMode(QProcess::ForwardedChannels);
    process_->setStandardInputFile(QProcess::nullDevice());
    process_->start(program, words);
    if (!process_->waitForStarted(-1))
        Fail(failure::invalidCall);
}

RunningProcess::~RunningProcess() = default;

int RunningProcess::ExitCode() const
{
    if (process_->state() != QProcess::NotRunning)
        process_->waitForFinished(0);
    return process_->state() == QProcess::NotRunning ? process_->exitCode() : stillActive;
}

} // namespace torvik
