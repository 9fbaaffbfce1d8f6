#include "sample/artwork/art_maker.h"
#include "sample/disc_maker.h"
#include "sample/documents/document_plan.h"
#include "sample/files/in_parallel.h"

#include <QGuiApplication>
#include <QStringList>

#include <cstdio>
#include <exception>
#include <functional>
#include <vector>

namespace {

using namespace torvik::sample;
using namespace Qt::StringLiterals;

/// A part of the disc that can be made by itself.
struct Part {
    const char* name;
    std::function<void(const QString& disc, const QString& program)> make;
};

/// The parts, the longest first.
const std::vector<Part>& Parts()
{
    static const std::vector<Part> parts{
        {"photos", [](const QString& disc, const QString&) { MakePhotos(disc); }},
        {"movies", [](const QString& disc, const QString&) { MakeMovies(disc); }},
        {"ads", [](const QString& disc, const QString&) { MakeAds(disc); }},
        {"captions", [](const QString& disc, const QString&) { MakeCaptions(disc); }},
        {"documents", [](const QString& disc, const QString&) { MakeDocuments(disc); }},
        {"help", [](const QString&, const QString& program) { MakeHelpFile(program); }},
        {"opening", MakeOpeningPicture},
        {"emblems", [](const QString& disc, const QString&) { MakeEmblems(disc); }},
        {"scripts", [](const QString& disc, const QString&) { MakeScripts(disc); }},
        {"clipart", [](const QString& disc, const QString&) { MakeClipArt(disc); }},
        {"booklet", [](const QString& disc, const QString&) { MakeBookletArt(disc); }},
        {"sounds", [](const QString& disc, const QString&) { MakeSounds(disc); }},
        {"passby", [](const QString&, const QString& program) { MakePassBySound(program); }},
    };
    return parts;
}

int ShowUsage()
{
    std::fputs("usage: make_sample DISC_FOLDER PROGRAM_FOLDER [PART...]\n"
               "       make_sample --assets FOLDER\n"
               "       make_sample --icons FOLDER\nparts:",
               stderr);
    for (const Part& part : Parts())
        std::fprintf(stderr, " %s", part.name);
    std::fputs("\n", stderr);
    return 2;
}

bool IsWanted(const Part& part, const QStringList& wanted)
{
    return wanted.isEmpty() || wanted.contains(QLatin1String(part.name));
}

} // namespace

/// Makes a whole disc, or the named parts of it.
int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments().mid(1);
    if (arguments.size() < 2)
        return ShowUsage();
    try {
        if (arguments[0] == "--assets"_L1) {
            MakeAssets(arguments[1]);
            return 0;
        }
        if (arguments[0] == "--icons"_L1) {
            MakeIcons(arguments[1]);
            return 0;
        }
        std::vector<const Part*> wanted;
        for (const Part& part : Parts()) {
            if (IsWanted(part, arguments.mid(2)))
                wanted.push_back(&part);
        }
        // Beside each other, since some parts have much that only one processor can do.
        InParallel(wanted.size(), [&](std::size_t i) { wanted[i]->make(arguments[0], arguments[1]); });
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "make_sample: %s\n", failure.what());
        return 1;
    }
    return 0;
}
