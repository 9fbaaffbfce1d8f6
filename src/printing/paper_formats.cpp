#include "printing/paper_formats.h"

#include "ui/printer/paper_fonts.h"

#include <QFont>
#include <QHash>
#include <QPen>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>

#include <utility>
#include <vector>

namespace torvik {

namespace {

/// Characters that are to get a format.
struct Stretch {
    int begin;
    int end;
    QTextCharFormat format;
};

/// A font in pixels is measured for the screen; on paper it would shrink to a speck. Nobody sees hinting
/// there, and it takes time for every letter.
QFont FontForPaper(QFont font)
{
    constexpr double pointsPerPixel = 72.0 / 96.0;
    font.setHintingPreference(QFont::PreferNoHinting);
    if (font.pixelSize() > 0)
        font.setPointSizeF(font.pixelSize() * pointsPerPixel);
    return font;
}

/// What is different on paper in each format of a document; found out once a format.
class PaperFormats {
public:
    PaperFormats(const QFont& defaultFont, double scale) : defaultFont_(defaultFont), scale_(scale) {}

    /// What is to be merged into a format with this number in its document. A text that the fonts for paper
    /// do not hold keeps its own.
    QTextCharFormat ChangeOf(int number, const QTextCharFormat& format, bool hasPaperFont)
    {
        auto found = changes_.constFind({number, hasPaperFont});
        if (found == changes_.constEnd())
            found = changes_.insert({number, hasPaperFont}, MakeChange(format, hasPaperFont));
        return *found;
    }

private:
    QTextCharFormat MakeChange(const QTextCharFormat& format, bool hasPaperFont) const
    {
        QTextCharFormat change;
        // The layout brings the space between letters to the paper, but not the line around them.
        if (format.hasProperty(QTextFormat::TextOutline)) {
            QPen outline = format.textOutline();
            outline.setWidthF(outline.widthF() * scale_);
            change.setTextOutline(outline);
        }
        if (hasPaperFont)
            change.setFontFamilies(PaperFamilies(format.font().resolve(defaultFont_)));
        return change;
    }

    QFont defaultFont_;
    double scale_;
    QHash<std::pair<int, bool>, QTextCharFormat> changes_;
};

/// The layout brings all lengths from the screen's resolution to the device's, but leaves these three as they
/// are.
void ScaleIndents(QTextCursor& cursor, const QTextBlockFormat& format, double scale)
{
    if (format.leftMargin() == 0 && format.rightMargin() == 0 && format.textIndent() == 0)
        return;
    QTextBlockFormat scaled;
    scaled.setLeftMargin(format.leftMargin() * scale);
    scaled.setRightMargin(format.rightMargin() * scale);
    scaled.setTextIndent(format.textIndent() * scale);
    cursor.mergeBlockFormat(scaled);
}

void AddStretches(const QTextBlock& block, PaperFormats& formats, std::vector<Stretch>& stretches)
{
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QTextFragment piece = part.fragment();
        const QTextCharFormat change =
            formats.ChangeOf(piece.charFormatIndex(), piece.charFormat(), AreInPaperFonts(piece.text()));
        if (change.isEmpty())
            continue;
        const int end = piece.position() + piece.length();
        if (!stretches.empty() && stretches.back().end == piece.position() &&
            stretches.back().format == change)
            stretches.back().end = end;
        else
            stretches.push_back({piece.position(), end, change});
    }
}

} // namespace

void BringFormatsToPaper(QTextDocument& text, double scale)
{
    text.setDefaultFont(FontForPaper(text.defaultFont()));
    PaperFormats formats(text.defaultFont(), scale);
    std::vector<Stretch> stretches;
    QTextCursor cursor(&text);
    cursor.beginEditBlock();
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        AddStretches(block, formats, stretches);
        cursor.setPosition(block.position());
        ScaleIndents(cursor, block.blockFormat(), scale);
        if (block.textList() != nullptr) // the number before an item is no text, but has its paragraph's font
            cursor.mergeBlockCharFormat(formats.ChangeOf(block.charFormatIndex(), block.charFormat(), true));
    }
    for (const Stretch& stretch : stretches) {
        cursor.setPosition(stretch.begin);
        cursor.setPosition(stretch.end, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(stretch.format);
    }
    cursor.endEditBlock();
}

} // namespace torvik
