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
    Look look;
    look.face = style_.body;
    look.halfPoints = style_.bodySize;
    Paragraph paragraph;
    paragraph.runs = RunsOf(text, look, style_.accent);
    paragraph.after = 0;
    return paragraph;
}

Paragraph Article::Body(const QString& text) const
{
    Paragraph paragraph = Plain(text);
    paragraph.after = 120;
    if (style_.justified)
        paragraph.align = Align::Justified;
    return paragraph;
}

void Article::Title(const QString& text, const QString& bookmark)
{
    Look look;
    look.face = style_.heading;
    look.halfPoints = 36;
    look.bold = true;
    look.colour = style_.accent;
    Paragraph paragraph;
    paragraph.runs = RunsOf(text, look, style_.accent);
    paragraph.heading = 1;
    paragraph.bookmark = bookmark;
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
    Look look;
    look.face = style_.heading;
    look.halfPoints = 24;
    look.bold = true;
    look.colour = style_.accent;
    Paragraph paragraph;
    paragraph.runs = RunsOf(text, look, style_.accent);
    paragraph.heading = 2;
    paragraph.bookmark = bookmark;
    paragraph.before = 200;
    paragraph.after = 80;
    Add(paragraph);
}

void Article::Text(const QString& text)
{
    // Lines with tabs stand close together; the text behind them keeps its distance.
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
    Paragraph paragraph = Plain(text);
    paragraph.mark = Mark::Bullet;
    paragraph.left = 500;
    paragraph.first = -300;
    paragraph.after = 50;
    paragraph.tabs = {{500, TabStop::Kind::Left, false}};
    Add(paragraph);
}

void Article::Numbered(const QString& text)
{
    Paragraph paragraph = Plain(text);
    paragraph.mark = Mark::Number;
    paragraph.left = 600;
    paragraph.first = -400;
    paragraph.after = 80;
    paragraph.tabs = {{600, TabStop::Kind::Left, false}};
    paragraph.number = 1;
    if (!document_.blocks.empty()) {
        const auto* before = std::get_if<Paragraph>(&document_.blocks.back());
        if (before && before->mark == Mark::Number)
            paragraph.number = before->number + 1;
    }
    Add(paragraph);
}

void Article::Hanging(const QString& text)
{
    Paragraph paragraph = Body(text);
    paragraph.left = 480;
    paragraph.first = -480;
    paragraph.after = 90;
    Add(paragraph);
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
