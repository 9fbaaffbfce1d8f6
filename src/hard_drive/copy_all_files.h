#pragma once

#include <QString>

namespace torvik {

/// Makes the folder of the copies. When that fails, as it does when the folder exists, asks whether to copy
/// again; any answer but OK sets `state.CopyDeclined`.
void MakeCopyFolder(const QString& path);

/// Copies all photos of the disc into the program folder, one after the other, while Form1 takes no input.
/// Says at the end that they were copied, whatever became of the single files. `state.PhotoRoot` is left on
/// the disc.
void CopyAllPhotos();

/// The same for the movies of the disc.
void CopyAllMovies();

} // namespace torvik
