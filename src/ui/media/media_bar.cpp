#include "ui/media/media_bar.h"

#include "ui/look/button_widget.h"
#include "ui/look/group_widget.h"

#include <QKeyEvent>
#include <QPainter>

#include <cmath>
#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

const char* const buttonNames[mediaButtonCount] = {"Prev", "Next", "Play",   "Pause", "Back",
                                                   "Step", "Stop", "Record", "Eject"};

} // namespace

/// One button of the bar.
class MediaBarButton : public ButtonWidget {
public:
    MediaBarButton(QWidget* parent, MediaButton button) : ButtonWidget(parent), button_(button) {}

    std::function<void(int)> arrow; ///< an arrow key: 1 onwards, -1 back

protected:
    void PaintContent(QPainter& painter, const QRectF& area) const override
    {
        DrawMediaSymbol(painter, area, button_, isEnabled());
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        switch (event->key()) {
        case Qt::Key_Right:
        case Qt::Key_Down:
            return arrow(1);
        case Qt::Key_Left:
        case Qt::Key_Up:
            return arrow(-1);
        default:
            ButtonWidget::keyPressEvent(event);
        }
    }

private:
    MediaButton button_;
};

MediaBar::MediaBar(Container& container, const QString& name, const Twips& design)
    : Control(container, name, new GroupWidget, design)
{
    for (int index = 0; index < mediaButtonCount; ++index)
        buttons_[static_cast<size_t>(index)] = MakeButton(static_cast<MediaButton>(index));
    MediaBar::SizeChanged();
}

MediaBarButton* MediaBar::MakeButton(MediaButton button)
{
    auto* part = new MediaBarButton(&Widget(), button);
    const QString plainName = QString::fromLatin1(buttonNames[static_cast<int>(button)]);
    part->setObjectName(u"%1(%2)"_s.arg(Name(), plainName));
    part->setAccessibleName(plainName);
    part->setFocusPolicy(Qt::TabFocus);
    part->arrow = [this, button](int step) { MoveFocus(button, step); };
    part->show();
    connect(part, &QAbstractButton::clicked, this, [this, button] { Pressed(ButtonClick(button)); });
    return part;
}

MediaBarButton& MediaBar::Part(MediaButton button) const
{
    return *buttons_.at(static_cast<size_t>(button));
}

bool MediaBar::ButtonEnabled(MediaButton button) const
{
    return Part(button).isEnabledTo(&Widget());
}

void MediaBar::SetButtonEnabled(MediaButton button, bool enabled)
{
    Part(button).setEnabled(enabled);
}

bool MediaBar::ButtonVisible(MediaButton button) const
{
    return !Part(button).isHidden();
}

void MediaBar::SetButtonVisible(MediaButton button, bool visible)
{
    Part(button).setVisible(visible);
    SizeChanged();
}

void MediaBar::SetSpokenAs(MediaButton button, const QString& text)
{
    Part(button).setAccessibleName(text);
}

Event<>& MediaBar::ButtonClick(MediaButton button)
{
    return clicks_.at(static_cast<size_t>(button));
}

void MediaBar::SetFoot(int pixels)
{
    foot_ = pixels;
    SizeChanged();
}

void MediaBar::SizeChanged()
{
    std::vector<MediaBarButton*> row;
    for (MediaBarButton* button : buttons_)
        if (!button->isHidden())
            row.push_back(button);
    const QSize size = Widget().size();
    const double share =
        row.empty() ? 0 : static_cast<double>(size.width()) / static_cast<double>(row.size());
    int left = 0;
    for (size_t place = 0; place < row.size(); ++place) {
        const int right = static_cast<int>(std::lround(share * static_cast<double>(place + 1)));
        row[place]->setGeometry(left, 0, right - left, size.height() - foot_);
        left = right;
    }
}

/// At either end of the row the focus stays.
void MediaBar::MoveFocus(MediaButton from, int step)
{
    for (int index = static_cast<int>(from) + step; index >= 0 && index < mediaButtonCount; index += step) {
        const auto button = static_cast<MediaButton>(index);
        if (!ButtonVisible(button) || !ButtonEnabled(button))
            continue;
        Part(button).setFocus(step > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        return;
    }
}

} // namespace torvik
