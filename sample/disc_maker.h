#pragma once

#include <QString>

namespace torvik::sample {

/// The steps that make a disc; each writes its own folders and throws std::runtime_error where it cannot.
/// Every run writes the same bytes.

/// "Torviks": all photos.
void MakePhotos(const QString& disc);
/// "RichText": one caption for each photo, and the notes of the topics.
void MakeCaptions(const QString& disc);
/// "graphics/ClassicTorviks.jpg" on the disc and in the program folder.
void MakeOpeningPicture(const QString& disc, const QString& program);
/// "wav": the sound effects.
void MakeSounds(const QString& disc);
/// "movies": five of them.
void MakeMovies(const QString& disc);
/// "passby.wav" in the program folder.
void MakePassBySound(const QString& program);
/// The artwork that the program itself carries.
void MakeAssets(const QString& folder);
/// The icon as "16.png" and so on, in the sizes that desktops use, up to 512 pixels.
void MakeIcons(const QString& folder);

} // namespace torvik::sample
