#pragma once

#include "rtf/parts/character_looks.h"
#include "rtf/read/style_sheet.h"
#include "rtf/read/tokenizer.h"

namespace torvik::rtf {

/// Reads the sheet of styles and gives their looks to the text. Word processors mostly spell out the looks
/// of a style right after its number, without those that the text does not share with it; then the looks are
/// not taken from the sheet.
class StyleReader {
public:
    /// `tokens` is right after the word that is being read.
    StyleReader(Interpreter& interpreter, const Tokenizer& tokens)
        : interpreter_(interpreter), tokens_(tokens)
    {}

    StyleSheet& Sheet() { return sheet_; }
    void ApplyToParagraph(int number);
    void ApplyToCharacters(int number);
    /// Resets all looks of the paragraph, and those that its style gave to its characters.
    void ResetParagraph();

private:
    void LeaveParagraphStyle();
    bool LooksAreSpelledOut() const;
    void Apply(const StyleWords& style);

    Interpreter& interpreter_;
    const Tokenizer& tokens_;
    StyleSheet sheet_;
};

} // namespace torvik::rtf
