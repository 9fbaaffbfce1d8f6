#pragma once

#include "program/search_words.h"

#include <QList>
#include <QSqlQuery>
#include <QString>

#include <memory>

namespace torvik {

/// What is looked for, as FTS5 reads it; empty when there is nothing to look for. It holds nothing but words
/// in quotes and the operators between them, so FTS5 finds no fault with it whatever was typed.
QString MatchExpressionOf(const QList<SearchTerm>& terms);

/// Texts that can be searched for words: an SQLite table in memory. To be used on one thread.
class TextIndex {
public:
    TextIndex();
    ~TextIndex();
    TextIndex(const TextIndex&) = delete;
    TextIndex& operator=(const TextIndex&) = delete;

    /// False where Qt's SQLite driver is missing, or knows no full text; then nothing is found.
    bool IsUsable() const { return isUsable_; }

    /// Adds a text under a number of the caller's, 1 or more. What was added can be found at once.
    void Add(int number, const QString& title, const QString& text);
    /// Ends the one transaction that all is added in.
    void Commit();

    /// The numbers of the texts that hold what is looked for, the best first: words in the title count far
    /// more than those in the text, rare words more than common ones.
    QList<int> Find(const QList<SearchTerm>& terms);

private:
    bool Run(const QString& statement);

    QString connection_;
    bool isUsable_ = false;
    std::unique_ptr<QSqlQuery> insert_;
    std::unique_ptr<QSqlQuery> find_;
};

} // namespace torvik
