#include "saver/show_runner.h"

#include <QGuiApplication>
#include <QScreen>

#include <utility>

namespace torvik {

ShowRunner::ShowRunner(const SaverSettings& settings, double start, Opener open, std::function<void()> ended)
    : show_(settings, start), open_(std::move(open)), ended_(std::move(ended))
{
    // Queued: the windows must not go while one of them works on an event.
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &ShowRunner::Open, Qt::QueuedConnection);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &ShowRunner::Open, Qt::QueuedConnection);
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &ShowRunner::Tick);
    time_.start();
    Open();
    Tick();
}

void ShowRunner::Open()
{
    show_.SetStages({});
    windows_ = open_();
    std::vector<Stage*> stages;
    for (const auto& window : windows_) {
        window->noticed = [this](const QEvent& event) { Notice(event); };
        window->sizeChanged = [this](SaverWindow& changed) { show_.StageResized(changed); };
        stages.push_back(window.get());
    }
    show_.SetStages(std::move(stages));
}

void ShowRunner::Tick()
{
    timer_.start(show_.Advance(time_.elapsed()));
}

void ShowRunner::Notice(const QEvent& event)
{
    if (ended_ && wake_.IsCalledBy(event))
        ended_();
}

} // namespace torvik
