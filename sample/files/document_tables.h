#pragma once

#include "sample/files/rich_document.h"

namespace torvik::sample {

/// The colours of a document in the order of its colour table. Number 0 is the reader's own colour.
class DocumentColours {
public:
    /// `standard` colours come first, whether used or not.
    DocumentColours(const RichDocument& document, const std::vector<QColor>& standard);

    /// Number of the colour in the table; 0 for an invalid one.
    int NumberOf(const QColor& colour) const;
    const std::vector<QColor>& All() const { return colours_; }

private:
    void Add(const QColor& colour);
    void AddOf(const Paragraph& paragraph);

    std::vector<QColor> colours_;
};

/// How many lists of numbered paragraphs a document has; each begins with the number 1.
int NumberedListsIn(const RichDocument& document);

} // namespace torvik::sample
