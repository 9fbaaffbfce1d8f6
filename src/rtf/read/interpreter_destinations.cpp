#include "rtf/bounds/limits.h"
#include "rtf/read/interpreter.h"

// What happens where a destination ends, and how fields, notes and pictures come into the text.

namespace torvik::rtf {

void Interpreter::EndDestination(const GroupState& ended)
{
    switch (ended.destination) {
    case Destination::Fonts:
        FinishFont();
        SetFont(defaultFont_);
        break;
    case Destination::LevelText:
        if (ListLevel* level = lists_.CurrentLevel())
            level->text = aside_;
        break;
    case Destination::FieldInstruction:
        if (!fields_.empty())
            ReadField();
        break;
    case Destination::Picture:
        EndPicture(ended);
        break;
    case Destination::Bookmark:
        bookmark_ = formats_.AddBookmark(aside_.trimmed());
        break;
    case Destination::NumberingBefore:
    case Destination::NumberingAfter:
    case Destination::Numbering:
        // The numbering stays with the paragraph when its group is closed.
        state_.paragraph.numbering = ended.paragraph.numbering;
        break;
    case Destination::Note:
        EndNote(ended);
        break;
    default:
        break;
    }
}

void Interpreter::BeginFont(int number)
{
    FinishFont();
    currentFont_ = &fonts_.Define(number);
    currentFontNumber_ = number;
}

void Interpreter::FontChanged()
{
    state_.page = &fonts_.PageOf(currentFontNumber_, documentPage_);
}

void Interpreter::FinishFont()
{
    if (currentFont_ != nullptr) {
        currentFont_->family = CleanFontName(aside_);
        currentFont_->alternative = CleanFontName(currentFont_->alternative);
    }
    currentFont_ = nullptr;
    aside_.clear();
}

void Interpreter::EnterAlternativeFont()
{
    // The name that is being gathered goes on after the group.
    state_.destination = Destination::AlternativeFont;
}

void Interpreter::BeginField()
{
    if (!IsBody() || state_.opensField)
        return;
    state_.opensField = true;
    fields_.emplace_back().start = flow_.Draft().text.size();
}

void Interpreter::ReadField()
{
    Field& field = fields_.back();
    field.read = ReadInstruction(field.instruction);
    field.link = formats_.AddLink(field.read.target);
}

void Interpreter::BeginFieldResult()
{
    if (fields_.empty() || !IsBody())
        return;
    if (fields_.back().link != 0)
        state_.character.link = fields_.back().link;
}

void Interpreter::EndField()
{
    if (fields_.empty())
        return;
    const Field field = std::move(fields_.back());
    fields_.pop_back();
    const bool hasResult = flow_.Draft().text.size() != field.start;
    if (field.read.symbol != 0 && !hasResult && IsBody())
        PutSymbol(field.read);
}

void Interpreter::BeginNote()
{
    if (!IsBody() || flow_.InNote() || state_.destination == Destination::Note) {
        Skip();
        return;
    }
    Enter(Destination::Note);
    flow_.BeginNote();
}

void Interpreter::EndNote(const GroupState& ended)
{
    if (!flow_.Draft().IsEmpty()) {
        const GroupState around = std::move(state_);
        state_ = ended;
        EndParagraph();
        state_ = around;
    }
    flow_.EndNote();
}

void Interpreter::PutNoteReference()
{
    if (!IsBody())
        return;
    if (!flow_.InNote())
        ++notes_;
    PutText(QString::number(notes_));
}

void Interpreter::BeginPicture()
{
    Enter(Destination::Picture);
    picture_ = PictureSource();
}

void Interpreter::EndPicture(const GroupState& ended)
{
    PictureSource source = std::move(picture_);
    picture_ = PictureSource();
    const bool isShown = (IsBody() || state_.destination == Destination::Hidden) && !state_.character.hidden;
    if (!isShown)
        return;
    const ShownPicture shown = ShowPicture(source, budget_);
    if (shown.image.isNull()) {
        ++result_.lostPictures;
        return;
    }
    if (ended.isShapePicture)
        shapePictureShown_ = true;
    flow_.Draft().AppendPicture(pictures_.Add(shown.image, shown.size), CurrentFormat());
    ++result_.pictures;
}

void Interpreter::BeginShapePicture()
{
    state_.isShapePicture = true;
    shapePictureShown_ = false;
}

void Interpreter::BeginPlainPicture()
{
    // The same picture once more for older readers: wanted only when the better one could not be read.
    if (shapePictureShown_)
        Skip();
    shapePictureShown_ = false;
}

} // namespace torvik::rtf
