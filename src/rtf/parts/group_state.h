#pragma once

#include "rtf/charset/code_page.h"
#include "rtf/model/character_state.h"
#include "rtf/model/paragraph_state.h"

namespace torvik::rtf {

/// What the text at one place of the file is for.
enum class Destination : quint8 {
    Body,
    /// Text is dropped, but groups inside may be shown again: pictures of shapes, results of objects.
    Hidden,
    Fonts,
    AlternativeFont,
    Colors,
    Styles,
    Lists,
    ListOverrides,
    LevelText,
    FieldInstruction,
    Picture,
    Mark,
    Numbering,
    NumberingBefore,
    NumberingAfter,
    Bookmark,
    Note
};

/// What holds within a group and is taken back at its end.
struct GroupState {
    CharacterState character;
    ParagraphState paragraph;
    const CodePage* page = nullptr;
    Destination destination = Destination::Body;
    /// The group began with the word that named its destination.
    bool opensDestination = false;
    bool opensField = false;
    bool isNestedTableProperties = false;
    bool isShapePicture = false;
    /// Characters that stand in for one Unicode character.
    int fallbackLength = 1;
};

} // namespace torvik::rtf
