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
    QByteArray WordFor(QChar character, int byte) const override;
    void WriteRun(const Run& run);

    Look current_;
    Mark openList_ = Mark::None;
};

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

    QByteArray WordFor(QChar character, int byte) const override;
    QByteArray CellFlow(int) const override { return "\\cltxlrtb"; }
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
    int ListId(int list) const { return 1204 + 77 * list; }
};

/// Rich text as the word processor of the years after the turn of the century writes it: revision numbers,
/// Unicode beside the code page, rows defined before and after their cells, pictures in two forms.
class LateWriter : public StyledWriter {
public:
    explicit LateWriter(const RichDocument& document);

protected:
    void WriteHead() override;
    void EndRow(const Table& table, const Row& row, bool last) override;
    void WriteDrawing(const Drawing& drawing) override;
    QByteArray WordFor(QChar character, int byte) const override;
    QByteArray CellFlow(int width) const override;
    QByteArray RunWords() const override;
    QByteArray RowWords(const Table& table, const Row& row, bool last) const override;
    QByteArray CellShade(const Cell& cell) const override;

private:
    int revision_;
};

} // namespace torvik::sample
