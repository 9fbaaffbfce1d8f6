#include "sample/files/document_tables.h"

#include <algorithm>

namespace torvik::sample {

DocumentColours::DocumentColours(const RichDocument& document, const std::vector<QColor>& standard)
    : colours_(standard)
{
    for (const Block& block : document.blocks) {
        if (const auto* paragraph = std::get_if<Paragraph>(&block)) {
            AddOf(*paragraph);
        } else if (const auto* table = std::get_if<Table>(&block)) {
            for (const Row& row : table->rows) {
                for (const Cell& cell : row.cells) {
                    Add(cell.shade);
                    for (const Paragraph& inside : cell.paragraphs)
                        AddOf(inside);
                }
            }
        }
    }
}

int DocumentColours::NumberOf(const QColor& colour) const
{
    const auto found = std::find(colours_.begin(), colours_.end(), colour);
    return !colour.isValid() || found == colours_.end() ? 0 : static_cast<int>(found - colours_.begin()) + 1;
}

void DocumentColours::Add(const QColor& colour)
{
    if (colour.isValid() && NumberOf(colour) == 0)
        colours_.push_back(colour);
}

void DocumentColours::AddOf(const Paragraph& paragraph)
{
    Add(paragraph.shade);
    for (const Run& run : paragraph.runs)
        Add(run.look.colour);
}

int NumberedListsIn(const RichDocument& document)
{
    int lists = 0;
    for (const Block& block : document.blocks) {
        const auto* paragraph = std::get_if<Paragraph>(&block);
        if (paragraph && paragraph->mark == Mark::Number && paragraph->number == 1)
            ++lists;
    }
    return lists;
}

} // namespace torvik::sample
