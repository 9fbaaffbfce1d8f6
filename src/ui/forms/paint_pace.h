#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class QWidget;

namespace torvik {

class Form;

/// While it lives, a form is painted at most forty times a second, however often its controls change; the
/// last change is always painted. For work that changes gauges much faster than anybody sees.
class PaintPace : public QObject {
public:
    explicit PaintPace(Form& form);
    ~PaintPace() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void PaintNow();

    QWidget* window_;
    QTimer later_;
    QElapsedTimer sincePaint_;
};

} // namespace torvik
