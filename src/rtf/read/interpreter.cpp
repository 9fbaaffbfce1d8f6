#include "rtf/read/interpreter.h"

#include "rtf/bounds/limits.h"
#include "rtf/read/lost_braces.h"
#include "rtf/read/word_scope.h"
#include "rtf/read/word_table.h"

#include <QTextDocument>

#include <algorithm>
#include <utility>

namespace torvik::rtf {

namespace {

constexpr int defaultTab = 720;

/// Words that are never taken for the stand-in of a Unicode character: writers that forget the stand-in are
/// more common than those that use such a word for one.
bool IsNeverStandIn(std::string_view word)
{
    return word == "u" || word == "uc" || word == "par" || word == "pard" || word == "plain" ||
           word == "cell" || word == "row";
}

} // namespace

Interpreter::Interpreter(const QByteArray& bytes, QTextDocument& into)
    : tokens_({bytes.constData(), static_cast<std::size_t>(bytes.size())}), document_(bytes.size(), into),
      looks_(document_), borders_(document_), rows_(document_, borders_), fonts_(document_, looks_),
      fields_(document_), paragraphs_(document_, looks_), notes_(document_, paragraphs_),
      pictures_(document_, looks_), shapes_(document_, paragraphs_, borders_),
      router_(document_, looks_, fonts_, fields_, paragraphs_), text_(document_, router_),
      styles_(*this, tokens_)
{
    paragraphs_.SetDefaultTab(defaultTab);
}

ReadResult Interpreter::Read(const std::stop_token& stop)
{
    ReadResult result;
    document_.cursor.beginEditBlock();
    while (!ended_ && !stop.stop_requested()) {
        const Token token = tokens_.Next();
        if (token.kind == TokenKind::End) {
            result.wasDamaged = true;
            break;
        }
        Handle(token);
    }
    FinishDocument();
    document_.cursor.endEditBlock();
    document_.pictures.GiveTo(document_.document);
    result.wasRtf = true;
    result.wasDamaged = result.wasDamaged || isBroken_;
    result.wasCut = stop.stop_requested() || document_.budget.Exhausted();
    result.paragraphs = document_.context.paragraphs;
    result.hasRowHeights = document_.context.hasRowHeights;
    result.tables = document_.context.tables;
    result.pictures = pictures_.Shown();
    result.lostPictures = pictures_.Lost();
    return result;
}

void Interpreter::FinishDocument()
{
    // Nothing is shown of a destination that the file ends in, but the text before it stays.
    document_.group.destination = Destination::Body;
    text_.Flush();
    notes_.EndUnfinished();
    shapes_.EndUnfinished();
    document_.group.paragraph.frame.initialLines = 0;
    paragraphs_.EndDocument();
}

void Interpreter::Handle(const Token& token)
{
    if (text_.InStandIn() && IsStandIn(token))
        return;
    switch (token.kind) {
    case TokenKind::Text:
        starPending_ = false;
        HandleBytes(token.text);
        // Some writers put both halves of a character as they are, even where one looks like a brace.
        if (const char stop = tokens_.StopAhead(); stop != 0 && text_.IsCompletedBy(stop))
            HandleBytes(tokens_.TakeByte());
        break;
    case TokenKind::Hex: {
        const char byte = static_cast<char>(token.value);
        if (token.hasValue)
            HandleBytes({&byte, 1});
        break;
    }
    case TokenKind::Word:
        HandleWord(token);
        break;
    case TokenKind::Symbol:
        HandleSymbol(token.symbol);
        break;
    case TokenKind::Binary:
        if (document_.group.destination == Destination::Picture)
            pictures_.AppendBytes(token.text);
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

/// Whether a token stands in for a Unicode character, and is passed over. Bytes are looked at one by one
/// where they are handled.
bool Interpreter::IsStandIn(const Token& token)
{
    switch (token.kind) {
    case TokenKind::Text:
        return false;
    case TokenKind::Word:
        if (IsNeverStandIn(token.text)) {
            text_.EndStandIn();
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
        text_.EndStandIn();
        return false;
    }
    text_.PassOneOfStandIn();
    return true;
}

void Interpreter::HandleStyleWord(const Token& token)
{
    const bool isOptional = std::exchange(starPending_, false);
    if (!styles_.Sheet().Take(token.text, {token.hasValue, token.value}) && isOptional)
        Skip();
}

void Interpreter::HandleWord(const Token& token)
{
    FindLostText(token.text);
    if (document_.group.destination == Destination::Styles)
        return HandleStyleWord(token);
    // The two halves of a character beyond the first plane come as two words.
    if (token.text == "u" || token.text == "uc")
        text_.FlushBytes();
    else
        text_.Flush();
    const WordEntry* word = FindWord(ScopeOf(document_.group.destination), token.text);
    const bool isOptional = std::exchange(starPending_, false);
    if (word != nullptr)
        word->apply(*this, {token.hasValue, token.value});
    else if (isOptional)
        Skip();
}

/// Where a brace or a word was lost that parts text from a table of the document's head or from what a drawn
/// object looks like, the text begins with the first word that can only be its own.
void Interpreter::FindLostText(std::string_view word)
{
    const Destination destination = document_.group.destination;
    if (destination == Destination::Shape && BeginsText(word, false) && shapes_.BeginText())
        Enter(Destination::ShapeText);
    else if (IsHeaderTable(destination) && BeginsText(word, document_.group.opensDestination))
        LeaveTables();
}

void Interpreter::LeaveTables()
{
    isBroken_ = true;
    if (document_.group.destination == Destination::Fonts)
        fonts_.End();
    const auto leave = [](GroupState& group) {
        if (IsHeaderTable(group.destination)) {
            group.destination = Destination::Body;
            group.opensDestination = false;
        }
    };
    std::for_each(groups_.begin(), groups_.end(), leave);
    leave(document_.group);
}

void Interpreter::HandleSymbol(char symbol)
{
    switch (symbol) {
    case '*':
        starPending_ = true;
        break;
    case '\n':
        // Elsewhere a line end may stand between the two halves of a character.
        if (document_.IsBody())
            text_.Flush();
        paragraphs_.EndParagraph();
        break;
    case '~':
        text_.PutCharacter(u'\u00a0');
        break;
    case '-':
        text_.PutCharacter(u'\u00ad');
        break;
    case '_':
        text_.PutCharacter(u'\u2011');
        break;
    case '\\':
    case '{':
    case '}':
        HandleBytes({&symbol, 1});
        break;
    default:
        break;
    }
}

void Interpreter::HandleBytes(std::string_view bytes)
{
    const std::string_view meant = text_.WithoutStandIn(bytes);
    if (meant.empty())
        return;
    text_.FlushHalfCharacter();
    switch (document_.group.destination) {
    case Destination::Picture:
        pictures_.AppendHex(meant);
        break;
    case Destination::Colors:
        for (const char c : meant) {
            if (c == ';')
                document_.colors.EndEntry();
        }
        break;
    case Destination::Hidden:
    case Destination::Shape:
    case Destination::FormField:
    case Destination::Information:
    case Destination::Styles:
        break;
    default:
        text_.PutBytes(meant);
        break;
    }
}

void Interpreter::OpenGroup()
{
    text_.Flush();
    starPending_ = false;
    if (groups_.size() >= static_cast<std::size_t>(maxGroupDepth)) {
        ++overflowDepth_;
        return;
    }
    GroupState& group = document_.group;
    groups_.push_back(group);
    if (group.destination == Destination::Styles && group.opensDestination)
        styles_.Sheet().BeginEntry();
    group.opensDestination = false;
    group.opensField = false;
    group.opensShape = false;
    group.opensBox = false;
}

void Interpreter::CloseGroup()
{
    text_.Flush();
    starPending_ = false;
    if (overflowDepth_ > 0) {
        --overflowDepth_;
        return;
    }
    if (groups_.size() <= 1) {
        // The last paragraph may end with the document, and still has the looks of the group that ends here.
        ended_ = !GoesOn();
        return;
    }
    GroupState& group = document_.group;
    const GroupState ended = std::exchange(group, std::move(groups_.back()));
    groups_.pop_back();
    if (group.destination == Destination::Styles && group.opensDestination)
        styles_.Sheet().EndEntry();
    if (ended.opensDestination)
        EndDestination(ended);
    if (ended.opensBox)
        shapes_.EndText(ended);
    if (ended.opensShape)
        shapes_.End();
    if (ended.opensField) {
        const QString character = fields_.End();
        if (!character.isEmpty())
            text_.Put(character);
    }
}

/// Whether the document goes on after a brace too many.
bool Interpreter::GoesOn()
{
    constexpr int mostMistakes = 100;
    if (++mistakenEnds_ > mostMistakes || groups_.empty() || !ParagraphsFollow(tokens_))
        return false;
    isBroken_ = true;
    return true;
}

void Interpreter::Enter(Destination destination)
{
    document_.group.destination = destination;
    document_.group.opensDestination = true;
    document_.aside.clear();
}

void Interpreter::BeginInformation(const QString& name)
{
    informationName_ = name;
    Enter(Destination::InformationEntry);
}

void Interpreter::Skip()
{
    if (!tokens_.SkipGroup())
        return;
    CloseGroup();
}

void Interpreter::SkipNextGroup()
{
    // A group without an end is searched to the end of the file.
    if (unendingGroups_ >= maxUnendingGroups)
        return;
    const Tokenizer here = tokens_;
    const bool isGroup = tokens_.Next().kind == TokenKind::GroupOpen;
    if (isGroup && tokens_.SkipGroup())
        return;
    tokens_ = here;
    unendingGroups_ += isGroup ? 1 : 0;
}

} // namespace torvik::rtf
