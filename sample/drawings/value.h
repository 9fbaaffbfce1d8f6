#pragma once

#include <QBrush>
#include <QImage>
#include <QPainterPath>
#include <QString>

#include <algorithm>
#include <variant>
#include <vector>

namespace torvik::sample {

/// What a word of a drawing script stands for: a number, words, a colour or gradient, a shape, a picture, or
/// a list of such. Points are lists of two numbers, boxes of four (left, top, width, height). Asked for what
/// it is not, it throws std::runtime_error.
class Value { // NOLINT(bugprone-exception-escape): the moves of Qt's classes do not throw
public:
    using List = std::vector<Value>;

    Value(double number = 0) : held_(number) {}
    Value(const QString& text) : held_(text) {}
    Value(const QBrush& brush) : held_(brush) {}
    Value(const QColor& colour) : held_(QBrush(colour)) {}
    Value(const QPainterPath& path) : held_(path) {}
    Value(const QImage& image) : held_(image) {}
    Value(List list) : held_(std::move(list)) {}
    Value(const QPointF& point) : held_(List{point.x(), point.y()}) {}
    Value(const QRectF& box) : held_(List{box.x(), box.y(), box.width(), box.height()}) {}

    double Number() const { return As<double>("a number"); }
    int Whole() const { return static_cast<int>(Number()); }
    const QString& Text() const { return As<QString>("words"); }
    /// Words, or a whole number in digits.
    QString Words() const { return IsText() ? Text() : QString::number(Whole()); }
    const QBrush& Brush() const { return As<QBrush>("a colour"); }
    QColor Colour() const { return Brush().color(); }
    const QPainterPath& Path() const { return As<QPainterPath>("a shape"); }
    const QImage& Image() const { return As<QImage>("a picture"); }
    const List& Items() const { return As<List>("a list"); }
    QPointF Point() const { return {At(0).Number(), At(1).Number()}; }
    QRectF Box() const { return {At(0).Number(), At(1).Number(), At(2).Number(), At(3).Number()}; }
    const Value& At(std::size_t i) const;
    /// The kind of this name; `names` has them in their order.
    template <typename Kind, std::size_t count>
    Kind OneOf(const char* const (&names)[count]) const
    {
        const auto* found = std::find(std::begin(names), std::end(names), Text());
        if (found == std::end(names))
            Refuse("the name of a kind");
        return static_cast<Kind>(found - std::begin(names));
    }
    bool IsList() const { return std::holds_alternative<List>(held_); }
    bool IsText() const { return std::holds_alternative<QString>(held_); }
    bool IsBrush() const { return std::holds_alternative<QBrush>(held_); }

private:
    template <typename Kind>
    const Kind& As(const char* what) const
    {
        if (const auto* held = std::get_if<Kind>(&held_))
            return *held;
        Refuse(what);
    }
    [[noreturn]] static void Refuse(const char* what);

    std::variant<double, QString, QBrush, QPainterPath, QImage, List> held_;
};

} // namespace torvik::sample
