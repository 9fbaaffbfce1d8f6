#include "sample/car/skin_painter.h"

#include "sample/geometry/wide_registers.h"

namespace torvik::sample {

namespace {

constexpr int reliefLevel = 128;

QColor Grey(int level, int second = 0)
{
    return QColor(std::clamp(level, 0, 255), std::clamp(second, 0, 255), 0);
}

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

QPainterPath RoundedPath(double u0, double v0, double u1, double v1, double radius)
{
    return Rounded(
        QRectF(QPointF(std::min(u0, u1), std::min(v0, v1)), QPointF(std::max(u0, u1), std::max(v0, v1))),
        radius);
}

} // namespace torvik::sample
