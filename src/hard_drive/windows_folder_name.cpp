#include "hard_drive/windows_folder_name.h"

#include "platform/paths/program_folder.h"
#include "runtime/text.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// The platform's way of giving a text: into a buffer, with a zero character behind it. A text that does not
/// fit leaves the buffer as it is.
void GetWindowsDirectory(QString& buffer)
{
    const QString answer = WindowsFolder() + QChar(u'\0');
    if (answer.size() <= buffer.size())
        buffer.replace(0, answer.size(), answer);
}

} // namespace

QString WindowsFolderName()
{
    constexpr int bufferSize = 255;
    QString buffer(bufferSize, u' ');
    GetWindowsDirectory(buffer);
    return Left(buffer, InStr(buffer, u" "_s) - 2);
}

} // namespace torvik
