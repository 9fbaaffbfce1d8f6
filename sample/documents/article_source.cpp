#include "sample/documents/article_source.h"

#include "sample/documents/drawings.h"
#include "sample/files/text_store.h"

#include <QRegularExpression>
#include <QStringList>

#include <stdexcept>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

class SourceReader {
public:
    explicit SourceReader(Article& article) : article_(article) {}

    void Read(const QString& source)
    {
        const QStringList lines = source.split(u'\n');
        for (const QString& line : lines)
            ReadLine(line);
        FinishText();
        FinishTable();
    }

private:
    static constexpr const char* lineKinds[] = {">< ", ">> ", "|= ", "|+ ", "== ", "= ", "- ",
                                                "+ ",  "> ",  "% ",  ": ",  "| ",  "@"};

    void ReadLine(const QString& line)
    {
        if (line.trimmed().isEmpty()) {
            FinishText();
            FinishTable();
            return;
        }
        for (const char* kind : lineKinds) {
            const QString sign = QString::fromLatin1(kind);
            if (line.startsWith(sign)) {
                const QString begun = line.mid(sign.size()).trimmed();
                if (sign == u"> " && kind_ == u">" && !SentenceEnds()) {
                    text_ += u' ' + begun;
                    return;
                }
                FinishText();
                kind_ = sign.trimmed();
                text_ = begun;
                const bool endsWithTheLine = kind_ == u"@" || kind_ == u":" || kind_[0] == u'|' ||
                                             kind_[0] == u'=' || kind_ == u">>" || kind_ == u"><";
                if (endsWithTheLine)
                    FinishText();
                return;
            }
        }
        if (!text_.isEmpty())
            text_ += u' ';
        text_ += line.trimmed();
    }

    bool SentenceEnds() const { return text_.isEmpty() || u".?!”"_s.contains(text_.back()); }

    void FinishText()
    {
        const QString text = QString(text_).replace(u"\\ "_s, u"\n"_s);
        const QString kind = kind_;
        text_.clear();
        kind_.clear();
        if (text.isEmpty())
            return;
        if (!kind.startsWith(u'|'))
            FinishTable();
        if (kind == u"=")
            article_.Title(WithoutBookmark(text), BookmarkOf(text));
        else if (kind == u"==")
            article_.Heading(WithoutBookmark(text), BookmarkOf(text));
        else if (kind == u"-")
            article_.Bullet(text);
        else if (kind == u"+")
            article_.Numbered(text);
        else if (kind == u">")
            article_.Quote(text);
        else if (kind == u"%")
            article_.Hanging(text);
        else if (kind == u"><")
            article_.Aligned(text, Align::Centre);
        else if (kind == u">>")
            article_.Aligned(text, Align::Right);
        else if (kind == u":")
            article_.Tabbed(PartsOf(text).join(u'\t'), tabs_);
        else if (kind.startsWith(u'|'))
            AddRow(PartsOf(text), kind);
        else if (kind == u"@")
            Obey(text.split(u' ', Qt::SkipEmptyParts));
        else
            article_.Text(text);
    }

    /// What stands in braces at the end of a heading.
    static QString BookmarkOf(const QString& heading)
    {
        const qsizetype brace = heading.endsWith(u'}') ? heading.lastIndexOf(u'{') : -1;
        return brace < 0 ? QString() : heading.mid(brace + 1).chopped(1);
    }

    static QString WithoutBookmark(const QString& heading)
    {
        return BookmarkOf(heading).isEmpty() ? heading : heading.left(heading.lastIndexOf(u'{')).trimmed();
    }

    static Drawing ScreenNamed(const QString& name, int width)
    {
        Drawing drawing{.png = StoredScreen(name)};
        const QSize pixels = QImage::fromData(drawing.png).size();
        if (pixels.isEmpty())
            throw std::runtime_error("A picture of a screen is damaged: " + name.toStdString());
        drawing.width = width;
        drawing.height = width * pixels.height() / pixels.width();
        return drawing;
    }

    static QStringList PartsOf(const QString& text)
    {
        QStringList parts = text.split(u'|');
        for (QString& part : parts)
            part = part.trimmed();
        return parts;
    }

