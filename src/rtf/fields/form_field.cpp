#include "rtf/fields/form_field.h"

namespace torvik::rtf {

using namespace Qt::StringLiterals;

QString FormField::Value() const
{
    const int value = chosen == undecided ? proposed : chosen;
    switch (kind) {
    case Kind::Text:
        return text;
    case Kind::CheckBox:
        return value == 1 ? u"☒"_s : u"☐"_s;
    case Kind::Choice:
        return choices.value(value);
    case Kind::None:
        break;
    }
    return {};
}

} // namespace torvik::rtf
