#include "ui/media/media_track.h"

#include "ui/look/look.h"

#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr double thumbWidth = 9; // pixels, as all here
constexpr double grooveHeight = 6;
constexpr double timeWidth = 82;

QString MinutesAndSeconds(int milliseconds)
{
    const int seconds = milliseconds / 1000;
    return u"%1:%2"_s.arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

} // namespace

MediaTrack::MediaTrack(QWidget* parent) : QSlider(Qt::Horizontal, parent)
{
    constexpr int second = 1000;
    setFocusPolicy(Qt::TabFocus);
    setSingleStep(second / 4);
    setPageStep(2 * second);
    setRange(0, 0);
    connect(this, &QSlider::valueChanged, this, [this](int value) {
        if (sought)
            sought(value);
    });
}

void MediaTrack::ShowPlace(int place, int length)
{
    const QSignalBlocker quiet(this);
    setRange(0, std::max(0, length));
    setValue(place);
    update();
}

QString MediaTrack::TimeText() const
{
    return MinutesAndSeconds(value()) + u" / "_s + MinutesAndSeconds(maximum());
}

QRectF MediaTrack::Groove() const
{
    return {thumbWidth / 2, (height() - grooveHeight) / 2, width() - thumbWidth - timeWidth, grooveHeight};
}

void MediaTrack::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QRectF groove = Groove();
    const double share = maximum() > 0 ? static_cast<double>(value()) / maximum() : 0;
    DrawBevel(painter, groove, Bevel::Sunken, 1);
    const QRectF inside = groove.adjusted(1, 1, -1, -1);
    painter.fillRect(Snapped(painter, inside), look::halfLight);
    painter.fillRect(
        Snapped(painter, QRectF(inside.topLeft(), QSizeF(inside.width() * share, inside.height()))),
        look::accent);
    const QRectF thumb(groove.left() + groove.width() * share - thumbWidth / 2, groove.center().y() - 8,
                       thumbWidth, 16);
    painter.fillRect(Snapped(painter, thumb), look::face);
    DrawBevel(painter, thumb, Bevel::Raised, 2);
    const QRectF time(width() - timeWidth, 0, timeWidth - 2, height());
    DrawCaption(painter, time, TimeText(), Qt::AlignRight | Qt::AlignVCenter, isEnabled());
    if (hasFocus())
        DrawFocus(painter, QRectF(rect()).adjusted(0, 0, -timeWidth + thumbWidth, 0));
}

void MediaTrack::GoTo(double x)
{
    const QRectF groove = Groove();
    const double share = std::clamp((x - groove.left()) / groove.width(), 0.0, 1.0);
    setValue(static_cast<int>(std::lround(share * maximum())));
}

void MediaTrack::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        GoTo(event->position().x());
}

void MediaTrack::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons().testFlag(Qt::LeftButton))
        GoTo(event->position().x());
}

} // namespace torvik
