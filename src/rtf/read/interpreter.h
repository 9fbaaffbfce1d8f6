#pragma once

#include "rtf/parts/border_choice.h"
#include "rtf/parts/character_looks.h"
#include "rtf/parts/document_state.h"
#include "rtf/parts/field_reader.h"
#include "rtf/parts/font_reader.h"
#include "rtf/parts/note_reader.h"
#include "rtf/parts/paragraph_reader.h"
#include "rtf/parts/picture_reader.h"
#include "rtf/parts/read_result.h"
#include "rtf/parts/row_reader.h"
#include "rtf/parts/shape_reader.h"
#include "rtf/parts/text_decoder.h"
#include "rtf/parts/text_router.h"
#include "rtf/read/style_reader.h"
#include "rtf/read/tokenizer.h"

#include <stop_token>
#include <vector>

namespace torvik::rtf {

/// Walks through the tokens and the groups of a document. What each control word does is in tables (see
/// word_table.h): it turns to the part of the reader that it concerns.
class Interpreter {
public:
    Interpreter(const QByteArray& bytes, QTextDocument& into);
    /// Leaves out what comes after `stop` was asked for.
    ReadResult Read(const std::stop_token& stop);

    DocumentState& Document() { return document_; }
    CharacterState& Character() { return document_.group.character; }
    ParagraphState& Paragraph() { return document_.group.paragraph; }

    CharacterLooks& Looks() { return looks_; }
    BorderChoice& Borders() { return borders_; }
    RowReader& Rows() { return rows_; }
    FontReader& Fonts() { return fonts_; }
    FieldReader& Fields() { return fields_; }
    ParagraphReader& Paragraphs() { return paragraphs_; }
    NoteReader& Notes() { return notes_; }
    PictureReader& Pictures() { return pictures_; }
    ShapeReader& Shapes() { return shapes_; }
    TextDecoder& Text() { return text_; }
    StyleReader& Styles() { return styles_; }

    /// Makes the rest of the group part of a destination.
    void Enter(Destination destination);
    /// Makes the rest of the group an entry of what the document tells about itself.
    void BeginInformation(const QString& name);
    /// The pieces that come next are those of one of the times that the document tells.
    void BeginTime(const QString& name) { informationName_ = name; }
    StoredTime& Time() { return fields_.Surroundings().times[informationName_]; }
    /// Passes over the rest of the group.
    void Skip();
    /// Passes over the group that comes next, if one does.
    void SkipNextGroup();

private:
    void Handle(const Token& token);
    void HandleWord(const Token& token);
    void HandleStyleWord(const Token& token);
    void HandleSymbol(char symbol);
    void HandleBytes(std::string_view bytes);
    bool IsStandIn(const Token& token);
    void FindLostText(std::string_view word);
    void LeaveTables();
    void OpenGroup();
    void CloseGroup();
    bool GoesOn();
    void EndDestination(const GroupState& ended);
    void FinishDocument();

    Tokenizer tokens_;
    DocumentState document_;
    CharacterLooks looks_;
    BorderChoice borders_;
    RowReader rows_;
    FontReader fonts_;
    FieldReader fields_;
    ParagraphReader paragraphs_;
    NoteReader notes_;
    PictureReader pictures_;
    ShapeReader shapes_;
    TextRouter router_;
    TextDecoder text_;
    StyleReader styles_;

    QString informationName_;
    std::vector<GroupState> groups_;
    /// How many groups are open that are nested too deeply to be kept.
    int overflowDepth_ = 0;
    int unendingGroups_ = 0;
    bool ended_ = false;
    /// Braces were lost, or there are too many.
    bool isBroken_ = false;
    int mistakenEnds_ = 0;
    /// The next word may be passed over with its group by readers that do not know it.
    bool starPending_ = false;
};

} // namespace torvik::rtf
