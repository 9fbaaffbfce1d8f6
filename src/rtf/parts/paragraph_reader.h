#pragma once

#include "rtf/model/list_counter.h"
#include "rtf/parts/character_looks.h"
#include "rtf/parts/document_state.h"

namespace torvik::rtf {

/// Ends paragraphs, cells, rows and pages.
class ParagraphReader {
public:
    ParagraphReader(DocumentState& document, CharacterLooks& looks)
        : document_(document), looks_(looks), counter_(document.lists)
    {}

    void EndParagraph();
    /// `nested` for a table in a cell of another one.
    void EndCell(bool nested);
    void EndRow(bool nested);
    /// Also ends a last paragraph that has text and no end of its own.
    void EndDocument();
    void BreakPage();
    void CancelBreak();
    /// The mark of a list's paragraph as it is written, which is read before the paragraph.
    QString& Mark() { return mark_; }
    /// The distance in twips of the tabs that no paragraph names.
    void SetDefaultTab(int twips);

private:
    void FinishDraft();
    bool IsInitialLetter() const;
    bool MayBeginPage() const;
    int NestedDepth() const;

    DocumentState& document_;
    CharacterLooks& looks_;
    ListCounter counter_;
    QString mark_;
    bool breakPending_ = false;
};

} // namespace torvik::rtf
