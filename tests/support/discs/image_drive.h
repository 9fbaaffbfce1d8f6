#pragma once

#include "platform/paths/drives.h"

#include <QByteArray>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace torvik {

using namespace Qt::StringLiterals;

/// A folder for image files, one of which stands as drive E: while it lives.
class ImageDrive {
public:
    ImageDrive() = default;
    explicit ImageDrive(const QByteArray& image)
    {
        Write(u"disc.iso"_s, image);
        Stand(u"disc.iso"_s);
    }
    ~ImageDrive() { SetDriveOptions({}); }
    ImageDrive(const ImageDrive&) = delete;
    ImageDrive& operator=(const ImageDrive&) = delete;

    QString PathOf(const QString& name) const { return folder_.filePath(name); }
    bool Write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(PathOf(name));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    }
    /// Lets one of the files stand as drive E:.
    void Stand(const QString& name) const { SetDriveOptions({{u'E', PathOf(name)}}); }

    /// Makes the image "disc.iso" of a folder of this folder by one of the usual programs, and lets it stand
    /// as drive E:. False when the program fails or is not installed; `tools/needs test` installs it.
    bool Make(const QString& program, const QStringList& options, const QString& folder) const
    {
        QProcess process;
        process.start(program, options + QStringList{u"-o"_s, PathOf(u"disc.iso"_s), PathOf(folder)});
        const bool isMade = process.waitForFinished(60'000) && process.exitCode() == 0;
        if (!isMade)
            qWarning("%s: %s", qPrintable(program), process.readAllStandardError().constData());
        Stand(u"disc.iso"_s);
        return isMade;
    }

private:
    QTemporaryDir folder_;
};

} // namespace torvik
