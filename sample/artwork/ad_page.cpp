#include "sample/artwork/ad_page.h"

#include "sample/artwork/ad_type.h"
#include "sample/artwork/flat_drawing.h"
#include "sample/car/paints.h"
#include "sample/documents/colour_cards.h"
#include "sample/documents/figures.h"
#include "sample/geometry/shapes.h"
#include "sample/photos/photographer.h"
#include "sample/render/film.h"
#include "sample/render/painting_words.h"
#include "sample/render/tabletop.h"

#include <algorithm>
#include <stdexcept>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

/// A page under the printer's hands.
struct AdPage {
    QPainter& painter;
    const PlannedAd& plan;
    const AdCopy& copy;
};

Paint PaintNamed(int year, const QString& name)
{
    for (const CardColour& colour : ColourCard(year)) {
        if (colour.name == name)
            return {colour.name, colour.colour, colour.metallic ? 0.6 : 0.0};
    }
    throw std::runtime_error("The year had no such colour: " + name.toStdString());
}

Trim AdTrim(const PlannedAd& plan)
{
    Trim trim{.plate = QString::number(plan.year),
              .script = u"Vollandry"_s,
              .lampsLit = plan.place == Place::City,
              .whiteWalls = plan.year <= 1968,
              .redLine = plan.year == 1969 || plan.year == 1970};
    if (plan.year == 1976) {
        trim.stripe = Trim::Stripe::Racing;
        trim.stripeColour = QColor(36, 86, 176);
    }
    if (plan.year == 1978) {
        trim.stripe = Trim::Stripe::Rocker;
        trim.stripeColour = QColor(24, 20, 18);
    }
    return trim;
}

void DrawText(QPainter& p, const QRectF& box, const QString& text, const Type& type, double size,
              const QColor& ink, Qt::Alignment alignment)
{
    p.setFont(FontOf(type, size));
    p.setPen(ink);
    p.drawText(box, static_cast<int>(alignment | Qt::TextWordWrap), text);
}

/// The photograph of the car for a place of the page.
QImage AdPhoto(const PlannedAd& plan, QSize size)
{
    const CarShape shape = ShapeOfYear(plan.year);
    const auto seed = static_cast<std::uint32_t>(plan.year * 7 + 3);
    Camera camera = CameraFor(shape, plan.view, size, seed);
    // Pictures that are not broad would show more road than car.
    const double broadness = static_cast<double>(size.width()) / size.height();
    camera.focal *= plan.view == View::HeadOn ? 1.7 : broadness < 1 ? 1.26 : 1.0;
    QImage picture = PhotographCar(shape, PaintNamed(plan.year, plan.paint), AdTrim(plan),
                                   MakeScenery(plan.place, seed), camera, size, SideOf(plan.view));
    Develop(picture, plan.year, seed);
    return picture;
}

/// The box with the price of the car and what it is for.
void DrawPriceBox(const AdPage& page, const Arguments& a)
{
    const QRectF box = a.Box(0);
    const QColor ink = a.Colour(2);
    QPainter& p = page.painter;
    p.fillRect(box, a.Colour(1));
    p.setPen(QPen(ink, 2));
    p.setBrush(Qt::NoBrush);
    p.drawRect(box.adjusted(6, 6, -6, -6));
    const QRectF inner = box.adjusted(16, 14, -16, -12);
    const ModelYear& model = ModelYearOf(page.plan.year);
    const QString price = Dollars(model.price);
    const QRectF top(inner.left(), inner.top(), inner.width(), inner.height() * 0.42);
    p.fillPath(
        Centred(FittedHeadline(price, top, page.plan.headline, 1, top.height() * 0.78, Qt::AlignHCenter),
                top.center()),
        ink);
    const QString words =
        u"Vollandry coupe, %1, at Gate One, Port Averel. Plates and petrol are extra."_s.arg(
            EngineName(EnginesOf(page.plan.year).front()));
    const QRectF rest(inner.left(), top.bottom() + 4, inner.width(), inner.bottom() - top.bottom() - 4);
    SetColumns(p, {words}, {rest}, {page.plan.body, ink, 22, Qt::AlignLeft});
}

