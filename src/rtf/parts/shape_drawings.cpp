#include "rtf/parts/shape_drawings.h"

#include "rtf/bounds/limits.h"
#include "rtf/parts/document_state.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace torvik::rtf {

namespace {

/// Shapes nearer than this belong to one drawing, pixels.
constexpr double nearby = 24;

struct Drawing {
    std::vector<DrawnShape> shapes;
    QRectF room;
};

/// Every shape joins the last drawing that it is near to, else it begins one.
std::vector<Drawing> Grouped(std::vector<DrawnShape> shapes)
{
    std::vector<Drawing> drawings;
    for (DrawnShape& shape : shapes) {
        const QRectF room = RoomOf(shape);
        const QRectF reach = room.adjusted(-nearby, -nearby, nearby, nearby);
        const auto near = std::find_if(drawings.rbegin(), drawings.rend(), [&](const Drawing& drawing) {
            return drawing.room.intersects(reach);
        });
        Drawing& drawing = near != drawings.rend() ? *near : drawings.emplace_back();
        drawing.room = drawing.room.united(room);
        drawing.shapes.push_back(std::move(shape));
    }
    return drawings;
}

} // namespace

void PlaceDrawings(DocumentState& document)
{
    if (document.drawings.empty())
        return;
    for (const Drawing& drawing : Grouped(std::exchange(document.drawings, {}))) {
        const ShownPicture picture = DrawShapes(drawing.shapes, document.budget);
        if (picture.image.isNull())
            continue;
        ParagraphState looks;
        const auto left = static_cast<int>(drawing.room.left() * twipsPerPixel);
        const auto width = static_cast<int>(drawing.room.width() * twipsPerPixel);
        looks.leftIndent = std::clamp(left, 0, std::max(document.page.TextWidth() - width, 0));
        const int format = document.formats.Character(CharacterState());
        Paragraph paragraph;
        paragraph.AppendPicture(document.pictures.Add(picture.image, picture.size), format);
        paragraph.format = paragraph.itemFormat = document.formats.Paragraph(looks);
        paragraph.endFormat = format;
        document.flow.AddAnchored(Block(std::move(paragraph)), document.drawingsComeAfter);
    }
}

} // namespace torvik::rtf
