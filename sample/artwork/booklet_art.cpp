#include "sample/artwork/art_plan.h"
#include "sample/artwork/pen_script.h"
#include "sample/geometry/shapes.h"
#include "sample/render/painting_words.h"

namespace torvik::sample {

namespace {

QImage Paper(QSize size)
{
    QImage paper(size, QImage::Format_RGB32);
    paper.fill(Qt::white);
    return paper;
}

QImage Printed(const char* drawing, QSize size)
{
    QImage picture = Paper(size);
    SmoothPainter painter(&picture);
    Script script(drawing);
    TeachPainting(script, painter);
    script.Run();
    return picture;
}

} // namespace

QImage PaintBookletLogo()
{
    const QSize size(560, 160);
    Relief relief(size);
    Script script("booklet_logo");
    TeachRelief(script, relief);
    TeachPen(script);
    script.Run();
    return relief.Over(Paper(size));
}

QImage PaintBookletTitle()
{
    return Printed("booklet_title", {700, 190});
}

QImage PaintPublisherMark()
{
    return Printed("publisher_mark", {420, 130});
}

} // namespace torvik::sample
