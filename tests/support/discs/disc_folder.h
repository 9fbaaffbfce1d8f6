#pragma once

#include "platform/paths/drives.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace torvik {

using namespace Qt::StringLiterals;

/// The drive path of something in the folder or image that stands as drive E:.
inline QString On(const char* path)
{
    return u"E:\\"_s + QString::fromUtf8(path);
}

/// A temporary folder that stands as drive E: while it lives. Names are bytes, so that any can be made.
class DiscFolder {
public:
    DiscFolder()
    {
        SetDriveOptions({{u'E', folder_.path()}});
        chmod(Host().c_str(), 0755);
    }
    ~DiscFolder() { SetDriveOptions({}); }
    DiscFolder(const DiscFolder&) = delete;
    DiscFolder& operator=(const DiscFolder&) = delete;

    QString Path() const { return folder_.path(); }
    std::string Host(const std::string& name = {}) const
    {
        return folder_.path().toStdString() + (name.empty() ? "" : "/" + name);
    }
    /// Makes a folder; false when that fails.
    bool Folder(const std::string& name) const { return mkdir(Host(name).c_str(), 0755) == 0; }
    /// Makes a file with the given content; false when that fails.
    bool File(const std::string& name, const std::string& content = {}) const
    {
        const int file = open(Host(name).c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
        const bool isWritten =
            file >= 0 && write(file, content.data(), content.size()) == static_cast<ssize_t>(content.size());
        return file >= 0 && close(file) == 0 && isWritten;
    }
    bool Link(const std::string& target, const std::string& name) const
    {
        return symlink(target.c_str(), Host(name).c_str()) == 0;
    }
    bool Remove(const std::string& name) const { return remove(Host(name).c_str()) == 0; }
    void Vanish() { folder_.remove(); }

private:
    QTemporaryDir folder_;
};

} // namespace torvik