/// The engines of the year with their power, one to a line.
void DrawEngines(const AdPage& page, const Arguments& a)
{
    const QRectF box = a.Box(0);
    const QColor ink = a.Colour(1);
    QPainter& p = page.painter;
    const std::vector<Engine> engines = EnginesOf(page.plan.year);
    const double line = std::min(34.0, box.height() / static_cast<double>(engines.size()));
    double y = box.top();
    for (const Engine& engine : engines) {
        const QRectF row(box.left(), y, box.width(), line);
        p.setPen(QPen(page.plan.accent, 1));
        p.drawLine(row.topLeft(), row.topRight());
        DrawText(p, row, EngineName(engine), page.plan.body, line * 0.60, ink,
                 Qt::AlignLeft | Qt::AlignVCenter);
        DrawText(p, row, u"%1 bhp"_s.arg(engine.power), page.plan.body, line * 0.60, ink,
                 Qt::AlignRight | Qt::AlignVCenter);
        y += line;
    }
    p.setPen(QPen(page.plan.accent, 1));
    p.drawLine(QPointF(box.left(), y), QPointF(box.right(), y));
}

/// The car in the first colours of the card, as flat drawings side by side.
void DrawColourRow(const AdPage& page, const Arguments& a)
{
    const QRectF box = a.Box(0);
    const QColor ink = a.Colour(1);
    const CarShape shape = ShapeOfYear(page.plan.year);
    const std::vector<CardColour> card = ColourCard(page.plan.year);
    const int count = std::max(1, std::min({7, static_cast<int>(card.size()), Floor(box.width() / 125)}));
    const double width = box.width() / count;
    const double scale = std::min((width - 18) / shape.length, (box.height() - 26) / 1.45);
    for (int i = 0; i < count; ++i) {
        const CardColour& colour = card[static_cast<std::size_t>(i)];
        const double left = box.left() + i * width;
        DrawCarSide(page.painter, shape, colour.colour,
                    {left + (width - shape.length * scale) / 2, box.bottom() - 26}, scale);
        DrawText(page.painter, QRectF(left, box.bottom() - 22, width, 22), colour.name, page.plan.body, 15,
                 ink, Qt::AlignHCenter | Qt::AlignTop);
    }
}

/// Shield, name and works; small print below.
void DrawSignature(const AdPage& page, const Arguments& a)
{
    const QRectF box = a.Box(0);
    const QColor ink = a.Colour(1);
    QPainter& p = page.painter;
    const double size = std::min(30.0, box.height() * 0.36);
    const QPointF shield(box.left() + size, box.top() + size * 1.05);
    p.fillPath(ShieldPath(shield, size), page.plan.accent);
    p.fillPath(WingedT(shield + QPointF(0, size * 0.05), size * 0.62), Qt::white);
    const double left = box.left() + size * 2.6;
    p.fillPath(Lettering(u"Torvik Vollandry"_s, size * 0.72, page.plan.headline)
                   .translated(left, box.top() + size * 1.0),
               ink);
    DrawText(p, QRectF(left, box.top() + size * 1.28, box.right() - left, size),
             u"Brenmoor Motor Works, Port Averel · %1"_s.arg(page.plan.year), page.plan.body, 17, ink,
             Qt::AlignLeft | Qt::AlignTop);
    QColor faint = ink;
    faint.setAlpha(170);
    DrawText(p, QRectF(box.left(), box.bottom() - 18, box.width(), 20),
             u"Cars, works and prices on this page are invented. Please do not send money."_s, page.plan.body,
             13, faint, Qt::AlignLeft | Qt::AlignTop);
}

