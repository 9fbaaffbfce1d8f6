#include "sample/titles/title_script.h"

#include "sample/geometry/shapes.h"
#include "sample/render/painting_words.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

Value Letters(const Arguments& a)
{
    const double pixels = a.Number(3);
    QFont font(a.Text(4));
    font.setBold(true);
    font.setItalic(a.IsSet(5));
    font.setPixelSize(static_cast<int>(pixels));
    if (a.size() > 6)
        font.setLetterSpacing(QFont::PercentageSpacing, a.Number(6));
    QPainterPath path;
    path.addText(0, 0, font, a.Text(0));
    const QPointF middle = path.boundingRect().center();
    QTransform place;
    place.translate(a.Point(1).x(), a.Point(1).y());
    place.scale(a.Number(2) / pixels, a.Number(2) / pixels);
    place.translate(-middle.x(), -middle.y());
    return place.map(path);
}

} // namespace

void PaintTitle(QImage& picture, const char* file, const char* procedure,
                const std::function<void(Script&)>& teach)
{
    SmoothPainter painter(&picture);
    Script script(file);
    TeachPainting(script, painter);
    script.Teach("letters", Letters);
    script.Set(u"w"_s, picture.width());
    script.Set(u"h"_s, picture.height());
    script.Set(u"size"_s, QPointF(picture.width(), picture.height()));
    if (teach)
        teach(script);
    script.Run();
    script.Call(QString::fromLatin1(procedure), {});
}

} // namespace torvik::sample
