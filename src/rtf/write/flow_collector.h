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
    Paragraph& Draft() { return draft_; }
    /// Ends the draft as a paragraph that stands `depth` tables deep. Formats and mark are already set in it.
    void EndParagraph(int depth);
    void EndCell(int depth);
    void EndRow(int depth);
    /// The row definition that table words change; `depth` from 1.
    RowStyle& RowAt(int depth);

    void BeginNote();
    void EndNote();
    bool InNote() const { return inNote_; }
    /// Writes what is still waiting: open tables, then the footnotes.
    void Finish();

private:
    struct Level {
        Table table;
        Row row;
        std::vector<Block> cell;
        int cells = 0;
    };
    void SetDepth(int depth);
    void CloseLevel();
    void CloseRow(Level& level, int depth);
    void Deliver(Block block);
    static int Clamped(int depth);

    WritingContext& context_;
    FlowWriter& body_;
    Paragraph draft_;
    std::vector<Level> levels_;
    std::array<RowStyle, 8> rowStyles_;
    std::vector<Paragraph> notes_;
    Paragraph interrupted_;
    bool inNote_ = false;
};

} // namespace torvik::rtf
