#pragma once

#include "rtf/parts/character_looks.h"
#include "rtf/parts/document_state.h"

namespace torvik::rtf {

/// Reads the table of fonts.
class FontReader {
public:
    FontReader(DocumentState& document, CharacterLooks& looks) : document_(document), looks_(looks) {}

    /// Begins the entry with a number, and ends the one before it.
    void BeginEntry(int number);
    /// The entry that is being read, nullptr before the first.
    FontEntry* Entry() { return entry_; }
    /// The character set of the entry is known now; its name is written in it.
    void TakeCodePage();
    /// The text that comes next is the name of a font to use in place of the entry's own.
    void BeginAlternative();
    QString& AlternativeName() { return entry_ != nullptr ? entry_->alternative : document_.aside; }
    /// Ends the table.
    void End();

private:
    void EndEntry();

    DocumentState& document_;
    CharacterLooks& looks_;
    FontEntry* entry_ = nullptr;
    int number_ = 0;
};

} // namespace torvik::rtf
