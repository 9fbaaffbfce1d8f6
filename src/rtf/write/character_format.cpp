#include "rtf/bounds/limits.h"
#include "rtf/paint/format_properties.h"
#include "rtf/paint/line_properties.h"
#include "rtf/write/formats.h"

#include <QPen>

#include <algorithm>

namespace torvik::rtf {

namespace {

/// Of letters of so many points, in pixels: less than half of their stems, which have it at both sides.
double OutlineWidth(double points)
{
    constexpr double part = 1.0 / 30;
    return points * pixelsPerPoint * part;
}

QTextCharFormat::UnderlineStyle UnderlineStyleOf(Underline kind)
{
    switch (kind) {
    case Underline::Single:
    case Underline::Words:
    case Underline::Double:
    case Underline::Thick:
        return QTextCharFormat::SingleUnderline;
    case Underline::Dotted:
    case Underline::ThickDotted:
        return QTextCharFormat::DotLine;
    case Underline::Dashed:
    case Underline::ThickDashed:
        return QTextCharFormat::DashUnderline;
    case Underline::DashDot:
    case Underline::ThickDashDot:
        return QTextCharFormat::DashDotLine;
    case Underline::DashDotDot:
    case Underline::ThickDashDotDot:
        return QTextCharFormat::DashDotDotLine;
    case Underline::Wave:
    case Underline::HeavyWave:
    case Underline::DoubleWave:
        return QTextCharFormat::WaveUnderline;
    case Underline::None:
        break;
    }
    return QTextCharFormat::NoUnderline;
}

ExtraUnderline ExtraUnderlineOf(Underline kind)
{
    switch (kind) {
    case Underline::Double:
        return ExtraUnderline::Double;
    case Underline::Thick:
        return ExtraUnderline::Thick;
    case Underline::ThickDotted:
    case Underline::ThickDashed:
    case Underline::ThickDashDot:
    case Underline::ThickDashDotDot:
        return ExtraUnderline::ThickPattern;
    case Underline::HeavyWave:
        return ExtraUnderline::HeavyWave;
    case Underline::DoubleWave:
        return ExtraUnderline::DoubleWave;
    default:
        return ExtraUnderline::None;
    }
}

void SetFont(QTextCharFormat& format, const FontEntry* font)
{
    if (font == nullptr)
        return;
    const QStringList families = font->Families();
    if (!families.isEmpty())
        format.setFontFamilies(families);
    if (font->hint != QFont::AnyStyle)
        format.setFontStyleHint(font->hint);
    if (font->fixedPitch)
        format.setFontFixedPitch(true);
}

/// Letters without a colour of their own that are pressed out of the paper or into it have the paper's,
/// nearly.
void SetRelief(QTextCharFormat& format, const CharacterState& state, const QColor& front)
{
    if (state.relief == Relief::Flat)
        return;
    const bool isEngraved = state.relief == Relief::Engraved;
    format.setProperty(ShadowProperty, int(isEngraved ? LetterShadow::AboveLeft : LetterShadow::BelowRight));
    const bool isBlack = !front.isValid() || front == Qt::black;
    if (state.relief == Relief::Shadowed || !isBlack || state.outlined)
        return;
    format.setForeground(QColor(Qt::lightGray));
    format.setTextOutline(QPen(QColor(Qt::darkGray), OutlineWidth(state.size / 2.0)));
}

void SetPosition(QTextCharFormat& format, const CharacterState& state)
{
    if (state.script == Script::Super)
        format.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
    else if (state.script == Script::Sub)
        format.setVerticalAlignment(QTextCharFormat::AlignSubScript);
    if (state.raised != 0)
        format.setBaselineOffset(100.0 * state.raised / std::max(state.size, 1));
}

void SetSpacing(QTextCharFormat& format, const CharacterState& state)
{
    if (state.spacing != 0) {
        format.setFontLetterSpacingType(QFont::AbsoluteSpacing);
        format.setFontLetterSpacing(PixelsFromTwips(state.spacing));
    }
    if (state.stretch != 100)
        format.setFontStretch(state.stretch);
    if (state.capitals == Capitals::All)
        format.setFontCapitalization(QFont::AllUppercase);
    else if (state.capitals == Capitals::Small)
        format.setFontCapitalization(QFont::SmallCaps);
}

} // namespace

QTextCharFormat Formats::MakeCharacterFormat(const CharacterState& state) const
{
    QTextCharFormat format;
    SetFont(format, fonts_.Find(state.font));
    format.setFontPointSize(state.size / 2.0);
    if (state.bold)
        format.setFontWeight(QFont::Bold);
    if (state.italic)
        format.setFontItalic(true);
    if (state.strike || state.doubleStrike)
        format.setFontStrikeOut(true);
    if (state.doubleStrike)
        format.setProperty(DoubleStrikeProperty, true);
    if (state.underline != Underline::None) {
        format.setUnderlineStyle(UnderlineStyleOf(state.underline));
        const ExtraUnderline extra = ExtraUnderlineOf(state.underline);
        if (extra != ExtraUnderline::None)
            format.setProperty(UnderlineProperty, int(extra));
        const QColor line = colors_.ChosenAt(state.underlineColor);
        if (line.isValid())
            format.setUnderlineColor(line);
    }
    const QColor front = colors_.At(state.foreground);
    if (front.isValid())
        format.setForeground(front);
    if (state.outlined) {
        // A thin line in the colour of the text, around letters without a filling.
        format.setTextOutline(
            QPen(front.isValid() ? front : QColor(Qt::black), OutlineWidth(state.size / 2.0)));
        format.setForeground(QColor(Qt::transparent));
    }
    SetRelief(format, state, front);
    const QColor back =
        ShadedColor(colors_.ChosenAt(state.patternColor), colors_.ChosenAt(state.background), state.shading);
    if (back.isValid())
        format.setBackground(back);
    SetPosition(format, state);
    SetSpacing(format, state);
    if (state.rightToLeft)
        format.setLayoutDirection(Qt::RightToLeft);
    if (state.link != 0) {
        format.setAnchor(true);
        format.setAnchorHref(links_.at(static_cast<std::size_t>(state.link)));
        // A link that the document gave no look of its own still has to be seen as one.
        if (state.underline == Underline::None && !front.isValid()) {
            format.setUnderlineStyle(QTextCharFormat::SingleUnderline);
            format.setForeground(QColor(Qt::blue));
        }
    }
    if (state.bookmark != 0) {
        format.setAnchor(true);
        format.setAnchorNames({bookmarks_.at(static_cast<std::size_t>(state.bookmark))});
        format.setProperty(BookmarkNumberProperty, state.bookmark);
    }
    return format;
}

} // namespace torvik::rtf
