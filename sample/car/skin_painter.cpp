#include "sample/car/skin_painter.h"

#include "sample/geometry/shapes.h"
#include "sample/geometry/wide_registers.h"

#include <QPainter>

#include <cmath>

namespace torvik::sample {

namespace {

constexpr int reliefLevel = 128;

QColor Grey(int level, int second = 0)
{
    return QColor(std::clamp(level, 0, 255), std::clamp(second, 0, 255), 0);
}
Surface SurfaceOf(const Value& look)
{
    const auto number = [&](std::size_t i) { return look.Items().size() > i ? look.At(i).Whole() : 0; };
    return {look.At(0).Brush(), number(1), number(2), number(3), number(4)};
}

const Surface chromeLook{QColor(246, 246, 248), 255, 0, 0, 0};

} // namespace

SkinPainter::SkinPainter(double left, double bottom, double width, double height, double pixelsPerMetre,
                         const QColor& base)
    : left_(left), bottom_(bottom), scale_(pixelsPerMetre)
{
    const QSize size(static_cast<int>(std::ceil(width * scale_)),
                     static_cast<int>(std::ceil(height * scale_)));
    colour_ = QImage(size, QImage::Format_RGB32);
    material_ = QImage(size, QImage::Format_RGB32);
    relief_ = QImage(size, QImage::Format_RGB32);
    colour_.fill(base);
    material_.fill(Qt::black);
    relief_.fill(Grey(reliefLevel));
    const auto open = [&](QImage& image) {
        auto painter = std::make_unique<QPainter>(&image);
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(-left_ * scale_, size.height() + bottom_ * scale_);
        painter->scale(scale_, -scale_);
        return painter;
    };
    colourPainter_ = open(colour_);
    materialPainter_ = open(material_);
    reliefPainter_ = open(relief_);
}

void SkinPainter::Fill(const QPainterPath& path, const Surface& look)
{
    colourPainter_->fillPath(path, look.colour);
    materialPainter_->fillPath(path, QColor(look.metal, look.glass, look.rough));
    if (look.glow > 0)
        reliefPainter_->fillPath(path, Grey(reliefLevel, look.glow));
}

void SkinPainter::Line(const QPainterPath& path, double width, const Surface& look)
{
    colourPainter_->strokePath(path, QPen(look.colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    materialPainter_->strokePath(path, QPen(QColor(look.metal, look.glass, look.rough), width, Qt::SolidLine,
                                            Qt::RoundCap, Qt::RoundJoin));
}

void SkinPainter::Ridge(const QPainterPath& path, double width, int steps)
{
    constexpr int layers = 5;
    for (int i = 1; i <= layers; ++i) {
        const double share = 1.0 - static_cast<double>(i - 1) / layers;
        const double rise = std::sqrt(static_cast<double>(i) / layers);
        reliefPainter_->strokePath(path, QPen(Grey(reliefLevel + static_cast<int>(steps * rise)),
                                              width * share, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
}

void SkinPainter::Raise(const QPainterPath& path, double edge, int steps)
{
    constexpr int layers = 6;
    for (int i = layers; i >= 1; --i) {
        const int level = reliefLevel + steps * (layers - i + 1) / (layers + 1);
        reliefPainter_->strokePath(
            path, QPen(Grey(level), 2.0 * edge * i / layers, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
    reliefPainter_->fillPath(path, Grey(reliefLevel + steps));
}

void SkinPainter::Gap(const QPainterPath& path)
{
    Line(path, 0.006, {QColor(8, 8, 9), 0, 0, 255, 0});
    reliefPainter_->strokePath(
        path, QPen(Grey(reliefLevel - 14), 0.014, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    reliefPainter_->strokePath(
        path, QPen(Grey(reliefLevel - 40), 0.006, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void SkinPainter::ChromeBar(const QPainterPath& path, double width)
{
    Line(path, width, chromeLook);
    Ridge(path, width, 70);
}

void SkinPainter::Text(const QString& text, double u, double v, double height, const QString& family,
                       bool italic, bool mirrored, const Surface& look)
{
    QFont font(family);
    font.setPixelSize(100);
    font.setBold(true);
    font.setItalic(italic);
    QPainterPath letters;
    letters.addText(0, 0, font, text);
    const double middle = letters.boundingRect().center().x();
    QTransform transform;
    transform.translate(u, v);
    transform.scale((mirrored ? -1.0 : 1.0) * height / 100.0, -height / 100.0);
    transform.translate(-middle, 0);
    const QPainterPath placed = transform.map(letters);
    Fill(placed, look);
    if (look.metal > 0)
        Raise(placed, 0.003, 30);
}

SkinMap SkinPainter::Finish()
{
    colourPainter_.reset();
    materialPainter_.reset();
    reliefPainter_.reset();
    LetGoOfWideRegisters();
    return SkinMap(colour_, material_, relief_, left_, bottom_, scale_);
}

void TeachSkin(Script& script, SkinPainter& painter)
{
    TeachShapes(script);
    const std::pair<const char*, Value::List> looks[] = {
        {"chromeLook", {QColor(246, 246, 248), 255, 0, 0, 0}},
        {"rubberLook", {QColor(34, 34, 36), 0, 0, 215, 0}},
        {"darkLook", {QColor(10, 10, 11), 0, 0, 235, 0}},
        {"glassLook", {QColor(30, 38, 40), 0, 255, 0, 0}}};
    for (const auto& [name, look] : looks)
        script.Set(QString::fromLatin1(name), look);
    using Action = void (*)(SkinPainter&, const Arguments&);
    constexpr std::pair<const char*, Action> actions[] = {
        {"fill", [](SkinPainter& p, const Arguments& a) { p.Fill(a.Path(0), SurfaceOf(a.at(1))); }},
        {"bar",
         [](SkinPainter& p, const Arguments& a) { p.Line(a.Path(0), a.Number(1), SurfaceOf(a.at(2))); }},
        {"ridge", [](SkinPainter& p, const Arguments& a) { p.Ridge(a.Path(0), a.Number(1), a.Whole(2)); }},
        {"raise", [](SkinPainter& p, const Arguments& a) { p.Raise(a.Path(0), a.Number(1), a.Whole(2)); }},
        {"gap", [](SkinPainter& p, const Arguments& a) { p.Gap(a.Path(0)); }},
        {"chromebar", [](SkinPainter& p, const Arguments& a) { p.ChromeBar(a.Path(0), a.Number(1)); }},
        {"label",
         [](SkinPainter& p, const Arguments& a) {
             p.Text(a.Text(0), a.Number(1), a.Number(2), a.Number(3), a.Text(4), a.Number(5) != 0,
                    a.Number(6) != 0, SurfaceOf(a.at(7)));
         }},
    };
    for (const auto& [name, action] : actions) {
        script.Teach(name, [&painter, action = action](const Arguments& a) {
            action(painter, a);
            return Value();
        });
    }
    // A rounded box between two corners, whichever they are.
    script.Teach("plank", [](const Arguments& a) {
        const auto [left, right] = std::minmax({a.Number(0), a.Number(2)});
        const auto [bottom, top] = std::minmax({a.Number(1), a.Number(3)});
        return Rounded(QRectF(QPointF(left, bottom), QPointF(right, top)), a.Number(4));
    });
    // The shape a fifth smaller round a point.
    script.Teach("about", [](const Arguments& a) {
        QTransform inner;
        inner.translate(a.Number(1), a.Number(2));
        inner.scale(0.8, 0.8);
        inner.translate(-a.Number(1), -a.Number(2));
        return inner.map(a.Path(0));
    });
}

} // namespace torvik::sample
