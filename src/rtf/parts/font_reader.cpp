#include "rtf/parts/font_reader.h"

namespace torvik::rtf {

void FontReader::BeginEntry(int number)
{
    EndEntry();
    entry_ = &document_.fonts.Define(number);
    number_ = number;
}

void FontReader::TakeCodePage()
{
    document_.group.page = &document_.fonts.PageOf(number_, document_.codePage);
}

void FontReader::BeginAlternative()
{
    // This is no destination of its own: the name that is being gathered goes on after the group.
    document_.group.destination = Destination::AlternativeFont;
}

void FontReader::EndEntry()
{
    if (entry_ != nullptr) {
        entry_->SetName(document_.aside);
        entry_->alternative = CleanFontName(entry_->alternative);
    }
    entry_ = nullptr;
    document_.aside.clear();
}

void FontReader::End()
{
    EndEntry();
    looks_.SetFont(document_.defaultFont);
}

} // namespace torvik::rtf
