#include "rtf/read/interpreter.h"

#include "rtf/bounds/limits.h"
#include "rtf/read/word_table.h"

#include <QTextDocument>

#include <algorithm>
#include <utility>

namespace torvik::rtf {

namespace {

constexpr int defaultTab = 720;
constexpr int noFont = -0x7fffffff - 1;

WordScope ScopeOf(Destination destination)
{
    switch (destination) {
    case Destination::Fonts:
    case Destination::AlternativeFont:
        return WordScope::Fonts;
    case Destination::Colors:
        return WordScope::Colors;
    case Destination::Lists:
    case Destination::ListOverrides:
    case Destination::LevelText:
        return WordScope::Lists;
    case Destination::Picture:
        return WordScope::Picture;
    case Destination::Numbering:
    case Destination::NumberingBefore:
    case Destination::NumberingAfter:
        return WordScope::Numbering;
    default:
        return WordScope::Text;
    }
}

/// Words that are never taken for the stand-in of a Unicode character: writers that forget the stand-in are
/// more common than those that use such a word for one.
bool IsNeverFallback(std::string_view word)
{
    return word == "u" || word == "uc" || word == "par" || word == "pard" || word == "plain" ||
           word == "cell" || word == "row";
}

} // namespace

Interpreter::Interpreter(const QByteArray& bytes, QTextDocument& into)
    : tokens_({bytes.constData(), static_cast<std::size_t>(bytes.size())}), document_(into),
      budget_(bytes.size()), counter_(lists_),
      formats_(fonts_, colors_), context_{formats_, pictures_, budget_}, cursor_(&into),
      body_(context_, cursor_, FlowWriter::Room::Body), flow_(context_, body_)
{
    state_.page = &CodePage::Of(documentPage_);
    SetDefaultTab(defaultTab);
    // What looks plain must not wait for the table of fonts, so it has none.
    CharacterState plain;
    plain.font = noFont;
    formats_.Character(plain);
    formats_.Paragraph(state_.paragraph);
}

ReadResult Interpreter::Read()
{
    cursor_.beginEditBlock();
    while (!ended_) {
        const Token token = tokens_.Next();
        if (token.kind == TokenKind::End) {
            result_.wasDamaged = true;
            break;
        }
        Handle(token);
    }
    FinishDocument();
    cursor_.endEditBlock();
    pictures_.GiveTo(document_);
    result_.wasRtf = true;
    result_.wasCut = budget_.Exhausted();
    result_.paragraphs = context_.paragraphs;
    result_.tables = context_.tables;
    return result_;
}

void Interpreter::FinishDocument()
{
    // A file that ends within a destination leaves nothing to show of it, but the text before it stays.
    state_.destination = Destination::Body;
    FlushText();
    if (flow_.InNote()) {
        if (!flow_.Draft().IsEmpty())
            EndParagraph();
        flow_.EndNote();
    }
    if (!flow_.Draft().IsEmpty())
        EndParagraph();
    flow_.Finish();
}

void Interpreter::Handle(const Token& token)
{
    if (fallbackLeft_ > 0 && ConsumesFallback(token))
        return;
    switch (token.kind) {
    case TokenKind::Text:
        starPending_ = false;
        PutBytes(token.text);
        break;
    case TokenKind::Hex: {
        const char byte = static_cast<char>(token.value);
        if (token.hasValue)
            PutBytes({&byte, 1});
        break;
    }
    case TokenKind::Word:
        HandleWord(token);
        break;
    case TokenKind::Symbol:
        HandleSymbol(token.symbol);
        break;
    case TokenKind::Binary:
        if (state_.destination == Destination::Picture)
            picture_.data.append(token.text.data(), static_cast<qsizetype>(token.text.size()));
        break;
    case TokenKind::GroupOpen:
        OpenGroup();
        break;
    case TokenKind::GroupClose:
        CloseGroup();
        break;
    case TokenKind::End:
        break;
    }
}

bool Interpreter::ConsumesFallback(const Token& token)
{
    switch (token.kind) {
    case TokenKind::Text:
        return false;
    case TokenKind::Word:
        if (IsNeverFallback(token.text)) {
            fallbackLeft_ = 0;
            return false;
        }
        break;
    case TokenKind::Hex:
    case TokenKind::Symbol:
    case TokenKind::Binary:
        break;
    case TokenKind::GroupOpen:
    case TokenKind::GroupClose:
    case TokenKind::End:
        fallbackLeft_ = 0;
        return false;
    }
    --fallbackLeft_;
    return true;
}

void Interpreter::HandleStyleWord(const Token& token)
{
    const bool isOptional = std::exchange(starPending_, false);
    if (!styles_.Take(token.text, {token.hasValue, token.value}) && isOptional)
        Skip();
}

void Interpreter::HandleWord(const Token& token)
{
    if (state_.destination == Destination::Styles)
        return HandleStyleWord(token);
    // The two halves of a character beyond the first plane come as two words.
    if (token.text == "u" || token.text == "uc")
        FlushBytes();
    else
        FlushText();
    const WordEntry* word = FindWord(ScopeOf(state_.destination), token.text);
    const bool isOptional = starPending_;
    starPending_ = false;
    if (word != nullptr)
        word->apply(*this, {token.hasValue, token.value});
    else if (isOptional)
        Skip();
}

void Interpreter::HandleSymbol(char symbol)
{
    switch (symbol) {
    case '*':
        starPending_ = true;
        break;
    case '\n':
        EndParagraph();
        break;
    case '~':
        PutCharacter(u'\u00a0');
        break;
    case '-':
        PutCharacter(u'\u00ad');
        break;
    case '_':
        PutCharacter(u'\u2011');
        break;
    case '\\':
    case '{':
    case '}':
        PutBytes({&symbol, 1});
        break;
    default:
        break;
    }
}

void Interpreter::OpenGroup()
{
    FlushText();
    starPending_ = false;
    if (groups_.size() >= static_cast<std::size_t>(maxGroupDepth)) {
        ++overflowDepth_;
        return;
    }
    groups_.push_back(state_);
    if (state_.destination == Destination::Styles && state_.opensDestination)
        styles_.BeginEntry();
    state_.opensDestination = false;
    state_.opensField = false;
}

void Interpreter::CloseGroup()
{
    FlushText();
    starPending_ = false;
    if (overflowDepth_ > 0) {
        --overflowDepth_;
        return;
    }
    if (groups_.size() <= 1) {
        // The last paragraph may end with the document, and still has the looks of the group that ends here.
        ended_ = true;
        return;
    }
    const GroupState ended = std::move(state_);
    state_ = std::move(groups_.back());
    groups_.pop_back();
    if (state_.destination == Destination::Styles && state_.opensDestination)
        styles_.EndEntry();
    if (ended.opensDestination)
        EndDestination(ended);
    if (ended.opensField)
        EndField();
}

void Interpreter::Enter(Destination destination)
{
    state_.destination = destination;
    state_.opensDestination = true;
    aside_.clear();
}

void Interpreter::Skip()
{
    if (!tokens_.SkipGroup())
        return;
    CloseGroup();
}

void Interpreter::SkipNextGroup()
{
    const Tokenizer here = tokens_;
    if (tokens_.Next().kind != TokenKind::GroupOpen || !tokens_.SkipGroup())
        tokens_ = here;
}

bool Interpreter::IsBody() const
{
    return state_.destination == Destination::Body || state_.destination == Destination::Note;
}

RowStyle& Interpreter::CurrentRow()
{
    return flow_.RowAt(state_.isNestedTableProperties ? std::max(2, state_.paragraph.tableDepth) : 1);
}

void Interpreter::EndCellDefinition(int rightEdge)
{
    RowStyle& row = CurrentRow();
    cell_.rightEdge = rightEdge;
    if (row.cells.size() < static_cast<std::size_t>(maxRowCells))
        row.cells.push_back(cell_);
    cell_ = CellStyle();
    SelectBorder(nullptr);
}

} // namespace torvik::rtf
