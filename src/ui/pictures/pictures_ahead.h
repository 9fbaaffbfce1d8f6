#pragma once

#include "ui/pictures/picture.h"

#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

namespace torvik {

// Pictures that will probably be asked for next are read and decoded by threads of their own. What they touch
// is a file of the disc and memory; whoever does not find a picture here loads it himself, and meets every
// failure there.

/// A picture and how it looks, as large as fits into the area that was told.
struct ReadyPicture {
    Picture file;
    QImage drawn;
};

/// Has files of the disc read ahead, the first first, each to fit into `area` pixels. All that was read ahead
/// goes but these and `kept`, which stays if it was read ahead for the same area. At most 64 MiB are held:
/// the last ones are left out where they are too large together. Fails never.
void ReadPicturesAhead(const QStringList& paths, const QString& kept, const QSize& area);

/// A picture that was read ahead, if it is ready or just being decoded, whole, and its file still the same.
/// Never waits for a disc longer than a look at the file takes.
std::optional<ReadyPicture> PictureReadAhead(const QString& path, const QSize& area);

/// Whether PictureReadAhead would find it without waiting.
bool IsReadAhead(const QString& path, const QSize& area);

/// How many bytes all that is held takes.
qint64 BytesReadAhead();

/// Drops all that was read ahead, as when another disc comes. The disc is closed as soon as the call that
/// reads it at this moment returns.
void ForgetPicturesAhead();

} // namespace torvik
