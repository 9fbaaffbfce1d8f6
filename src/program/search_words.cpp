#include "program/search_words.h"

#include <algorithm>
#include <deque>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr qsizetype mostWords = 64;
constexpr char32_t firstHangulSyllable = 0xAC00;
constexpr char32_t lastHangulSyllable = 0xD7A3;

enum class Part {
    Word,    ///< a letter or digit
    Silent,  ///< inside a word it counts for nothing: an accent of its own, a soft hyphen
    Between, ///< parts two words
};

Part PartOf(char32_t character)
{
    if (character < 0x80) {
        const bool isWord = (character >= U'a' && character <= U'z') ||
                            (character >= U'A' && character <= U'Z') ||
                            (character >= U'0' && character <= U'9');
        return isWord ? Part::Word : Part::Between;
    }
    switch (QChar::category(character)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
        return Part::Silent;
    case QChar::Other_PrivateUse:
    case QChar::Mark_SpacingCombining:
        return Part::Word;
    default:
        return QChar::isLetterOrNumber(character) ? Part::Word : Part::Between;
    }
}

/// The letter without its accents, small.
char32_t Folded(char32_t character)
{
    if (character < 0x80)
        return character >= U'A' && character <= U'Z' ? character + (U'a' - U'A') : character;
    // A syllable comes apart into letters, not into a letter and accents.
    if (character >= firstHangulSyllable && character <= lastHangulSyllable)
        return character;
    while (QChar::decompositionTag(character) == QChar::Canonical) {
        const QList<uint> letters = QChar::decomposition(character).toUcs4();
        if (letters.isEmpty() || letters.first() == character)
            break;
        character = letters.first();
    }
    return QChar::toCaseFolded(character);
}

void Append(QString& text, char32_t character)
{
    if (character < 0x10000)
        text.append(QChar(static_cast<char16_t>(character)));
    else
        text.append(QString::fromUcs4(&character, 1));
}

QStringList WordsOf(const QString& text)
{
    QStringList words;
    EachWord(text, [&words](const QString& word, const TextRange& /*range*/) {
        words.append(word);
        return true;
    });
    return words;
}

/// Takes what was typed apart into its terms.
class Typed {
public:
    explicit Typed(const QString& text) : text_(text) {}

    bool SkipBlanks()
    {
        while (at_ < text_.size() && text_[at_].isSpace())
            ++at_;
        return at_ < text_.size();
    }

    SearchTerm NextTerm()
    {
        SearchTerm term;
        if (text_[at_] == u'-') {
            term.isExcluded = true;
            ++at_;
        }
        const QString piece = at_ < text_.size() && text_[at_] == u'"' ? TakeQuoted() : TakePlain();
        term.words = WordsOf(piece);
        const bool endsOpen = at_ == text_.size() && !closed_ && !term.isExcluded && EndsInWord(piece);
        term.isBeginning = TakeAsterisk() || piece.endsWith(u'*') || endsOpen;
        return term;
    }

private:
    QString TakeQuoted()
    {
        const qsizetype begin = ++at_;
        const qsizetype quote = text_.indexOf(u'"', begin);
        closed_ = quote >= 0;
        at_ = closed_ ? quote + 1 : text_.size();
        return text_.mid(begin, (closed_ ? quote : at_) - begin);
    }

    QString TakePlain()
    {
        closed_ = false;
        const qsizetype begin = at_;
        while (at_ < text_.size() && !text_[at_].isSpace() && text_[at_] != u'"')
            ++at_;
        return text_.mid(begin, at_ - begin);
    }

    bool TakeAsterisk()
    {
        const bool isThere = closed_ && at_ < text_.size() && text_[at_] == u'*';
        at_ += isThere ? 1 : 0;
        return isThere;
    }

    static bool EndsInWord(const QString& piece)
    {
        return !piece.isEmpty() && PartOf(piece.toUcs4().last()) != Part::Between;
    }

    const QString& text_;
    qsizetype at_ = 0;
    bool closed_ = false; ///< the last piece ended with a quote
};

bool IsWord(const SearchTerm& term, qsizetype index, const QString& word)
{
    const bool isOpen = term.isBeginning && index + 1 == term.words.size();
    return isOpen ? word.startsWith(term.words[index]) : word == term.words[index];
}

struct PlacedWord {
    QString word;
    TextRange range;
};

/// How many words from the first of `ahead` on the term takes; 0 when they are not the term's.
qsizetype WordsTaken(const SearchTerm& term, const std::deque<PlacedWord>& ahead)
{
    if (term.isExcluded || static_cast<qsizetype>(ahead.size()) < term.words.size())
        return 0;
    for (qsizetype index = 0; index < term.words.size(); ++index) {
        if (!IsWord(term, index, ahead[static_cast<std::size_t>(index)].word))
            return 0;
    }
    return term.words.size();
}

} // namespace

QList<SearchTerm> SearchTermsOf(const QString& typed)
{
    QList<SearchTerm> terms;
    Typed input(typed);
    for (qsizetype room = mostWords; room > 0 && input.SkipBlanks();) {
        SearchTerm term = input.NextTerm();
        term.words = term.words.mid(0, room);
        room -= term.words.size();
        if (!term.words.isEmpty())
            terms.append(term);
    }
    return terms;
}

bool LookForSomething(const QList<SearchTerm>& terms)
{
    return std::any_of(terms.begin(), terms.end(), [](const SearchTerm& term) { return !term.isExcluded; });
}

void EachWord(const QString& text, const std::function<bool(const QString&, const TextRange&)>& visit)
{
    QString word;
    TextRange range;
    for (qsizetype at = 0; at < text.size();) {
        const bool isPair =
            text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        const char32_t character =
            isPair ? QChar::surrogateToUcs4(text[at], text[at + 1]) : char32_t{text[at].unicode()};
        const qsizetype next = at + (isPair ? 2 : 1);
        const Part part = PartOf(character);
        if (part == Part::Word) {
            if (word.isEmpty())
                range.begin = at;
            Append(word, Folded(character));
            range.length = next - range.begin;
        } else if (!word.isEmpty()) {
            if (part == Part::Silent) {
                range.length = next - range.begin;
            } else {
                if (!visit(word, range))
                    return;
                word.clear();
            }
        }
        at = next;
    }
    if (!word.isEmpty())
        visit(word, range);
}

QList<TextRange> PlacesOf(const QList<SearchTerm>& terms, const QString& text, qsizetype most)
{
    QList<TextRange> places;
    qsizetype reach = 0;
    for (const SearchTerm& term : terms)
        reach = std::max(reach, term.isExcluded ? 0 : term.words.size());
    if (reach == 0 || most <= 0)
        return places;

    std::deque<PlacedWord> ahead; // as many words as the longest term has
    const auto look = [&] {
        qsizetype taken = 0;
        for (const SearchTerm& term : terms)
            taken = std::max(taken, WordsTaken(term, ahead));
        if (taken > 0) {
            const TextRange last = ahead[static_cast<std::size_t>(taken) - 1].range;
            const qsizetype begin = ahead.front().range.begin;
            places.append({begin, last.End() - begin});
        }
        const auto done = static_cast<std::ptrdiff_t>(std::max<qsizetype>(taken, 1));
        ahead.erase(ahead.begin(), ahead.begin() + done);
    };
    EachWord(text, [&](const QString& word, const TextRange& range) {
        ahead.push_back({word, range});
        while (static_cast<qsizetype>(ahead.size()) >= reach && places.size() < most)
            look();
        return places.size() < most;
    });
    while (!ahead.empty() && places.size() < most)
        look();
    return places;
}

} // namespace torvik
