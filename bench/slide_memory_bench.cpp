// The memory of a slide show over 900 photos of 4000 by 3000 pixels, against its memory after the first ten.

#include "bind_handlers.h"
#include "scene.h"
#include "slide_show.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int photoCount = 900;
constexpr int differentPhotos = 12;
constexpr int firstPhotos = 10;
constexpr double limit = 20; // MiB

bool MakePhotos(const QString& folder)
{
    QDir().mkpath(folder);
    for (int number = 0; number < photoCount; ++number) {
        const auto file = [&](int of) -> QString {
            return folder + u"/%1TOR%2.JPG"_s.arg(67 + of / 30).arg(of, 3, 10, QLatin1Char('0'));
        };
        if (number < differentPhotos) {
            if (!torvik::bench::Scene({4000, 3000}, number).save(file(number), "JPG", 85))
                return false;
        } else {
            std::filesystem::create_hard_link(file(number % differentPhotos).toStdString(),
                                              file(number).toStdString());
        }
    }
    return true;
}

/// The memory that the process really holds, in MiB.
double Resident()
{
    QFile statm(u"/proc/self/statm"_s);
    if (!statm.open(QIODevice::ReadOnly))
        return 0;
    const double pages = statm.readAll().split(' ').value(1).toDouble();
    return pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1024 * 1024);
}

} // namespace

int main(int argc, char** argv)
{
    using namespace torvik;
    const bench::Home home;
    const QTemporaryDir disc;
    const QTemporaryDir program;
    if (!MakePhotos(disc.filePath(u"Torviks"_s)))
        return 2;
    const QApplication application(argc, argv);
    BindHandlers();
    bench::OpenSlideShow(disc.path(), program.path());
    state.PhotoIndex = 2;
    frmSlide->Timer1.SetInterval(state.SlideDelay);

    double after = 0;
    double most = 0;
    int shown = 1;
    for (int slide = 2; slide <= photoCount; ++slide) {
        Clock::Turn(state.SlideDelay);
        frmSlide->Window().repaint();
        QCoreApplication::processEvents();
        shown += frmSlide->Image1.Picture().FileName() == state.PhotoFiles(slide).mid(11) ? 1 : 0;
        if (slide == firstPhotos)
            after = Resident();
        if (slide > firstPhotos)
            most = std::max(most, Resident());
    }
    FormHandleBase::DiscardAll();

    const double growth = most - after;
    const bool isOk = after > 0 && shown == photoCount && growth <= limit;
    std::printf(
        "slide show over %d photos: %.1f MiB more at most, baseline %.1f MiB after %d, limit %.0f MiB, %s\n",
        shown, growth, after, firstPhotos, limit, isOk ? "ok" : "over");
    return isOk ? 0 : 1;
}
