#include "disc_maker.h"
#include "documents/document_plan.h"

#include <QGuiApplication>
#include <QStringList>

#include <cstdio>
#include <exception>

/// Usage: make_sample DISC_FOLDER PROGRAM_FOLDER, or make_sample --assets FOLDER.
int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: make_sample DISC_FOLDER PROGRAM_FOLDER\n       make_sample --assets FOLDER\n",
                   stderr);
        return 2;
    }
    try {
        if (arguments[1] == QLatin1String("--assets")) {
            torvik::sample::MakeAssets(arguments[2]);
            return 0;
        }
        const QString& disc = arguments[1];
        const QString& program = arguments[2];
        torvik::sample::MakePhotos(disc);
        torvik::sample::MakeCaptions(disc);
        torvik::sample::MakeDocuments(disc);
        torvik::sample::MakeOpeningPicture(disc, program);
        torvik::sample::MakePassBySound(program);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "make_sample: %s\n", failure.what());
        return 1;
    }
    return 0;
}
