#include "rtf/read/word_scope.h"

namespace torvik::rtf {

WordScope ScopeOf(Destination destination)
{
    switch (destination) {
    case Destination::Fonts:
    case Destination::AlternativeFont:
        return WordScope::Fonts;
    case Destination::Colors:
        return WordScope::Colors;
    case Destination::Lists:
    case Destination::ListOverrides:
    case Destination::LevelText:
        return WordScope::Lists;
    case Destination::Picture:
        return WordScope::Picture;
    case Destination::Shape:
        return WordScope::Shape;
    case Destination::FormField:
        return WordScope::Form;
    case Destination::Information:
        return WordScope::Information;
    case Destination::Numbering:
    case Destination::NumberingBefore:
    case Destination::NumberingAfter:
        return WordScope::Numbering;
    default:
        return WordScope::Text;
    }
}

} // namespace torvik::rtf
