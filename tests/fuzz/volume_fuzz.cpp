// Takes any bytes for a disc image, or for the text of a CUE sheet, and goes through all that it can find.

#include "platform/image/cue_sheet.h"
#include "platform/paths/image_volume.h"
#include "runtime/failure.h"

#include <QString>

#include <cstdint>
#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

namespace {

using namespace torvik;

constexpr int mostFiles = 64;
constexpr int piecesOfFile = 8;

bool Everything(std::string_view /*name*/)
{
    return true;
}

/// Reads the beginning and the end of a file.
void ReadFile(const Volume& volume, const std::string& path)
{
    ResumeNext([&] {
        char bytes[5000];
        if (volume.Spelling(path) != path)
            std::abort(); // an exact name comes first
        const std::unique_ptr<OpenFile> file = volume.Open(path);
        for (int piece = 0; piece < piecesOfFile && file->Read(bytes, sizeof bytes) > 0; ++piece) {
        }
        file->SeekTo(file->Length() / 2);
        file->Read(bytes, sizeof bytes);
        file->SeekTo(file->Length());
        if (file->Read(bytes, sizeof bytes) != 0)
            std::abort();
    });
}

void GoThrough(const Volume& volume, const std::string& folder, int& filesLeft)
{
    for (const std::string& name : volume.Files(folder, Everything)) {
        if (filesLeft-- <= 0)
            return;
        ReadFile(volume, folder + '/' + name);
    }
    for (const std::string& name : volume.Folders(folder, Everything)) {
        // Of names twice only the first is found, so it could lead here again.
        if (filesLeft-- <= 0)
            return;
        GoThrough(volume, folder + '/' + name, filesLeft);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (bytes.startsWith("FILE") || bytes.startsWith("REM")) {
        TracksOfCueSheet(bytes, "/nowhere/disc.cue");
        return 0;
    }
    static const int file = memfd_create("image", 0);
    if (file < 0 || ftruncate(file, 0) != 0 || pwrite(file, data, size, 0) != static_cast<ssize_t>(size))
        std::abort();
    const ImageVolume volume("/proc/self/fd/" + std::to_string(file));
    int filesLeft = mostFiles;
    ResumeNext([&] {
        volume.Spelling("/torviks/67a.jpg/inside");
        GoThrough(volume, {}, filesLeft);
    });
    return 0;
}
