#pragma once

#include <QChar>

#include <cstddef>

namespace torvik::rtf {

enum class Underline : quint8 {
    None,
    Single,
    Words,
    Double,
    Thick,
    Dotted,
    Dashed,
    DashDot,
    DashDotDot,
    ThickDotted,
    ThickDashed,
    ThickDashDot,
    ThickDashDotDot,
    Wave,
    HeavyWave,
    DoubleWave
};
enum class Script : quint8 { Normal, Super, Sub };
/// Letters that stand above the paper: by their shadow alone, pressed out of it, or pressed into it.
enum class Relief : quint8 { Flat, Shadowed, Embossed, Engraved };
enum class Capitals : quint8 { AsWritten, All, Small };

/// What letters of the scripts look like that are not written one beside the other from left to right: Hebrew
/// and Arabic above all. Documents tell it beside the looks of all other letters.
struct ComplexLooks {
    /// Otherwise these letters look like the others.
    bool isTold = false;
    bool bold = false;
    bool italic = false;
    /// -1 and 0 for those of the others.
    int font = -1;
    int size = 0;

    bool operator==(const ComplexLooks&) const = default;
};

/// What the text at one place of a document looks like. Numbers refer to the document's tables.
struct CharacterState {
    int font = 0;
    /// Half points.
    int size = 24;
    /// -1 until the document chooses one: then the reader's own.
    int foreground = -1;
    int background = 0;
    int underlineColor = 0;
    /// Pattern over the background, hundredths of a percent, and its colour.
    int shading = 0;
    int patternColor = 0;
    /// Extra space between characters, twips.
    int spacing = 0;
    /// Width of the characters, percent.
    int stretch = 100;
    /// Half points that the text is raised by; negative is lowered.
    int raised = 0;
    /// Numbers of a link target and of a bookmark name, 0 for none.
    int link = 0;
    int bookmark = 0;
    bool bold = false;
    bool italic = false;
    bool strike = false;
    /// By two lines.
    bool doubleStrike = false;
    bool outlined = false;
    bool hidden = false;
    bool rightToLeft = false;
    Underline underline = Underline::None;
    Script script = Script::Normal;
    Relief relief = Relief::Flat;
    Capitals capitals = Capitals::AsWritten;
    ComplexLooks complex;

    bool operator==(const CharacterState&) const = default;
    /// Whether not all letters that follow each other look alike.
    bool VariesByLetter() const;
    /// The looks of one kind of letters, the same for all of them.
    CharacterState OfLetters(bool areSpaces, bool areComplex) const;
};

/// Whether a letter is of a script that `ComplexLooks` are for.
bool IsComplexLetter(QChar letter);

struct CharacterStateHash {
    std::size_t operator()(const CharacterState& state) const;
};

} // namespace torvik::rtf
