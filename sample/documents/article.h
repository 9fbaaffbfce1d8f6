#pragma once

#include "sample/files/rich_document.h"

namespace torvik::sample {

/// How the articles of one kind look.
struct ArticleStyle {
    Typeface body = Typeface::Roman;
    int bodySize = 22; ///< half points
    Typeface heading = Typeface::Sans;
    QColor accent = QColor(128, 0, 0);
    bool justified = false;
};

/// Builds a document block by block. Texts may hold *bold*, _italic_, ~accent colour~, ^raised^ and
/// [a link|its address].
class Article {
public:
    Article(const QString& title, Dialect dialect, int written, const ArticleStyle& style);

    /// Both take the bookmark that links lead to.
    void Title(const QString& text, const QString& bookmark = {});
    void Heading(const QString& text, const QString& bookmark = {});
    void Text(const QString& text);
    void Quote(const QString& text);
    void Bullet(const QString& text);
    /// A paragraph that counts on from the numbered one before it, or begins with 1.
    void Numbered(const QString& text);
    /// A term and its explanation, indented from the second line on.
    void Hanging(const QString& text);
    void Aligned(const QString& text, Align align);
    /// A line whose parts stand at tab stops.
    void Tabbed(const QString& text, const std::vector<TabStop>& tabs);
    void Rule();
    /// The table with a little room above and below.
    void AddTable(const Table& table);
    void Add(Block block);

    /// The text in the style of the article, without space around it.
    Paragraph Plain(const QString& text) const;
    Cell CellOf(const QString& text, Align align = Align::Left) const;
    /// A cell of a table's heading: white on the accent colour.
    Cell HeadCell(const QString& text, Align align = Align::Left) const;
    /// A faint shade of the accent colour.
    QColor Tint() const;
    const ArticleStyle& Style() const { return style_; }

    RichDocument Take() { return std::move(document_); }

private:
    Paragraph Body(const QString& text) const;
    Paragraph Head(const QString& text, int halfPoints, const QString& bookmark) const;
    static Paragraph Indented(Paragraph paragraph, int left, int first, int after, Mark mark);
    void AddRoom();

    RichDocument document_;
    ArticleStyle style_;
};

/// The text in runs, its signs turned into looks.
std::vector<Run> RunsOf(const QString& text, const Look& base, const QColor& accent);

} // namespace torvik::sample
