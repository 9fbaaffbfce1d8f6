#include "search/text_index.h"

#include <QSqlDatabase>

#include <atomic>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// The table takes words only, folded by the rules by which they are marked later, so that what is found and
/// what is marked are always the same. It keeps no text, just where the words stand.
const QString tableOfWords = u"create virtual table found using fts5(title, text, content = '', "
                             "prefix = '1 2 3', tokenize = 'unicode61 remove_diacritics 2')"_s;

/// A word in the title stands above any number of them in the text.
const QString search =
    u"select rowid from found where found match ? order by bm25(found, 100.0, 1.0), rowid"_s;

QString NewConnection()
{
    static std::atomic<int> made = 0;
    return u"found-%1"_s.arg(++made);
}

QString FoldedText(const QString& text)
{
    QString folded;
    folded.reserve(text.size());
    EachWord(text, [&folded](const QString& word, const TextRange& /*range*/) {
        folded += word;
        folded += u' ';
        return true;
    });
    return folded;
}

QString Phrase(const SearchTerm& term)
{
    const QString words = u'"' + term.words.join(u' ') + u'"';
    return term.isBeginning ? words + u'*' : words;
}

} // namespace

QString MatchExpressionOf(const QList<SearchTerm>& terms)
{
    if (!LookForSomething(terms))
        return {};
    QStringList wanted;
    QStringList excluded;
    for (const SearchTerm& term : terms)
        (term.isExcluded ? excluded : wanted).append(Phrase(term));
    const QString all = wanted.join(u" AND ");
    return excluded.isEmpty() ? all : u"(%1) NOT (%2)"_s.arg(all, excluded.join(u" OR "));
}

TextIndex::TextIndex() : connection_(NewConnection())
{
    QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, connection_);
    database.setDatabaseName(u":memory:"_s);
    if (!database.open())
        return;
    isUsable_ = Run(u"pragma journal_mode = off"_s) && Run(u"begin"_s) && Run(tableOfWords);
    if (!isUsable_)
        return;
    insert_ = std::make_unique<QSqlQuery>(database);
    isUsable_ = insert_->prepare(u"insert into found(rowid, title, text) values(?, ?, ?)"_s);
    find_ = std::make_unique<QSqlQuery>(database);
    find_->setForwardOnly(true);
    isUsable_ = isUsable_ && find_->prepare(search);
}

TextIndex::~TextIndex()
{
    insert_.reset();
    find_.reset();
    QSqlDatabase::removeDatabase(connection_);
}

bool TextIndex::Run(const QString& statement)
{
    return QSqlQuery(QSqlDatabase::database(connection_, false)).exec(statement);
}

void TextIndex::Add(int number, const QString& title, const QString& text)
{
    if (!isUsable_)
        return;
    insert_->bindValue(0, number);
    insert_->bindValue(1, FoldedText(title));
    insert_->bindValue(2, FoldedText(text));
    insert_->exec();
    insert_->finish();
}

void TextIndex::Commit()
{
    Run(u"commit"_s);
}

QList<int> TextIndex::Find(const QList<SearchTerm>& terms)
{
    QList<int> numbers;
    const QString expression = MatchExpressionOf(terms);
    if (!isUsable_ || expression.isEmpty())
        return numbers;
    find_->bindValue(0, expression);
    if (find_->exec()) {
        while (find_->next())
            numbers.append(find_->value(0).toInt());
    }
    find_->finish();
    return numbers;
}

} // namespace torvik
