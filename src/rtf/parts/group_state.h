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
    /// The result of a field within the instruction of another one.
    FieldValue,
    FormField,
    FormText,
    FormChoice,
    /// What the document tells about itself, and one entry of it.
    Information,
    InformationEntry,
    Picture,
    /// A drawn object: its words are read, its text is that of the groups inside.
    Shape,
    ShapePropertyName,
    ShapePropertyValue,
    ShapeText,
    Mark,
    Numbering,
    NumberingBefore,
    NumberingAfter,
    Bookmark,
    BookmarkEnd,
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
    /// The group is a drawn object, or the text in one.
    bool opensShape = false;
    bool opensBox = false;
    bool isNestedTableProperties = false;
    bool isShapePicture = false;
    /// The words that name looks of letters beside the usual ones mean those of the complex scripts.
    bool describesComplex = true;
    /// Characters that stand in for one Unicode character.
    int fallbackLength = 1;
};

} // namespace torvik::rtf
