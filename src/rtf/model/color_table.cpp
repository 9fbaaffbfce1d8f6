#include "rtf/model/color_table.h"

#include "rtf/bounds/limits.h"

#include <algorithm>

namespace torvik::rtf {

namespace {

// Opaque colours have a full alpha part, so that nothing else can be the automatic one.
constexpr QRgb automatic = 0;

int Clamped(int value)
{
    return std::clamp(value, 0, 255);
}

int Mixed(int front, int back, int percent)
{
    return (front * percent + back * (10000 - percent)) / 10000;
}

} // namespace

void ColorTable::SetRed(int value)
{
    red_ = Clamped(value);
    named_ = true;
}

void ColorTable::SetGreen(int value)
{
    green_ = Clamped(value);
    named_ = true;
}

void ColorTable::SetBlue(int value)
{
    blue_ = Clamped(value);
    named_ = true;
}

void ColorTable::EndEntry()
{
    if (entries_.size() < static_cast<std::size_t>(maxColors))
        entries_.push_back(named_ ? qRgb(red_, green_, blue_) : automatic);
    red_ = green_ = blue_ = 0;
    named_ = false;
}

QColor ColorTable::At(int index) const
{
    if (index < 0 || static_cast<std::size_t>(index) >= entries_.size())
        return {};
    const QRgb entry = entries_[static_cast<std::size_t>(index)];
    return entry == automatic ? QColor() : QColor(entry);
}

QColor ShadedColor(const QColor& front, const QColor& back, int percent)
{
    const int part = std::clamp(percent, 0, 10000);
    if (part == 0)
        return back;
    const QColor above = front.isValid() ? front : QColor(Qt::black);
    const QColor below = back.isValid() ? back : QColor(Qt::white);
    return {Mixed(above.red(), below.red(), part), Mixed(above.green(), below.green(), part),
            Mixed(above.blue(), below.blue(), part)};
}

} // namespace torvik::rtf
