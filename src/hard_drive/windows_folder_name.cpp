#include "hard_drive/windows_folder_name.h"

#include "platform/folders/host_name.h"
#include "platform/paths/program_folder.h"
#include "runtime/text.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// The system's way of giving a text: into a buffer, with a zero character after it. A text that does not
/// fit leaves the buffer as it is.
void PutInto(QString& buffer, const QString& answer)
{
    const QString text = answer + QChar(u'\0');
    if (text.size() <= buffer.size())
        buffer.replace(0, text.size(), text);
}

} // namespace

QString CutOutOfBuffer(const QString& answer)
{
    constexpr int bufferSize = 255;
    QString buffer(bufferSize, u' ');
    PutInto(buffer, answer);
    return Left(buffer, InStr(buffer, u" "_s) - 2);
}

QString WindowsFolderName()
{
    return CutOutOfBuffer(WindowsFolder().replace(u' ', standInBlank));
}

} // namespace torvik
