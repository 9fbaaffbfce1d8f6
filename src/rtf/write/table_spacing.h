#pragma once

#include "rtf/model/content.h"

class QTextTable;

namespace torvik::rtf {

class Formats;

/// The space above and below tables. Qt gives none to the paragraphs next to a table, and no height to
/// empty ones: the table's own margins stand for both.
class TableSpacing {
public:
    explicit TableSpacing(const Formats& formats) : formats_(formats) {}

    /// A table was inserted at the position `before`, and asks for `space` twips above it.
    void TableCame(QTextTable& table, int before, int space = 0);
    /// What comes next stands at the top of a page: below the last table its space could begin another one.
    void PageBegan();
    /// Whether nothing came after the last table yet.
    bool IsBelowTable() const { return above_ != nullptr; }
    /// A paragraph was written, in the flow and not within a box.
    void ParagraphCame(const Paragraph& paragraph);
    /// Twips more below the last table.
    void AddBelowTable(int twips);

private:
    double HeightOf(const Paragraph& paragraph) const;
    void Widen(double pixels);

    const Formats& formats_;
    /// The table after which nothing came yet.
    QTextTable* above_ = nullptr;
    int spaceAfter_ = 0;
    bool lastWasEmpty_ = false;
};

} // namespace torvik::rtf
