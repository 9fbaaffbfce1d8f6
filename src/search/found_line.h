#pragma once

#include "program/search_words.h"

#include <QList>
#include <QString>

namespace torvik {

/// A line of a text with the words in it that were looked for.
struct FoundLine {
    QString text;
    QList<TextRange> found; ///< in Text
};

/// The surroundings of the first place where a text holds what is looked for, on one line of about `length`
/// units, with an ellipsis where it goes on. The beginning of the text where it holds none of it.
FoundLine LineAroundFirstHit(const QString& text, const QList<SearchTerm>& terms, qsizetype length);

} // namespace torvik
