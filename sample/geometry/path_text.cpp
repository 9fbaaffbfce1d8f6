#include "sample/geometry/path_text.h"

#include <QPointF>

#include <cctype>
#include <stdexcept>
#include <string>

namespace torvik::sample {

namespace {

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
