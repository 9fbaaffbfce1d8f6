#pragma once

#include "rtf/model/list_mark.h"
#include "rtf/model/paragraph_state.h"

namespace torvik::rtf {

/// Room for a mark where the document leaves none, twips.
inline constexpr int leastMarkRoom = 300;

/// Qt draws the mark of an item right before its text, a space apart. These bring it farther to the left,
/// near to where the document hangs it, by estimates, since no font is asked while a document is read. `room`
/// is the width from there to the text, in heights of the letters.
double RoomOfMark(const ListMark& mark, const ParagraphState& paragraph, double letterPoints);
/// How many spaces fit between a number and its text.
int SpacesAfterNumber(const QString& number, double room);
/// How much wider the space before the text has to be than usual for a bullet, percent; at least 100.
int SpaceAfterBullet(double room);

} // namespace torvik::rtf
