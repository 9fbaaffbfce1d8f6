#pragma once

#include "sample/files/styled_writer.h"

namespace torvik::sample {

/// Rich text as the word processor of the years after the turn of the century writes it: revision numbers,
/// Unicode beside the code page, rows defined before and after their cells, pictures in two forms.
class LateWriter : public StyledWriter {
public:
    explicit LateWriter(const RichDocument& document);

protected:
    void WriteHead() override;
    void EndRow(const Table& table, const Row& row, bool last) override;
    void WriteDrawing(const Drawing& drawing) override;
    QByteArray Spelled(const QString& text) const override;
    QByteArray RunWords() const override;
    QByteArray RowWords(const Table& table, const Row& row, bool last) const override;
    QByteArray CellShade(const Cell& cell) const override;

private:
    int revision_;
};

} // namespace torvik::sample
