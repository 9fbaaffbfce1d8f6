#include "rtf/parts/document_state.h"

#include <QTextDocument>

#include <limits>

namespace torvik::rtf {

namespace {

constexpr int noFont = std::numeric_limits<int>::min();

} // namespace

DocumentState::DocumentState(qint64 fileBytes, QTextDocument& into)
    : formats(fonts, colors), budget(fileBytes), document(into),
      cursor(&into), context{formats, pictures, budget, page}, body(context, cursor, FlowWriter::Room::Body),
      flow(context, body)
{
    group.page = &CodePage::Of(codePage);
    // The plain format is made before the table of fonts is read, so it names no font.
    CharacterState plain;
    plain.font = noFont;
    formats.Character(plain);
    formats.Paragraph(group.paragraph);
}

bool DocumentState::IsBody() const
{
    return group.destination == Destination::Body || group.destination == Destination::Note ||
           group.destination == Destination::ShapeText;
}

} // namespace torvik::rtf
