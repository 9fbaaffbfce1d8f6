#pragma once

#include "rtf/read/word_table.h"

#include <unordered_map>
#include <vector>

namespace torvik::rtf {

/// A control word that a style stands for.
struct StyleWord {
    const WordEntry* word = nullptr;
    Argument argument;
};

using StyleWords = std::vector<StyleWord>;

/// Whether a control word is a look that a style can stand for.
bool IsLook(const WordEntry* word);

/// The styles of a document by number; their names are not needed.
class StyleSheet {
public:
    void BeginEntry() { entry_ = Entry(); }
    /// Takes a control word of the entry that is being read: its number, or a part of its looks. False for
    /// any other word.
    bool Take(std::string_view name, const Argument& argument);
    void EndEntry();

    /// What a style of paragraphs or of characters stands for; nullptr when the document has none with this
    /// number.
    /// Looks of the style that another one is based on come first.
    const StyleWords* OfParagraph(int number) { return Find(paragraphs_, number); }
    const StyleWords* OfCharacter(int number) { return Find(characters_, number); }

private:
    struct Style {
        StyleWords words;
        /// Number of the style that it is based on, -1 for none.
        int base = -1;
        /// The words with those of the base, once they were asked for.
        StyleWords whole;
        bool isWhole = false;
    };
    using Styles = std::unordered_map<int, Style>;
    struct Entry {
        int number = 0;
        Styles StyleSheet::*kind = &StyleSheet::paragraphs_;
        Style style;
    };
    static const StyleWords* Find(Styles& styles, int number);

    Styles paragraphs_;
    Styles characters_;
    Styles others_; // of sections and tables, which are not followed
    Entry entry_;
};

} // namespace torvik::rtf
