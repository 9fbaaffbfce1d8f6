#pragma once

#include "sample/files/dialect_writer.h"

namespace torvik::sample {

/// Rich text as a small desktop editor of the middle nineties writes it: no styles, formats switched on and
/// off in the running text, list marks repeated as text, pictures as bitmaps.
class BareWriter : public DialectWriter {
public:
    explicit BareWriter(const RichDocument& document);

private:
    void WriteHead() override;
    void WriteParagraph(const Paragraph& paragraph, Stand stand) override;
    void BeginRow(const Table& table, const Row& row, bool last) override;
    void EndRow(const Table& table, const Row& row, bool last) override;
    void WriteDrawing(const Drawing& drawing) override;
    void WriteTail() override;
    void WriteRun(const Run& run);

    Look current_;
    Mark openList_ = Mark::None;
};

} // namespace torvik::sample
