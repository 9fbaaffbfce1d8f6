#include "rtf/parts/shape_reader.h"

#include "rtf/bounds/limits.h"
#include "rtf/parts/shape_drawings.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace torvik::rtf {

namespace {

bool HasWords(const std::vector<Block>& blocks)
{
    return std::any_of(blocks.begin(), blocks.end(), [](const Block& block) {
        return block.table || block.box || !block.paragraph.IsEmpty();
    });
}

} // namespace

bool ShapeReader::MayHoldShape() const
{
    return document_.IsBody() || document_.group.destination == Destination::Shape ||
           document_.group.destination == Destination::Hidden;
}

bool ShapeReader::Begin()
{
    if (!MayHoldShape() || document_.group.opensShape || open_.size() >= std::size_t(maxGroupDepth))
        return false;
    document_.group.opensShape = true;
    open_.emplace_back();
    return true;
}

void ShapeReader::End()
{
    if (open_.empty())
        return;
    Shape shape = std::move(open_.back());
    open_.pop_back();
    if (!open_.empty() && shape.isMember)
        PlaceInGroup(shape, open_.back());
    Place(shape);
}

void ShapeReader::PlaceInGroup(Shape& shape, const Shape& group) const
{
    const QRectF& space = group.memberSpace;
    if (space.width() <= 0 || space.height() <= 0)
        return;
    const double across = group.width / space.width();
    const double down = group.height / space.height();
    const auto bounded = [](double twips) {
        return int(std::clamp(twips, -double(maxTwips), double(maxTwips)));
    };
    shape.left = bounded(group.left + (shape.left - space.left()) * across);
    shape.top = bounded(group.top + (shape.top - space.top()) * down);
    shape.width = bounded(shape.width * across);
    shape.height = bounded(shape.height * down);
    shape.fromPage = group.fromPage;
    shape.isBehindText = shape.isBehindText || group.isBehindText;
}

Paragraph ShapeReader::ArtParagraph(const Shape& shape)
{
    Paragraph paragraph;
    paragraph.Append(shape.artText, document_.formats.Character(document_.group.character));
    return paragraph;
}

void ShapeReader::Place(Shape& shape)
{
    if (!shape.hasText && !shape.artText.trimmed().isEmpty()) {
        shape.text.emplace_back(ArtParagraph(shape));
        shape.hasText = true;
        shape.hasLine = shape.hasFill = false; // they are those of the letters
    }
    if (shape.hasText) {
        Box box;
        box.style = BoxStyleOf(shape, document_.page.TextWidth(), document_.page.leftMargin);
        box.blocks = std::move(shape.text);
        document_.flow.AddAnchored(Block(std::make_unique<Box>(std::move(box))),
                                   !document_.flow.Draft().IsEmpty());
        return;
    }
    // What lies behind the text has no place in a text that runs down a window.
    if (shape.isGroup || shape.hasPicture || shape.isBehindText || shape.isHidden)
        return;
    const DrawnShape drawn = DrawnFrom(shape);
    if (drawn.kind == ShapeKind::None || document_.drawings.size() >= std::size_t(maxDrawnShapes))
        return;
    if (document_.drawings.empty())
        document_.drawingsComeAfter = !document_.flow.Draft().IsEmpty();
    document_.drawings.push_back(drawn);
}

void ShapeReader::BeginPrimitive(ShapeKind kind)
{
    if (open_.empty())
        return;
    // The first one takes the place that its group made for it.
    if (open_.back().kind != ShapeKind::None || open_.back().hasText) {
        const bool fromPage = open_.back().fromPage;
        Place(open_.back());
        open_.back() = Shape();
        open_.back().fromPage = fromPage;
    }
    open_.back().kind = kind;
    open_.back().hasFill = false;
}

void ShapeReader::AddCorner(int x, int y)
{
    std::vector<QPointF>& corners = Current().corners;
    if (corners.size() < std::size_t(maxCorners))
        corners.emplace_back(x, y);
}

bool ShapeReader::BeginText()
{
    GroupState& group = document_.group;
    if (!MayHoldShape() || group.opensBox)
        return false;
    if (document_.flow.InNote() || document_.flow.BoxDepth() >= maxBoxNesting)
        return true;
    const bool isOnItsOwn = open_.empty();
    if (isOnItsOwn)
        open_.emplace_back();
    PlaceDrawings(document_);
    texts_.push_back({std::exchange(paragraphs_.Mark(), QString()), isOnItsOwn, open_.size() - 1});
    borders_.ChooseNone();
    document_.flow.BeginBox();
    group.opensBox = true;
    group.paragraph = ParagraphState();
    return true;
}

void ShapeReader::EndText(const GroupState& ended)
{
    if (texts_.empty())
        return;
    if (!document_.flow.Draft().IsEmpty()) {
        const GroupState around = std::exchange(document_.group, ended);
        document_.group.destination = Destination::ShapeText;
        document_.group.paragraph.frame.initialLines = 0;
        paragraphs_.EndParagraph();
        document_.group = around;
    }
    CloseText();
}

void ShapeReader::CloseText()
{
    const OpenText text = std::move(texts_.back());
    texts_.pop_back();
    borders_.ChooseNone();
    PlaceDrawings(document_);
    std::vector<Block> blocks = document_.flow.EndBox();
    paragraphs_.Mark() = text.mark;
    // Objects that were opened inside and not closed again end with the text around them.
    while (open_.size() > text.shape + 1)
        End();
    Shape& shape = Current();
    if (HasWords(blocks)) {
        std::move(blocks.begin(), blocks.end(), std::back_inserter(shape.text));
        shape.hasText = true;
    }
    if (text.endsShape)
        End();
}

void ShapeReader::EndUnfinished()
{
    while (!texts_.empty()) {
        if (!document_.flow.Draft().IsEmpty())
            paragraphs_.EndParagraph();
        CloseText();
    }
    while (!open_.empty())
        End();
}

} // namespace torvik::rtf
