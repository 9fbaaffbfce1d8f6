#pragma once

#include "processor_time.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QSize>
#include <QStandardPaths>
#include <QString>
#include <QStringList>

#include <optional>

namespace torvik::bench {

using namespace Qt::StringLiterals;

/// A common image viewer (feh) on a virtual screen of its own, which shows photos one after the other in a
/// window of a given size.
class ImageViewer {
public:
    ImageViewer()
    {
        const QString program = QStandardPaths::findExecutable(u"feh"_s);
        const QString screen = QStandardPaths::findExecutable(u"Xvfb"_s);
        if (program.isEmpty() || screen.isEmpty())
            return;
        screen_.start(screen, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"1280x1024x24"_s,
                               u"-nolisten"_s, u"tcp"_s});
        constexpr int patience = 30'000; // milliseconds
        if (screen_.waitForReadyRead(patience))
            display_ = u":"_s + QString::fromLatin1(screen_.readLine().trimmed());
        program_ = program;
    }
    ~ImageViewer()
    {
        screen_.terminate();
        screen_.waitForFinished();
    }
    ImageViewer(const ImageViewer&) = delete;
    ImageViewer& operator=(const ImageViewer&) = delete;

    bool IsThere() const { return !display_.isEmpty(); }

    /// Processor milliseconds for one photo more, without those of its start and its end; of the viewer
    /// alone, not of the screen. Nothing when it fails.
    std::optional<double> MillisecondsAPhoto(const QStringList& photos, const QSize& window) const
    {
        const auto one = MillisecondsFor({photos.first()}, window);
        const auto all = MillisecondsFor(photos, window);
        if (!one || !all)
            return std::nullopt;
        return (*all - *one) / static_cast<double>(photos.size() - 1);
    }

private:
    std::optional<double> MillisecondsFor(const QStringList& photos, const QSize& window) const
    {
        QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
        surroundings.insert(u"DISPLAY"_s, display_);
        QProcess process;
        process.setProcessEnvironment(surroundings);
        const double before = ChildrenMilliseconds();
        process.start(program_,
                      QStringList{u"--geometry"_s, u"%1x%2"_s.arg(window.width()).arg(window.height()),
                                  u"--scale-down"_s, u"--slideshow-delay"_s, u"0.001"_s, u"--on-last-slide"_s,
                                  u"quit"_s} +
                          photos);
        if (!process.waitForFinished(-1) || process.exitCode() != 0)
            return std::nullopt;
        return ChildrenMilliseconds() - before;
    }

    QProcess screen_;
    QString program_;
    QString display_; ///< empty where there is none
};

} // namespace torvik::bench
