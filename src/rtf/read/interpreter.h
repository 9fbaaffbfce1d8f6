#pragma once

#include "rtf/bounds/budget.h"
#include "rtf/model/list_counter.h"
#include "rtf/model/list_table.h"
#include "rtf/picture/picture_source.h"
#include "rtf/read/field_instruction.h"
#include "rtf/read/group_state.h"
#include "rtf/read/style_sheet.h"
#include "rtf/read/tokenizer.h"
#include "rtf/rtf_reader.h"
#include "rtf/write/flow_collector.h"
#include "rtf/write/formats.h"

#include <vector>

namespace torvik::rtf {

/// Walks through the tokens of a document and keeps the state that they change. What the single control words
/// do stands in tables of their own (see word_table.h); they work on the members offered here.
class Interpreter {
public:
    Interpreter(const QByteArray& bytes, QTextDocument& into);
    ReadResult Read();

    GroupState& State() { return state_; }
    CharacterState& Character() { return state_.character; }
    ParagraphState& ParagraphFormat() { return state_.paragraph; }
    FontTable& Fonts() { return fonts_; }
    ColorTable& Colors() { return colors_; }
    ListTable& Lists() { return lists_; }
    PictureSource& Picture() { return picture_; }
    /// The row definition that table words change now.
    RowStyle& CurrentRow();
    CellStyle& CurrentCell() { return cell_; }
    /// The border that the next border words change.
    void SelectBorder(Border* border)
    {
        border_ = border;
        boxIsOpen_ = false;
    }
    Border* SelectedBorder() { return border_; }
    /// The next border words change all four sides of the paragraph.
    void OpenBox()
    {
        border_ = nullptr;
        boxIsOpen_ = true;
    }
    bool BoxIsOpen() const { return boxIsOpen_; }
    template <typename Change>
    void EachBoxBorder(Change change)
    {
        for (Border& border : state_.paragraph.borders)
            change(border);
    }

    /// Makes the rest of the group part of a destination.
    void Enter(Destination destination);
    /// Passes over the rest of the group.
    void Skip();
    /// Passes over the group that comes next, if one does.
    void SkipNextGroup();

    void SetFont(int number);
    void SetDocumentPage(int number);
    void SetDefaultFont(int number);
    void SetDefaultTab(int twips);
    void ResetCharacter();
    void ResetParagraph();
    /// Take on the looks of a style, unless they are spelled out behind its number: word processors do that,
    /// and leave out what the text no longer shares with its style.
    void ApplyParagraphStyle(int number);
    void ApplyCharacterStyle(int number);

    void PutUnicode(int value);
    void PutCharacter(char16_t unit);
    void EndParagraph();
    void EndCell(bool nested);
    void EndRow(bool nested);
    void EndCellDefinition(int rightEdge);
    void BreakPage();

    void BeginFont(int number);
    /// The entry of the table of fonts that is being read, nullptr before the first.
    FontEntry* CurrentFont() { return currentFont_; }
    /// The character set of the current entry is known now; its name is written in it.
    void FontChanged();
    void EnterAlternativeFont();
    void BeginField();
    void BeginFieldResult();
    void BeginNote();
    void PutNoteReference();
    void BeginPicture();
    /// The better one of two forms of a picture, and the other.
    void BeginShapePicture();
    void BeginPlainPicture();
    void BeginMark();
    void CancelBreak() { breakPending_ = false; }

private:
    struct Field {
        QString instruction;
        FieldInstruction read;
        int link = 0;
        /// Length of the paragraph's text where the field began.
        qsizetype start = 0;
    };

    void Handle(const Token& token);
    void HandleWord(const Token& token);
    void HandleStyleWord(const Token& token);
    void HandleSymbol(char symbol);
    void OpenGroup();
    void CloseGroup();
    void EndDestination(const GroupState& ended);
    void ReadField();
    void EndField();
    void EndNote(const GroupState& ended);
    void EndPicture(const GroupState& ended);
    void FinishFont();
    void FinishDocument();
    void PutBytes(std::string_view bytes);
    void PutSymbol(const FieldInstruction& symbol);
    void PutText(const QString& text);
    /// Gives out bytes that wait for their other half; FlushText also half a character.
    void FlushBytes();
    void FlushText();
    bool ConsumesFallback(const Token& token);
    QString* AsideText();
    int CurrentFormat();
    bool SpellsLooksOut() const;
    void ApplyStyle(const StyleWords& style);
    void LeaveParagraphStyle();
    void FinishDraft();
    bool IsBody() const;

    Tokenizer tokens_;
    QTextDocument& document_;
    ReadResult result_;
    Budget budget_;
    FontTable fonts_;
    ColorTable colors_;
    StyleSheet styles_;
    ListTable lists_;
    ListCounter counter_;
    Formats formats_;
    PictureStore pictures_;
    WritingContext context_;
    QTextCursor cursor_;
    FlowWriter body_;
    FlowCollector flow_;

    GroupState state_;
    std::vector<GroupState> groups_;
    int overflowDepth_ = 0;
    bool ended_ = false;
    bool starPending_ = false;
    int fallbackLeft_ = 0;
    char16_t highSurrogate_ = 0;
    std::string pendingBytes_;
    QString scratch_;

    int documentPage_ = 1252;
    int defaultFont_ = 0;
    /// The characters as they were before the paragraph took on its style.
    CharacterState beforeStyle_;
    CharacterState lastCharacter_;
    int lastFormat_ = -1;
    int bookmark_ = 0;

    FontEntry* currentFont_ = nullptr;
    int currentFontNumber_ = 0;
    QString aside_;
    QString mark_;
    std::vector<Field> fields_;
    PictureSource picture_;
    bool shapePictureShown_ = false;
    CellStyle cell_;
    Border* border_ = nullptr;
    bool boxIsOpen_ = false;
    int notes_ = 0;
    bool breakPending_ = false;
};

} // namespace torvik::rtf
