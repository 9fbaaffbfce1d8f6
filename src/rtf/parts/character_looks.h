#pragma once

#include "rtf/parts/document_state.h"

namespace torvik::rtf {

/// The looks of the characters that come next.
class CharacterLooks {
public:
    explicit CharacterLooks(DocumentState& document) : document_(document) {}

    void SetFont(int number);
    void SetDefaultFont(int number);
    /// The code page of text whose font names none.
    void SetCodePage(int number);
    /// Resets all looks. The text of a link stays a link.
    void Reset();

    /// Keeps the looks for the time when the paragraph's style no longer holds.
    void KeepForAfterStyle() { withoutStyle_ = document_.group.character; }
    void ReturnFromStyle();

    /// The next text carries the bookmark with a number.
    void SetBookmark(int number) { bookmark_ = number; }
    bool HasBookmark() const { return bookmark_ != 0; }

    /// The number of the format that the looks have now.
    int Format();
    /// Whether the letters of a text do not all get that format.
    bool VariesByLetter() const { return document_.group.character.VariesByLetter(); }
    /// The number of the format for one kind of letters.
    int FormatOf(bool areSpaces, bool areComplex);

private:
    int NumberOf(const CharacterState& looks);

    DocumentState& document_;
    CharacterState withoutStyle_;
    /// Text mostly looks like the text before it, so the last answer is kept.
    CharacterState lastState_;
    int lastFormat_ = -1;
    int bookmark_ = 0;
};

} // namespace torvik::rtf
