#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <cstring>
#include <sys/inotify.h>
#include <unistd.h>

namespace torvik {

/// Which files of a folder of the host anybody opens while this lives, in that order, each as often as it is
/// opened.
class OpenedFiles {
public:
    explicit OpenedFiles(const QString& folder) : watch_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        // The closing too, since like events in a row come as one.
        const std::uint32_t events = IN_OPEN | IN_CLOSE;
        if (inotify_add_watch(watch_, QFile::encodeName(folder).constData(), events) < 0)
            qFatal("cannot watch a folder");
    }
    ~OpenedFiles() { close(watch_); }
    OpenedFiles(const OpenedFiles&) = delete;
    OpenedFiles& operator=(const OpenedFiles&) = delete;

    /// Their names since the last call.
    QStringList Names() const
    {
        constexpr qsizetype room = 16384; // bytes
        QByteArray bytes(room, '\0');
        QStringList names;
        for (;;) {
            const ssize_t got = read(watch_, bytes.data(), static_cast<std::size_t>(room));
            if (got <= 0)
                return names;
            for (ssize_t place = 0; place < got;) {
                inotify_event event{};
                std::memcpy(&event, bytes.constData() + place, sizeof event);
                if ((event.mask & IN_OPEN) != 0 && (event.mask & IN_ISDIR) == 0)
                    names.append(QFile::decodeName(bytes.constData() + place + sizeof event));
                place += static_cast<ssize_t>(sizeof event + event.len);
            }
        }
    }

private:
    int watch_;
};

} // namespace torvik
