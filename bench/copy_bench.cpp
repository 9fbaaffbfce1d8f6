// The copying of 42 MB of photos with both gauges and a look at the events after each block, against the
// system's cp on the same files; and how often the window is painted meanwhile.

#include "browsing.h"
#include "hard_drive/copy_all_files.h"
#include "measure.h"
#include "platform/paths/drives.h"
#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "ui/application.h"
#include "ui/forms/event.h"
#include "ui/forms/form_window.h"
#include "windows/main_window.h"
#include "windows/splash.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

constexpr int photoCount = 600;
constexpr int photoSize = 70'000; // 42 MB in all
constexpr int rounds = 7;
constexpr double limit = 1 / 0.4;
constexpr double longestPause = 100; // milliseconds: ten times a second

bool MakePhotos(const QString& folder)
{
    QByteArray content(photoSize, Qt::Uninitialized);
    quint32 number = 1;
    for (char& byte : content) {
        number = number * 1664525 + 1013904223;
        byte = static_cast<char>(number >> 24);
    }
    if (!QDir().mkpath(folder))
        return false;
    for (int i = 0; i < photoCount; ++i) {
        QFile photo(u"%1/%2TOR%3.JPG"_s.arg(folder).arg(67 + i % 33).arg(i, 3, 10, QLatin1Char('0')));
        if (!photo.open(QIODevice::WriteOnly) || photo.write(content) != photoSize)
            return false;
    }
    return true;
}

/// Watches when the window is painted.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QObject& painted)
    {
        painted.installEventFilter(this);
        since_.start();
    }
    double LongestPause() const { return longest_; }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            longest_ = std::max(longest_, static_cast<double>(since_.nsecsElapsed()) / 1e6);
            since_.restart();
        }
        return false;
    }

private:
    QElapsedTimer since_;
    double longest_ = 0;
};

double CopyBySystem(const QString& source, const QString& target)
{
    return torvik::bench::Milliseconds([&] { QProcess::execute(u"cp"_s, {u"-r"_s, source, target}); });
}

double CopyByProgram()
{
    return torvik::bench::Milliseconds([] {
        torvik::MakeCopyFolder(torvik::ProgramFolder() + torvik::torviksFolder);
        torvik::CopyAllPhotos();
    });
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    torvik::Application application(argc, argv);
    torvik::bench::AnswerOk();
    const QTemporaryDir disc;
    const QTemporaryDir folder;
    if (!MakePhotos(disc.filePath(u"Torviks"_s)))
        return 2;
    torvik::SetDriveOptions({{u'G', disc.path()}});
    torvik::SetProgramFolder(folder.path());
    torvik::state.DiscRoot = torvik::state.PhotoRoot = u"G:"_s;
    torvik::state.CopyingPhotos = true;
    torvik::Form1->pnlProgress.Show();
    torvik::Form1->Show();
    torvik::DoEvents();

    std::vector<double> figures;
    std::vector<double> baselines;
    std::vector<double> pauses;
    for (int round = 0; round < rounds; ++round) {
        baselines.push_back(CopyBySystem(disc.filePath(u"Torviks"_s), folder.filePath(u"cp"_s)));
        const PaintWatch watch(torvik::Form1->ProgressGuage.Widget());
        figures.push_back(CopyByProgram());
        pauses.push_back(watch.LongestPause());
        if (QDir(folder.filePath(u"Torviks"_s)).count() != photoCount + 2u)
            return 2;
        QDir(folder.filePath(u"cp"_s)).removeRecursively();
        QDir(folder.filePath(u"Torviks"_s)).removeRecursively();
    }
    const bool isFast = torvik::bench::Report("copy of 42 MB", "ms", torvik::bench::Median(figures),
                                              torvik::bench::Median(baselines), limit);
    const bool isAlive = torvik::bench::Report("longest pause between two paints", "ms",
                                               torvik::bench::Median(pauses), longestPause, 1);
    return isFast && isAlive ? 0 : 1;
}
