#pragma once

#include "sample/files/dialect_writer.h"

namespace torvik::sample {

/// Rich text as a large word processor of the late nineties writes it: a style sheet, list tables, runs in
/// groups, rows that are defined once and characters of the Western code page. The later dialect builds on
/// it.
class StyledWriter : public DialectWriter {
public:
    explicit StyledWriter(const RichDocument& document);

protected:
    void WriteHead() override;
    void WriteParagraph(const Paragraph& paragraph, Stand stand) override;
    void BeginRow(const Table& table, const Row& row, bool last) override;
    void EndRow(const Table& table, const Row& row, bool last) override;
    void WriteDrawing(const Drawing& drawing) override;

    virtual QByteArray Spelled(const QString& text) const;
    /// Words that open each run beside its look.
    virtual QByteArray RunWords() const { return {}; }
    virtual QByteArray HeadEnd() const;
    virtual QByteArray ListTable() const;
    virtual QByteArray Fonts() const;
    virtual QByteArray Dates() const;
    QByteArray StyleSheet() const;
    /// Everything of the look that is not that of plain text.
    QByteArray LookWords(const Look& look) const;
    QByteArray WrittenRun(const Run& run) const;
    /// The definition of a row, from "\trowd" to the last cell's edge.
    virtual QByteArray RowWords(const Table& table, const Row& row, bool last) const;
    /// Shade and edge of one cell.
    virtual QByteArray CellShade(const Cell& cell) const;
    int ListId(int list) const { return 1204 + 77 * list; }
};

} // namespace torvik::sample
