#include "sample/geometry/shapes.h"

#include <QPointF>

#include <cctype>
#include <stdexcept>

namespace torvik::sample {

namespace {

template <typename Gradient>
Gradient WithStops(Gradient gradient, const Stops& stops)
{
    for (const auto& [at, colour] : stops)
        gradient.setColorAt(at, colour);
    return gradient;
}

class Reader {
public:
    explicit Reader(const QString& text) : text_(text.toLatin1()) {}

    bool AtEnd()
    {
        while (at_ < text_.size() && (text_[at_] == ' ' || text_[at_] == ','))
            ++at_;
        return at_ == text_.size();
    }
    bool AtLetter() { return std::isalpha(static_cast<unsigned char>(text_[at_])) != 0; }
    char Letter() { return text_[at_++]; }
    QPointF Point()
    {
        const double x = Number();
        return {x, Number()};
    }

private:
    double Number()
    {
        if (AtEnd())
            throw std::runtime_error("A path ends in the middle: " + text_.toStdString());
        qsizetype end = at_;
        while (end < text_.size() && text_[end] != ' ' && text_[end] != ',')
            ++end;
        bool isNumber = false;
        const double value = text_.mid(at_, end - at_).toDouble(&isNumber);
        if (!isNumber)
            throw std::runtime_error("A path has no number where one belongs: " + text_.toStdString());
        at_ = end;
        return value;
    }

    QByteArray text_;
    qsizetype at_ = 0;
};

} // namespace

QPainterPath Outline(std::initializer_list<Step> steps)
{
    QPainterPath path(steps.begin()->points[0]);
    for (const Step* step = steps.begin() + 1; step != steps.end(); ++step) {
        if (step->count == 1)
            path.lineTo(step->points[0]);
        else if (step->count == 2)
            path.quadTo(step->points[0], step->points[1]);
        else
            path.cubicTo(step->points[0], step->points[1], step->points[2]);
    }
    return path;
}

QPainterPath ClosedOutline(std::initializer_list<Step> steps)
{
    QPainterPath path = Outline(steps);
    path.closeSubpath();
    return path;
}

QPainterPath Ellipse(const QPointF& middle, double across, double down)
{
    QPainterPath path;
    path.addEllipse(middle, across, down);
    return path;
}

QPainterPath Disc(const QPointF& middle, double radius)
{
    return Ellipse(middle, radius, radius);
}

QPainterPath Rectangle(const QRectF& box)
{
    QPainterPath path;
    path.addRect(box);
    return path;
}

QPainterPath Rounded(const QRectF& box, double radius)
{
    QPainterPath path;
    path.addRoundedRect(box, radius, radius);
    return path;
}

QRectF BoxBetween(const QPointF& corner, const QPointF& opposite)
{
    return QRectF(corner, opposite).normalized();
}

Stops Shades(const QColor& colour, std::initializer_list<std::pair<double, int>> percents)
{
    Stops stops;
    for (const auto& [at, percent] : percents)
        stops.emplace_back(at, percent == 100 ? colour
                               : percent > 0  ? colour.lighter(percent)
                                              : colour.darker(-percent));
    return stops;
}

Stops Veil(const QColor& colour, std::initializer_list<std::pair<double, int>> alphas)
{
    Stops stops;
    for (const auto& [at, alpha] : alphas)
        stops.emplace_back(at, QColor(colour.red(), colour.green(), colour.blue(), alpha));
    return stops;
}

QLinearGradient Linear(const QPointF& from, const QPointF& to, const Stops& stops)
{
    return WithStops(QLinearGradient(from, to), stops);
}

QRadialGradient Radial(const QPointF& middle, double radius, const Stops& stops)
{
    return WithStops(QRadialGradient(middle, radius), stops);
}

QRadialGradient Radial(const QPointF& middle, double radius, const QPointF& focus, const Stops& stops)
{
    return WithStops(QRadialGradient(middle, radius, focus), stops);
}

QConicalGradient Conical(const QPointF& middle, double angle, const Stops& stops)
{
    return WithStops(QConicalGradient(middle, angle), stops);
}

QFont FontOf(const char* family, double pixels, bool bold, bool italic)
{
    QFont font(QString::fromLatin1(family));
    font.setBold(bold);
    font.setItalic(italic);
    font.setPixelSize(static_cast<int>(pixels));
    return font;
}

void Write(QPainter& painter, const QRectF& box, const QString& text, const QFont& font, const QColor& ink,
           int alignment)
{
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(box, alignment, text);
}

QPainterPath PathFromText(const QString& text)
{
    Reader reader(text);
    QPainterPath path;
    char step = 'M';
    while (!reader.AtEnd()) {
        if (reader.AtLetter())
            step = reader.Letter();
        switch (step) {
        case 'M':
            path.moveTo(reader.Point());
            step = 'L';
            break;
        case 'L':
            path.lineTo(reader.Point());
            break;
        case 'Q': {
            const QPointF control = reader.Point();
            path.quadTo(control, reader.Point());
            break;
        }
        case 'C': {
            const QPointF first = reader.Point();
            const QPointF second = reader.Point();
            path.cubicTo(first, second, reader.Point());
            break;
        }
        case 'Z':
            path.closeSubpath();
            step = 'M';
            break;
        default:
            throw std::runtime_error("A path has an unknown step: " + text.toStdString());
        }
    }
    return path;
}

} // namespace torvik::sample
