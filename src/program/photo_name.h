#pragma once

#include <QString>

namespace torvik {

// What the path of a photo says, "E:\Torviks\67A.JPG". Where the name begins in it is kept in
// `state.TorviksPathPos`, because the same place holds for all photos.

/// Finds that place out from the path of a photo.
void TakePathPosition(const QString& photo);
/// Finds it out from the first photo. Failure 9 when there are no photos.
void RefreshPathPosition();

/// The file name: "67A.JPG".
QString NameOfPhoto(const QString& photo);
/// The file name as far as the disc's own names reach, 12 characters.
QString ShortNameOfPhoto(const QString& photo);
/// The code of the year or topic: "67".
QString CodeOfPhoto(const QString& photo);
/// The document with the photo's caption: "E:\RichText\67A.rtf".
QString CaptionOfPhoto(const QString& photo);

} // namespace torvik
