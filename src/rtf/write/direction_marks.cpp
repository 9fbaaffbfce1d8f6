#include "rtf/write/direction_marks.h"

#include "rtf/write/formats.h"

#include <algorithm>
#include <iterator>

namespace torvik::rtf {

namespace {

constexpr QChar rightToLeftMark(0x200f);

/// How many signs are looked over for a letter; a paragraph may hold nothing but signs, in any number of
/// runs.
constexpr qsizetype mostSigns = 100;

bool RunsFromRightToLeft(const Paragraph& paragraph, std::size_t span, const Formats& formats)
{
    return span < paragraph.spans.size() &&
           formats.CharacterFormat(paragraph.spans[span].format).layoutDirection() == Qt::RightToLeft;
}

/// Whether signs without a direction come first, and then a letter from right to left.
template <typename Characters>
bool BeginsWithSigns(Characters from, Characters endOfText)
{
    const Characters end = endOfText - from > mostSigns ? from + mostSigns : endOfText;
    const auto hasDirection = [](QChar c) {
        const QChar::Direction direction = c.direction();
        return direction == QChar::DirL || direction == QChar::DirR || direction == QChar::DirAL;
    };
    const auto isSign = [&](QChar c) { return !hasDirection(c) && !c.isNumber(); };
    const auto letter = std::find_if(from, end, hasDirection);
    return letter != end && letter->direction() != QChar::DirL && std::any_of(from, letter, isSign);
}

} // namespace

QString WithDirectionMarks(const Paragraph& paragraph, std::size_t span, qsizetype start,
                           const Formats& formats)
{
    const QString& whole = paragraph.text;
    QString text = whole.mid(start, paragraph.spans[span].length);
    if (formats.BlockFormat(paragraph.format).layoutDirection() == Qt::RightToLeft)
        return text;
    // Spaces at the edges stay outside, else the words on both sides of an edge would touch.
    const auto isNoSpace = [](QChar c) { return !c.isSpace(); };
    const qsizetype first = std::find_if(text.cbegin(), text.cend(), isNoSpace) - text.cbegin();
    const qsizetype end = text.crend() - std::find_if(text.crbegin(), text.crend(), isNoSpace);
    if (first >= end)
        return text;
    const bool isLast = !RunsFromRightToLeft(paragraph, span + 1, formats);
    const bool isFirst = span == 0 || !RunsFromRightToLeft(paragraph, span - 1, formats);
    if (isLast && BeginsWithSigns(std::make_reverse_iterator(whole.cbegin() + start + end), whole.crend()))
        text.insert(end, rightToLeftMark);
    if (isFirst && BeginsWithSigns(whole.cbegin() + start + first, whole.cend()))
        text.insert(first, rightToLeftMark);
    return text;
}

} // namespace torvik::rtf
