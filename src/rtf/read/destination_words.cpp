#include "rtf/read/interpreter.h"
#include "rtf/read/word_table.h"

// Words that say what the rest of their group is for.

namespace torvik::rtf {

namespace {

void SkipGroup(Interpreter& interpreter, const Argument&)
{
    interpreter.Skip();
}

void Nothing(Interpreter&, const Argument&) {}

template <Destination destination>
void EnterGroup(Interpreter& interpreter, const Argument&)
{
    interpreter.Enter(destination);
}

void BeginFieldResult(Interpreter& interpreter, const Argument&)
{
    const bool isInside = interpreter.Document().group.destination == Destination::FieldInstruction;
    if (isInside && interpreter.Fields().IsInside())
        interpreter.Enter(Destination::FieldValue);
    else
        interpreter.Fields().BeginResult();
}

void BeginFormField(Interpreter& interpreter, const Argument&)
{
    if (interpreter.Document().group.destination != Destination::FieldInstruction)
        return interpreter.Skip();
    interpreter.Fields().Form() = FormField();
    interpreter.Enter(Destination::FormField);
}

void BeginNote(Interpreter& interpreter, const Argument&)
{
    if (!interpreter.Notes().MayBegin())
        return interpreter.Skip();
    interpreter.Enter(Destination::Note);
    interpreter.Notes().Begin();
}

void BeginPicture(Interpreter& interpreter, const Argument&)
{
    interpreter.Enter(Destination::Picture);
    interpreter.Pictures().Begin();
}

/// The same picture once more for older readers: wanted only when the better one could not be read.
void BeginPlainPicture(Interpreter& interpreter, const Argument&)
{
    if (interpreter.Pictures().ShapeWasShown())
        interpreter.Skip();
    interpreter.Pictures().ForgetShape();
}

void BeginMark(Interpreter& interpreter, const Argument&)
{
    if (!interpreter.Document().IsBody())
        return interpreter.Skip();
    interpreter.Enter(Destination::Mark);
    interpreter.Paragraphs().Mark().clear();
}

void BeginShapeGroup(Interpreter& interpreter, const Argument&)
{
    if (interpreter.Shapes().Begin())
        interpreter.Shapes().Current().isGroup = true;
}

/// Whether a shape stands within the instruction of a field, which has no room for it: then its text is part
/// of the instruction's.
bool IsShapeOfInstruction(Interpreter& interpreter)
{
    const Destination destination = interpreter.Document().group.destination;
    return destination == Destination::FieldInstruction || destination == Destination::FieldValue;
}

void BeginShapeInstructions(Interpreter& interpreter, const Argument&)
{
    if (IsShapeOfInstruction(interpreter))
        return;
    if (!interpreter.Shapes().MayHoldShape())
        return interpreter.Skip();
    interpreter.Shapes().Current().hasInstructions = true;
    interpreter.Enter(Destination::Shape);
}

/// The same object once more for older readers.
void BeginShapeResult(Interpreter& interpreter, const Argument&)
{
    if (interpreter.Shapes().Current().hasInstructions || !interpreter.Document().IsBody())
        interpreter.Skip();
}

void BeginShapeText(Interpreter& interpreter, const Argument&)
{
    if (IsShapeOfInstruction(interpreter))
        return interpreter.Fields().BeginLine();
    if (interpreter.Shapes().BeginText())
        interpreter.Enter(Destination::ShapeText);
}

/// An object of the older generation, or several of them.
void BeginDrawing(Interpreter& interpreter, const Argument&)
{
    if (interpreter.Shapes().Begin())
        interpreter.Enter(Destination::Shape);
}

constexpr WordEntry destinationEntries[] = {
    {"fonttbl", EnterGroup<Destination::Fonts>},
    {"colortbl", EnterGroup<Destination::Colors>},
    {"stylesheet", EnterGroup<Destination::Styles>},
    {"listtable", EnterGroup<Destination::Lists>},
    {"listoverridetable", EnterGroup<Destination::ListOverrides>},
    {"fldinst", EnterGroup<Destination::FieldInstruction>},
    {"bkmkstart", EnterGroup<Destination::Bookmark>},
    {"field", [](Interpreter& r, const Argument&) { r.Fields().Begin(); }},
    {"fldrslt", BeginFieldResult},
    {"formfield", BeginFormField},
    {"footnote", BeginNote},
    {"pict", BeginPicture},
    {"shppict", [](Interpreter& r, const Argument&) { r.Pictures().BeginShape(); }},
    {"nonshppict", BeginPlainPicture},
    {"pntext", BeginMark},
    {"listtext", BeginMark},
    {"pn", EnterGroup<Destination::Numbering>},
    // An object is shown by its result.
    {"object", EnterGroup<Destination::Hidden>},
    {"result", EnterGroup<Destination::Body>},
    {"shp", [](Interpreter& r, const Argument&) { r.Shapes().Begin(); }},
    {"shpgrp", BeginShapeGroup},
    {"shpinst", BeginShapeInstructions},
    {"shprslt", BeginShapeResult},
    {"shptxt", BeginShapeText},
    {"dptxbxtext", BeginShapeText},
    {"do", BeginDrawing},
    // Of two forms of a text the second, in Unicode, is the true one.
    {"upr", [](Interpreter& r, const Argument&) { r.SkipNextGroup(); }},
    {"ud", Nothing},
    {"nesttableprops",
     [](Interpreter& r, const Argument&) { r.Document().group.isNestedTableProperties = true; }},
    {"nonesttables", SkipGroup},
    {"info", EnterGroup<Destination::Information>},
    {"header", SkipGroup},
    {"headerl", SkipGroup},
    {"headerr", SkipGroup},
    {"headerf", SkipGroup},
    {"footer", SkipGroup},
    {"footerl", SkipGroup},
    {"footerr", SkipGroup},
    {"footerf", SkipGroup},
    {"ftnsep", SkipGroup},
    {"ftnsepc", SkipGroup},
    {"ftncn", SkipGroup},
    {"aftnsep", SkipGroup},
    {"aftnsepc", SkipGroup},
    {"aftncn", SkipGroup},
    {"annotation", SkipGroup},
    {"atnid", SkipGroup},
    {"atnauthor", SkipGroup},
    {"bkmkend", EnterGroup<Destination::BookmarkEnd>},
    {"sn", SkipGroup},
    {"sv", SkipGroup},
    {"objdata", SkipGroup},
    {"objclass", SkipGroup},
    {"objname", SkipGroup},
    {"revtbl", SkipGroup},
    {"filetbl", SkipGroup},
    {"pntxta", SkipGroup},
    {"pntxtb", SkipGroup},
    {"pnseclvl", SkipGroup},
    {"xe", SkipGroup},
    {"tc", SkipGroup},
    {"tcn", SkipGroup},
    {"private", SkipGroup},
    {"template", SkipGroup},
    {"generator", SkipGroup},
    {"themedata", SkipGroup},
    {"datastore", SkipGroup},
    {"background", SkipGroup},
};

} // namespace

std::span<const WordEntry> DestinationWords()
{
    return destinationEntries;
}

} // namespace torvik::rtf
