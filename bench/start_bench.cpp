// The start of the program without its five seconds, as processor time, against an empty window. Only
// reported.

#include "bind_handlers.h"
#include "browsing.h"
#include "ui/forms/form_window.h"

#include <QApplication>
#include <QDir>
#include <QImage>

#include <cstdio>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

template <typename Work>
double ProcessorMilliseconds(Work&& work)
{
    const std::clock_t before = std::clock();
    work();
    return 1000.0 * static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
}

void MakeDisc(const QString& folder)
{
    constexpr int photoCount = 250;
    QDir().mkpath(folder);
    QImage photo(1280, 776, QImage::Format_RGB32);
    photo.fill(Qt::darkCyan);
    for (int number = 0; number < photoCount; ++number)
        photo.save(folder + u"/%1TOR%2.JPG"_s.arg(67 + number % 33).arg(number, 3, 10, QLatin1Char('0')));
}

} // namespace

int main(int argc, char** argv)
{
    using namespace torvik;
    const bench::Home home;
    const QTemporaryDir disc;
    MakeDisc(disc.filePath(u"Torviks"_s));
    const QApplication application(argc, argv);

    const double empty = ProcessorMilliseconds([] {
        QWidget window;
        window.resize(800, 600);
        window.show();
        QCoreApplication::processEvents();
        window.repaint();
    });

    BindHandlers();
    bench::PutDiscIn(disc.path(), home.Folder());
    const double before = ProcessorMilliseconds([] {
        Form2.LoadForm();
        QCoreApplication::processEvents();
    });
    const double after = ProcessorMilliseconds([] {
        Clock::Turn(5000);
        QCoreApplication::processEvents();
        Form1->Window().repaint();
    });
    std::printf("start, before the splash's wait  %.1f ms\nstart, after it                  %.1f ms\n"
                "an empty window                  %.1f ms\n",
                before, after, empty);
    FormHandleBase::DiscardAll();
    return 0;
}
