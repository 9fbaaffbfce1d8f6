#pragma once

#include "ui/forms/event.h"

#include <QObject>
#include <QString>

class QTimer;

namespace torvik {

class Form;

/// A timer of a form: ticks every Interval milliseconds, never while the interval is 0 and never once its
/// form is unloaded. A handler of the form that waits for the answer to a message box is not interrupted by
/// a tick. It runs on the Clock.
class Timer : public QObject {
public:
    Timer(Form& form, const QString& name, int interval = 0);
    ~Timer() override;

    /// Milliseconds, 0 to 65535; 0 stops it. Setting it starts the wait anew. Failure 380 outside.
    void SetInterval(int milliseconds);
    int Interval() const { return interval_; }

    Event<> Tick;

private:
    friend class Clock;

    void Start();
    void Due();

    Form& form_;
    QTimer* timer_;
    int interval_ = 0;
    qint64 dueAt_ = 0; ///< on a stopped clock
};

} // namespace torvik
