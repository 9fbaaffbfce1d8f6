#include "sample/documents/article.h"

namespace torvik::sample {

std::vector<Run> RunsOf(const QString& text, const Look& base, const QColor& accent)
{
    std::vector<Run> runs;
    Run run{{}, base, {}};
    const auto finish = [&] {
        if (!run.text.isEmpty())
            runs.push_back(run);
        run.text.clear();
        run.link.clear();
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar ch = text[i];
        const qsizetype bar = ch == u'[' ? text.indexOf(u'|', i) : -1;
        const qsizetype end = bar < 0 ? -1 : text.indexOf(u']', bar);
        if (end >= 0) {
            finish();
            run.text = text.mid(i + 1, bar - i - 1);
            run.link = text.mid(bar + 1, end - bar - 1);
            finish();
            i = end;
        } else if (ch == u'*') {
            finish();
            run.look.bold = !run.look.bold;
        } else if (ch == u'_') {
            finish();
            run.look.italic = !run.look.italic;
        } else if (ch == u'~') {
            finish();
            run.look.colour = run.look.colour == accent ? base.colour : accent;
        } else if (ch == u'^') {
            finish();
            run.look.raise = 1 - run.look.raise;
        } else {
            run.text += ch;
        }
    }
    finish();
    if (runs.empty())
        runs.push_back(run);
    return runs;
}

Article::Article(const QString& title, Dialect dialect, int written, const ArticleStyle& style)
    : style_(style)
{
    document_.title = title;
    document_.dialect = dialect;
    document_.written = written;
}

Paragraph Article::Plain(const QString& text) const
{
    return {.runs = RunsOf(text, {.face = style_.body, .halfPoints = style_.bodySize}, style_.accent),
            .after = 0};
}

Paragraph Article::Body(const QString& text) const
{
    Paragraph paragraph = Plain(text);
    paragraph.after = 120;
    if (style_.justified)
        paragraph.align = Align::Justified;
    return paragraph;
}

Paragraph Article::Indented(Paragraph paragraph, int left, int first, int after, Mark mark)
{
    paragraph.left = left;
    paragraph.first = first;
    paragraph.after = after;
    paragraph.mark = mark;
    if (mark != Mark::None)
        paragraph.tabs = {{left}};
    return paragraph;
}

Paragraph Article::Head(const QString& text, int halfPoints, const QString& bookmark) const
{
    const Look look{.face = style_.heading, .halfPoints = halfPoints, .bold = true, .colour = style_.accent};
    return {.runs = RunsOf(text, look, style_.accent), .bookmark = bookmark};
}

void Article::Title(const QString& text, const QString& bookmark)
{
    Paragraph paragraph = Head(text, 36, bookmark);
    paragraph.heading = 1;
    paragraph.after = 160;
    paragraph.ruleBelow = true;
    if (!document_.blocks.empty()) { // the rule makes it a table, which paragraphs' spaces do not reach
        AddRoom();
        AddRoom();
    }
    Add(paragraph);
    AddRoom();
}

void Article::Heading(const QString& text, const QString& bookmark)
{
    Paragraph paragraph = Head(text, 24, bookmark);
    paragraph.heading = 2;
    paragraph.before = 200;
    paragraph.after = 80;
    Add(paragraph);
}

void Article::Text(const QString& text)
{
    // Lines with tabs stand close together; the text after them keeps its distance.
    auto* before = document_.blocks.empty() ? nullptr : std::get_if<Paragraph>(&document_.blocks.back());
    if (before && before->mark == Mark::None && !before->tabs.empty())
        before->after = 120;
    Add(Body(text));
}

void Article::Quote(const QString& text)
{
    Paragraph paragraph = Body(text);
    for (Run& run : paragraph.runs)
        run.look.italic = !run.look.italic;
    paragraph.left = 500;
    paragraph.right = 500;
    Add(paragraph);
}

void Article::Bullet(const QString& text)
{
    Add(Indented(Plain(text), 500, -300, 50, Mark::Bullet));
}

void Article::Numbered(const QString& text)
{
    Paragraph paragraph = Indented(Plain(text), 600, -400, 80, Mark::Number);
    const auto* before =
        document_.blocks.empty() ? nullptr : std::get_if<Paragraph>(&document_.blocks.back());
    paragraph.number = before && before->mark == Mark::Number ? before->number + 1 : 1;
    Add(paragraph);
}

void Article::Hanging(const QString& text)
{
    Add(Indented(Body(text), 480, -480, 90, Mark::None));
}

void Article::Aligned(const QString& text, Align align)
{
    Paragraph paragraph = Body(text);
    paragraph.align = align;
    Add(paragraph);
}

void Article::Tabbed(const QString& text, const std::vector<TabStop>& tabs)
{
    Paragraph paragraph = Plain(text);
    paragraph.tabs = tabs;
    paragraph.after = 40;
    // Text that runs over continues under the last part, unless that one stands at the right.
    if (!tabs.empty() && tabs.back().kind == TabStop::Kind::Left) {
        paragraph.left = tabs.back().at;
        paragraph.first = -tabs.back().at;
    }
    Add(paragraph);
}

void Article::Rule()
{
    Paragraph paragraph = Plain({});
    paragraph.ruleBelow = true;
    paragraph.after = 120;
    Add(paragraph);
}

void Article::AddTable(const Table& table)
{
    // The spaces of paragraphs do not reach a table, so a short empty line stands for them.
    const auto* before =
        document_.blocks.empty() ? nullptr : std::get_if<Paragraph>(&document_.blocks.back());
    if (!before || before->heading == 0)
        AddRoom();
    Add(table);
    AddRoom();
}

void Article::AddRoom()
{
    Paragraph room = Plain(QString(QChar(0x00A0)));
    room.runs.front().look.halfPoints = 10;
    Add(room);
}

void Article::Add(Block block)
{
    document_.blocks.push_back(std::move(block));
}

Cell Article::CellOf(const QString& text, Align align) const
{
    Paragraph paragraph = Plain(text);
    paragraph.align = align;
    paragraph.before = 30;
    paragraph.after = 30;
    for (Run& run : paragraph.runs)
        run.look.halfPoints -= 2;
    return {{paragraph}, {}, 1};
}

Cell Article::HeadCell(const QString& text, Align align) const
{
    Cell cell = CellOf(text, align);
    for (Run& run : cell.paragraphs.front().runs) {
        run.look.bold = true;
        run.look.face = style_.heading;
        run.look.halfPoints -= 2;
        run.look.colour = Qt::white;
    }
    cell.shade = style_.accent;
    return cell;
}

QColor Article::Tint() const
{
    const auto mixed = [](int channel) { return (channel + 9 * 255) / 10; };
    return {mixed(style_.accent.red()), mixed(style_.accent.green()), mixed(style_.accent.blue())};
}

} // namespace torvik::sample
