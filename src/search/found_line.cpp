#include "search/found_line.h"

#include <algorithm>

namespace torvik {

namespace {

constexpr QChar ellipsis(u'…');

bool IsBlank(QChar character)
{
    // An embedded picture stands in the text as a character of its own.
    return character.isSpace() || character == QChar::ObjectReplacementCharacter ||
           character.category() == QChar::Other_Control;
}

/// `from` or the place before it where a word begins, but not much before it.
qsizetype BeginOfWord(const QString& text, qsizetype from)
{
    constexpr qsizetype reach = 16;
    for (qsizetype at = from; at > 0 && from - at < reach; --at) {
        if (IsBlank(text[at - 1]))
            return at;
    }
    return from > 0 && text[from].isLowSurrogate() ? from - 1 : from;
}

/// A piece of the text on one line: every run of blanks and line ends becomes one blank.
QString OneLine(const QString& text, qsizetype begin, qsizetype length)
{
    QString line;
    qsizetype at = begin;
    for (; at < text.size() && line.size() < length; ++at) {
        if (!IsBlank(text[at]))
            line.append(text[at]);
        else if (!line.isEmpty() && !line.endsWith(u' '))
            line.append(u' ');
    }
    if (at < text.size()) {
        const qsizetype blank = line.lastIndexOf(u' ');
        line.truncate(blank > line.size() / 2 ? blank
                                              : line.size() - (line.back().isHighSurrogate() ? 1 : 0));
        line.append(ellipsis);
    }
    return line.trimmed();
}

} // namespace

FoundLine LineAroundFirstHit(const QString& text, const QList<SearchTerm>& terms, qsizetype length)
{
    const QList<TextRange> first = PlacesOf(terms, text, 1);
    const qsizetype hit = first.isEmpty() ? 0 : first.first().begin;
    const qsizetype before = length / 4; // the words in front of it tell less than those behind it
    const qsizetype begin = hit <= before ? 0 : BeginOfWord(text, hit - before);

    FoundLine line;
    line.text = OneLine(text, begin, length);
    if (begin > 0)
        line.text.prepend(ellipsis);
    if (!first.isEmpty())
        line.found = PlacesOf(terms, line.text, length);
    return line;
}

} // namespace torvik
