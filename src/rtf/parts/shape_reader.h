#pragma once

#include "rtf/parts/border_choice.h"
#include "rtf/parts/document_state.h"
#include "rtf/parts/paragraph_reader.h"
#include "rtf/parts/shape.h"

#include <QString>

#include <vector>

namespace torvik::rtf {

/// Reads drawn objects of both generations. Text in one becomes a box before the paragraph in which
/// the object stands; lines, rectangles and the like become one picture for each paragraph.
class ShapeReader {
public:
    ShapeReader(DocumentState& document, ParagraphReader& paragraphs, BorderChoice& borders)
        : document_(document), paragraphs_(paragraphs), borders_(borders)
    {}

    /// Makes the group that is being read a drawn object; false where none can stand.
    bool Begin();
    /// Ends the object that is being read.
    void End();
    /// The object that is being read; one that is thrown away where there is none.
    Shape& Current() { return open_.empty() ? nowhere_ : open_.back(); }
    bool IsOpen() const { return !open_.empty(); }
    /// Where the group is within one of the places of an object.
    bool MayHoldShape() const;

    /// In the older generation objects follow each other in one group.
    void BeginPrimitive(ShapeKind kind);
    void AddCorner(int x, int y);

    /// Makes the group that is being read the text of the object; false where it is part of the text around.
    bool BeginText();
    /// Ends the text whose group had the state `ended`.
    void EndText(const GroupState& ended);
    void EndUnfinished();

    void TakePropertyName() { name_ = document_.aside.trimmed(); }
    void TakePropertyValue() { SetShapeProperty(Current(), name_, document_.aside); }

private:
    void Place(Shape& shape);
    void PlaceInGroup(Shape& shape, const Shape& group) const;
    void CloseText();
    Paragraph ArtParagraph(const Shape& shape);

    DocumentState& document_;
    ParagraphReader& paragraphs_;
    BorderChoice& borders_;
    std::vector<Shape> open_;
    /// For every open box the mark of the paragraph around it, and whether its object ends with it.
    struct OpenText {
        QString mark;
        bool endsShape = false;
        std::size_t shape = 0;
    };
    std::vector<OpenText> texts_;
    QString name_;
    Shape nowhere_;
};

} // namespace torvik::rtf
