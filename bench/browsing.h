#pragma once

#include "platform/paths/drives.h"
#include "platform/paths/program_folder.h"
#include "ui/forms/clock.h"
#include "ui/forms/message_box.h"
#include "windows/main_window.h"
#include "windows/splash.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QTemporaryDir>

namespace torvik::bench {

using namespace Qt::StringLiterals;

/// No screen, and a home of its own, so that nothing of the person at the machine is read or written. To be
/// made before the application object.
class Home {
public:
    Home()
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("XDG_DATA_HOME", folder_.path().toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", folder_.path().toLocal8Bit());
    }
    QString Folder() const { return folder_.path(); }

private:
    QTemporaryDir folder_;
};

/// Writes a file, and its folder where that is missing. A bench without its files ends.
inline void Write(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

/// Answers each message box at once, so that none holds a measurement up.
inline void AnswerOk()
{
    SetMessageResponder([](const MessageRequest&) { return msgbox::answerOk; });
}

/// Puts a disc in drive E:. The clock stands still then.
inline void PutDiscIn(const QString& disc, const QString& programFolder)
{
    SetProgramFolder(programFolder);
    SetDriveOptions({{u'E', disc}});
    Clock::StopAt(QDateTime::currentDateTime());
}

/// Starts the program on a disc and lets the five seconds of the splash pass.
inline void StartBrowsing(const QString& disc, const QString& programFolder)
{
    PutDiscIn(disc, programFolder);
    Form2.LoadForm();
    Clock::Turn(5000);
    QCoreApplication::processEvents();
}

} // namespace torvik::bench
