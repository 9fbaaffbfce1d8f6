#pragma once

#include "rtf/model/character_state.h"
#include "rtf/model/color_table.h"
#include "rtf/model/font_table.h"
#include "rtf/model/paragraph_state.h"

#include <QTextBlockFormat>
#include <QTextCharFormat>

#include <unordered_map>
#include <vector>

namespace torvik::rtf {

/// The formats of a document, each made once and then known by its number. Number 0 is plain.
class Formats {
public:
    Formats(const FontTable& fonts, const ColorTable& colors);

    /// The number of the format for a state. When a document has too many formats, the rest look plain.
    int Character(const CharacterState& state);
    int Paragraph(const ParagraphState& state);

    const QTextCharFormat& CharacterFormat(int number) const;
    const QTextBlockFormat& BlockFormat(int number) const;
    const ParagraphState& StateOf(int number) const;
    const ColorTable& Colors() const { return colors_; }

    /// Numbers for a link target and for a bookmark's name, to be kept in a character state; 0 for none.
    int AddLink(const QString& target);
    int AddBookmark(const QString& name);

private:
    QTextCharFormat MakeCharacterFormat(const CharacterState& state) const;
    QTextBlockFormat MakeBlockFormat(const ParagraphState& state) const;

    const FontTable& fonts_;
    const ColorTable& colors_;
    std::unordered_map<CharacterState, int, CharacterStateHash> characterNumbers_;
    std::unordered_map<ParagraphState, int, ParagraphStateHash> paragraphNumbers_;
    std::vector<QTextCharFormat> characterFormats_;
    std::vector<QTextBlockFormat> blockFormats_;
    std::vector<ParagraphState> paragraphStates_;
    std::vector<QString> links_;
    std::vector<QString> bookmarks_;
};

} // namespace torvik::rtf
