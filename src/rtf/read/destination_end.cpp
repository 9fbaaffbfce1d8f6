#include "rtf/read/interpreter.h"

// What happens where a group ends that was a destination.

namespace torvik::rtf {

void Interpreter::EndDestination(const GroupState& ended)
{
    switch (ended.destination) {
    case Destination::Fonts:
        fonts_.End();
        break;
    case Destination::LevelText:
        if (ListLevel* level = document_.lists.CurrentLevel())
            level->text = document_.aside;
        break;
    case Destination::FieldInstruction:
        fields_.EndInstruction();
        break;
    case Destination::Picture:
        if (pictures_.End(ended) && !document_.IsBody())
            shapes_.Current().hasPicture = true;
        break;
    case Destination::FormChoice:
        if (QStringList& choices = fields_.Form().choices; choices.size() < FormField::mostChoices)
            choices.append(document_.aside);
        break;
    case Destination::InformationEntry:
        fields_.Surroundings().information[informationName_] = document_.aside;
        break;
    case Destination::ShapePropertyName:
        shapes_.TakePropertyName();
        break;
    case Destination::ShapePropertyValue:
        shapes_.TakePropertyValue();
        break;
    case Destination::Bookmark:
        looks_.SetBookmark(document_.formats.AddBookmark(document_.aside.trimmed()));
        fields_.BeginBookmark(document_.aside.trimmed());
        break;
    case Destination::BookmarkEnd:
        fields_.EndBookmark(document_.aside.trimmed());
        break;
    case Destination::NumberingBefore:
    case Destination::NumberingAfter:
    case Destination::Numbering:
        // The numbering stays with the paragraph when its group is closed.
        document_.group.paragraph.numbering = ended.paragraph.numbering;
        break;
    case Destination::Note:
        notes_.End(ended);
        break;
    default:
        break;
    }
}

} // namespace torvik::rtf
