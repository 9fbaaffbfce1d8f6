#pragma once

#include "rtf/parts/document_state.h"
#include "rtf/parts/paragraph_reader.h"

namespace torvik::rtf {

/// Reads footnotes, which are shown below everything else.
class NoteReader {
public:
    NoteReader(DocumentState& document, ParagraphReader& paragraphs)
        : document_(document), paragraphs_(paragraphs)
    {}

    /// Notes belong to the text, and never to each other.
    bool MayBegin() const;
    /// A note to which nothing in the text points gets a number there and in front of its own text.
    void Begin();
    /// Ends the note whose group had the state `ended`.
    void End(const GroupState& ended);
    /// Ends the note in which the document ended, if there is one.
    void EndUnfinished();
    /// The number that stands for a note: the next one in the text, the note's own within it. Empty where no
    /// text is shown.
    QString Reference();

private:
    bool HasMark() const;
    int RaisedFormat();
    void EndText();
    void CloseNote();

    DocumentState& document_;
    ParagraphReader& paragraphs_;
    int count_ = 0;
    /// A number was put since the last note, which is that of the next one.
    bool hasReference_ = false;
    /// The note that is being read begins with its number already.
    bool isNumbered_ = false;
    /// The length of that, and how many paragraphs had ended before.
    qsizetype ownLength_ = 0;
    int ownParagraphs_ = 0;
};

} // namespace torvik::rtf