    void AddRow(const QStringList& parts, const QString& kind)
    {
        const bool sum = kind == u"|+";
        Row row{.heading = kind == u"|="};
        for (qsizetype i = 0; i < parts.size(); ++i) {
            const Align align = aligns_.at(static_cast<std::size_t>(i));
            const QString part = sum ? u'*' + parts[i] + u'*' : parts[i];
            Cell cell = row.heading ? article_.HeadCell(part, align) : article_.CellOf(part, align);
            if (sum)
                cell.shade = QColor(217, 217, 217);
            else if (!row.heading && table_.rows.size() % 2 == 0 && table_.border != Border::None)
                cell.shade = article_.Tint();
            row.cells.push_back(cell);
        }
        // A row with fewer parts gives the rest of its width to the last one.
        row.cells.back().span += static_cast<int>(table_.widths.size() - row.cells.size());
        table_.rows.push_back(row);
    }

    void FinishTable()
    {
        if (table_.rows.empty())
            return;
        article_.AddTable(table_);
        table_.rows.clear();
    }

    static int Twips(const QString& word)
    {
        static const QRegularExpression digits(u"^\\d+"_s);
        return digits.match(word).captured().toInt();
    }

    void Obey(const QStringList& words)
    {
        if (words[0] == u"tabs") {
            tabs_.clear();
            for (const QString& word : words.mid(1)) {
                TabStop tab{Twips(word), TabStop::Kind::Left, word.contains(u'.')};
                if (word.contains(u'r'))
                    tab.kind = TabStop::Kind::Right;
                else if (word.contains(u'c'))
                    tab.kind = TabStop::Kind::Centre;
                else if (word.contains(u'd'))
                    tab.kind = TabStop::Kind::Decimal;
                tabs_.push_back(tab);
            }
        } else if (words[0] == u"table" && words.size() > 2) {
            table_ = Table();
            table_.border = words[1] == u"grid"    ? Border::Grid
                            : words[1] == u"rules" ? Border::Rules
                                                   : Border::None;
            aligns_.clear();
            for (const QString& word : words.mid(2)) {
                table_.widths.push_back(Twips(word));
                aligns_.push_back(word.endsWith(u'r')   ? Align::Right
                                  : word.endsWith(u'c') ? Align::Centre
                                                        : Align::Left);
            }
        } else if (words[0] == u"drawing" && words.size() == 4) {
            article_.Add(DrawingNamed(words[1], words[2], words[3].toInt()));
        } else if (words[0] == u"screen" && words.size() == 3) {
            article_.Add(ScreenNamed(words[1], words[2].toInt()));
        } else if (words[0] == u"rule") {
            article_.Rule();
        } else {
            throw std::runtime_error("An article uses an unknown word: @" + words[0].toStdString());
        }
    }

    Article& article_;
    QString kind_;
    QString text_;
    std::vector<TabStop> tabs_;
    Table table_;
    std::vector<Align> aligns_;
};

} // namespace

void AddSource(Article& article, const QString& source)
{
    SourceReader(article).Read(source);
}

RichDocument ArticleOfSource(const QString& source)
{
    const QString divider = u"\n---\n"_s;
    const qsizetype end = source.indexOf(divider);
    if (end < 0)
        throw std::runtime_error("An article has no head.");
    QString title;
    int written = 1998;
    Dialect dialect = Dialect::Styled;
    ArticleStyle style;
    const QStringList lines = source.left(end).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const QString key = line.section(u':', 0, 0).trimmed();
        const QString value = line.section(u':', 1).trimmed();
        if (key == u"title")
            title = value;
        else if (key == u"written")
            written = value.toInt();
        else if (key == u"dialect")
            dialect = value == u"bare" ? Dialect::Bare : value == u"late" ? Dialect::Late : Dialect::Styled;
        else if (key == u"accent")
            style.accent = QColor(u'#' + value);
        else if (key == u"body")
            style.body = value == u"sans"   ? Typeface::Sans
                         : value == u"mono" ? Typeface::Mono
                                            : Typeface::Roman;
        else if (key == u"heading")
            style.heading = value == u"roman"  ? Typeface::Roman
                            : value == u"mono" ? Typeface::Mono
                                               : Typeface::Sans;
        else if (key == u"size")
            style.bodySize = value.toInt();
        else if (key == u"justified")
            style.justified = value == u"yes";
        else
            throw std::runtime_error("An article's head has an unknown key: " + key.toStdString());
    }
    Article article(title, dialect, written, style);
    AddSource(article, source.mid(end + divider.size()));
    return article.Take();
}

} // namespace torvik::sample
