#pragma once

#include <QByteArray>
#include <QColor>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace torvik {

/// A small disc in a temporary folder.
class TestDisc {
public:
    TestDisc();

    /// Its folder on the host.
    QString Folder() const { return folder_.path(); }
    QString PathOf(const QString& relative) const { return folder_.filePath(relative); }

    /// Writes a file, folders and all. The path uses forward slashes.
    void AddFile(const QString& relative, const QByteArray& content);
    /// Writes "Torviks/NAME", a picture in one colour.
    void AddPhoto(const QString& name, const QColor& colour = Qt::darkCyan, const QSize& size = {64, 48});
    /// Writes photos "67A.JPG", "67B.JPG", ... for a prefix.
    void AddGroup(const QString& prefix, int count);
    /// Writes a caption or other document under "RichText".
    void AddDocument(const QString& name, const QString& text);
    void Remove(const QString& relative);

    /// The bytes of a picture in one colour.
    static QByteArray Jpeg(const QColor& colour, const QSize& size);

private:
    QTemporaryDir folder_;
};

} // namespace torvik