/// The page's colour where it can be read on the paper, else that of the text.
QColor LeadInk(const PlannedAd& plan)
{
    const int contrast = std::abs(qGray(plan.accent.rgb()) - qGray(plan.paper.rgb()));
    return contrast > 105 ? plan.accent : plan.ink;
}

/// Argument `at`, where there is one, as an alignment.
Qt::Alignment AlignmentOf(const Arguments& a, std::size_t at)
{
    const QString side = a.size() > at ? a[at].Text() : QString();
    return side == "centre"_L1 ? Qt::AlignHCenter : side == "justified"_L1 ? Qt::AlignJustify : Qt::AlignLeft;
}

Value SetHeadline(const AdPage& page, const Arguments& a)
{
    const QPainterPath headline = FittedHeadline(page.copy.headline, a.Box(0), page.plan.headline, a.Whole(1),
                                                 a.Number(2), AlignmentOf(a, 3));
    page.painter.fillPath(headline, page.plan.ink);
    return headline.boundingRect().bottom();
}

void SetLead(const AdPage& page, const Arguments& a)
{
    Type type = page.plan.body;
    type.italic = page.plan.year < 1979;
    type.bold = page.plan.year >= 1979;
    SetColumns(page.painter, {page.copy.lead}, {a.Box(0)},
               {type, a.Colour(1), a.Number(2), AlignmentOf(a, 3)});
}

void SetBody(const AdPage& page, const Arguments& a)
{
    std::vector<QRectF> columns;
    for (const Value& column : a.Items(0))
        columns.push_back(column.Box());
    SetColumns(page.painter, page.copy.paragraphs, columns,
               {page.plan.body, page.plan.ink, a.Number(1), AlignmentOf(a, 2)});
}

Value Columns(const Arguments& a)
{
    Value::List columns;
    for (const QRectF& column : ColumnsIn(a.Box(0), a.Whole(1), a.Number(2)))
        columns.emplace_back(column);
    return columns;
}

void TeachPage(Script& script, const AdPage& page)
{
    using Action = void (*)(const AdPage&, const Arguments&);
    constexpr std::pair<const char*, Action> actions[] = {
        {"setLead", SetLead},
        {"setColumns", SetBody},
        {"setPhoto",
         [](const AdPage& p, const Arguments& a) {
             const QRectF box = a.Box(0);
             p.painter.drawImage(box, AdPhoto(p.plan, box.size().toSize()));
         }},
        {"drawPriceBox", DrawPriceBox},
        {"drawEngines", DrawEngines},
        {"drawColourRow", DrawColourRow},
        {"drawSignature", DrawSignature},
    };
    for (const auto& [name, action] : actions) {
        script.Teach(name, [&page, action = action](const Arguments& a) {
            action(page, a);
            return Value();
        });
    }
    script.Teach("setHeadline", [&page](const Arguments& a) { return SetHeadline(page, a); });
    script.Teach("columnsIn", Columns);
}

} // namespace

QImage PaintAd(const PlannedAd& plan)
{
    QImage sheet(plan.Size(), QImage::Format_RGB32);
    sheet.fill(plan.paper);
    SmoothPainter painter(&sheet);
    const AdCopy copy = AdCopyOf(plan.year);
    const AdPage page{painter, plan, copy};
    Script script("ad_pages");
    TeachPainting(script, painter);
    TeachPage(script, page);
    const std::pair<const char*, Value> words[] = {
        {"layout", static_cast<int>(plan.layout)},
        {"year", plan.year},
        {"paper", plan.paper},
        {"ink", plan.ink},
        {"accent", plan.accent},
        {"leadInk", LeadInk(plan)},
        // Fashion: columns with two straight edges to the end of the seventies, with one since.
        {"edge", plan.year < 1979 ? u"justified"_s : u"left"_s}};
    for (const auto& [word, value] : words)
        script.Set(QString::fromLatin1(word), value);
    script.Run();
    return sheet;
}

} // namespace torvik::sample
