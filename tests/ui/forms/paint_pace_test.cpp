#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/panel.h"
#include "ui/forms/paint_pace.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct GaugeForm : Form {
    GaugeForm() : Form(DesignOf(u"gaugeForm"_s)) {}
    Panel Gauge{*this, u"Gauge"_s, {0, 0, 3000, 300}, {}, Bevel::Sunken};
};
FormHandle<GaugeForm> gaugeForm;

/// Counts how often a widget is painted.
class Paints : public QObject {
public:
    explicit Paints(QObject& widget) { widget.installEventFilter(this); }
    int Count = 0;

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++Count;
        return false;
    }
};

/// Changes the gauge as fast as events run, a hundred times at least; returns the milliseconds that it took.
qint64 ChangeForAWhile(Panel& gauge)
{
    QElapsedTimer time;
    time.start();
    for (int change = 0; change < 100 || time.elapsed() < 300; ++change) {
        gauge.SetFloodPercent(change % 100);
        QCoreApplication::processEvents();
    }
    return time.elapsed();
}

} // namespace

class PaintPaceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_form_is_painted_forty_times_a_second_at_most_and_goes_on_being_painted()
    {
        const UiRoom room;
        QVERIFY(UiRoom::Open(*gaugeForm));
        const Paints paints(gaugeForm->Gauge.Widget());
        const PaintPace pace(*gaugeForm);
        const qint64 taken = ChangeForAWhile(gaugeForm->Gauge);
        QVERIFY2(paints.Count <= taken / 25 + 1, qPrintable(QString::number(paints.Count)));
        QVERIFY2(paints.Count >= 3, qPrintable(QString::number(paints.Count)));
    }

    void the_last_change_is_painted_while_it_lives_and_when_it_ends()
    {
        const UiRoom room;
        QVERIFY(UiRoom::Open(*gaugeForm));
        Paints paints(gaugeForm->Gauge.Widget());
        auto pace = std::make_unique<PaintPace>(*gaugeForm);
        gaugeForm->Gauge.SetFloodPercent(1);
        QCoreApplication::processEvents();
        gaugeForm->Gauge.SetFloodPercent(2);
        QCoreApplication::processEvents();
        paints.Count = 0;
        QTRY_COMPARE(paints.Count, 1);
        gaugeForm->Gauge.SetFloodPercent(3);
        QCoreApplication::processEvents();
        pace.reset();
        UiRoom::Settle();
        QCOMPARE(paints.Count, 2);
    }

    void without_it_each_change_is_painted()
    {
        const UiRoom room;
        QVERIFY(UiRoom::Open(*gaugeForm));
        Paints paints(gaugeForm->Gauge.Widget());
        for (int change = 1; change <= 5; ++change) {
            gaugeForm->Gauge.SetFloodPercent(change);
            QCoreApplication::processEvents();
        }
        QCOMPARE(paints.Count, 5);
    }
};

TORVIK_TEST(PaintPaceTest)
#include "paint_pace_test.moc"
