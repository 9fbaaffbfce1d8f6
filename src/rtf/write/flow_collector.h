#pragma once

#include "rtf/model/content.h"
#include "rtf/write/flow_writer.h"

#include <array>

namespace torvik::rtf {

/// Gathers paragraphs as they end: those of the body are written at once, those of cells when
/// their table ends, those of footnotes below everything else.
class FlowCollector {
public:
    FlowCollector(WritingContext& context, FlowWriter& body) : context_(context), body_(body) {}

    /// The paragraph that text is added to now.
    Paragraph& Draft() { return place_.draft; }
    /// Ends the draft as a paragraph that stands `depth` tables deep. Formats and mark are already set in it.
    void EndParagraph(int depth);
    void EndCell(int depth);
    void EndRow(int depth);
    /// Lets a row that comes next begin a table of its own. Does nothing within a row.
    void EndTable();
    /// The row definition that table words change; `depth` from 1.
    RowStyle& RowAt(int depth);

    void BeginNote();
    void EndNote();
    bool InNote() const { return inNote_; }
    /// What comes until EndBox is the text of a box: paragraphs and tables of their own.
    void BeginBox();
    /// Ends the innermost box and returns what is in it.
    std::vector<Block> EndBox();
    int BoxDepth() const { return static_cast<int>(around_.size()); }
    /// A box or a picture that stands where the draft is. It comes before the draft while that is empty, else
    /// after it.
    void AddAnchored(Block block, bool after);
    /// Whether a box or a picture waits for the draft to end.
    bool HasAnchored() const { return !place_.anchored.empty() || !place_.anchoredAfter.empty(); }

    /// Writes what is still waiting: open tables, then boxes and pictures, the first of which begins a page
    /// where that is told, then the footnotes.
    void Finish(bool beginsPage);

private:
    struct Level {
        Table table;
        Row row;
        std::vector<Block> cell;
        int cells = 0;
    };
    /// The body, or the inside of a box.
    struct Place {
        Paragraph draft;
        std::vector<Level> levels;
        std::array<RowStyle, 8> rowStyles;
        std::vector<Block> blocks;
        std::vector<Block> anchored;
        std::vector<Block> anchoredAfter;
    };
    void SetDepth(int depth);
    /// What stands before the draft begins the page in its place.
    void PassBreakOn();
    void Deliver(std::vector<Block> anchored);
    void CloseLevel();
    void CloseRow(Level& level, int depth);
    /// Puts a block where the place gathers its blocks, or into its open cell.
    void Keep(Block block);
    void Deliver(Block block);
    static int Clamped(int depth);

    WritingContext& context_;
    FlowWriter& body_;
    Place place_;
    std::vector<Place> around_;
    std::vector<Paragraph> notes_;
    Paragraph interrupted_;
    bool inNote_ = false;
};

} // namespace torvik::rtf
