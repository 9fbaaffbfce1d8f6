#include "ui/forms/timer.h"

#include "runtime/failure.h"
#include "ui/forms/clock.h"
#include "ui/forms/form.h"
#include "ui/forms/form_window.h"
#include "ui/forms/message_box.h"

#include <QPointer>
#include <QTimeZone>
#include <QTimer>

#include <algorithm>
#include <optional>
#include <vector>

namespace torvik {

namespace {

std::optional<QDateTime>& StoppedAt()
{
    static std::optional<QDateTime> stoppedAt;
    return stoppedAt;
}

std::vector<Timer*>& AllTimers()
{
    static std::vector<Timer*> timers;
    return timers;
}

} // namespace

Timer::Timer(Form& form, const QString& name, int interval) : form_(form), timer_(new QTimer(&form.Window()))
{
    timer_->setObjectName(name);
    timer_->setTimerType(Qt::PreciseTimer);
    connect(timer_, &QTimer::timeout, this, [this] { Due(); });
    AllTimers().push_back(this);
    SetInterval(interval);
}

Timer::~Timer()
{
    std::erase(AllTimers(), this);
}

void Timer::SetInterval(int milliseconds)
{
    constexpr int longest = 65535;
    if (milliseconds < 0 || milliseconds > longest)
        Fail(failure::invalidProperty);
    interval_ = milliseconds;
    Start();
}

void Timer::Start()
{
    timer_->stop();
    timer_->setInterval(interval_);
    if (interval_ == 0)
        return;
    if (Clock::IsStopped())
        dueAt_ = Clock::Now().toMSecsSinceEpoch() + interval_;
    else
        timer_->start();
}

void Timer::Due()
{
    if (form_.Retired())
        timer_->stop();
    else if (!MessageBoxStandsOver(form_))
        Tick.Fire();
}

QDateTime Clock::Now()
{
    return IsStopped() ? *StoppedAt() : QDateTime::currentDateTime();
}

qint64 Clock::Second()
{
    return IsStopped() ? Now().toSecsSinceEpoch() : QDateTime::currentSecsSinceEpoch();
}

bool Clock::IsStopped()
{
    return StoppedAt().has_value();
}

void Clock::StopAt(const QDateTime& start)
{
    StoppedAt() = start;
    for (Timer* timer : AllTimers())
        timer->Start();
}

void Clock::Run()
{
    StoppedAt().reset();
    for (Timer* timer : AllTimers())
        timer->Start();
}

void Clock::Turn(int milliseconds)
{
    const QDateTime end = StoppedAt().value().addMSecs(milliseconds);
    const auto runs = [](const Timer* timer) { return timer->interval_ > 0 && !timer->form_.Retired(); };
    while (IsStopped()) {
        Timer* next = nullptr;
        for (Timer* timer : AllTimers()) {
            if (runs(timer) && (next == nullptr || timer->dueAt_ < next->dueAt_))
                next = timer;
        }
        if (next == nullptr || next->dueAt_ > end.toMSecsSinceEpoch())
            break;
        StoppedAt() = QDateTime::fromMSecsSinceEpoch(next->dueAt_, end.timeZone());
        next->dueAt_ += next->interval_;
        next->Due();
    }
    if (IsStopped() && Now() < end) // unless a tick turned it itself
        StoppedAt() = end;
}

} // namespace torvik
