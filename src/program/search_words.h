#pragma once

#include "runtime/text_range.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

namespace torvik {

/// One thing that is looked for: a word, or several that stand in a row.
struct SearchTerm {
    QStringList words;        ///< without letter case and accents; never empty
    bool isBeginning = false; ///< the last word may go on: "scoop" for "scoops"
    bool isExcluded = false;  ///< what holds it is not wanted
};

/// What a person typed, as terms. Blanks separate the words; quotes hold several together, a closing one may
/// be missing; a minus sign in front excludes; an asterisk after a word, or typing that ends right after
/// it, leaves its end open. Anything else that is no letter and no digit only separates words, so no input
/// is an error. Words beyond the 64th are left out.
QList<SearchTerm> SearchTermsOf(const QString& typed);

/// Whether there is anything in it to look for: exclusions alone find nothing.
bool LookForSomething(const QList<SearchTerm>& terms);

/// The words of a text in their order, each with its range: what is a letter, a digit or an accent on one.
/// `visit` gets the word in the form in which words are compared, without letter case and accents, and
/// returns false to end the walk.
void EachWord(const QString& text,
              const std::function<bool(const QString& word, const TextRange& range)>& visit);

/// Where a text holds what is looked for, in its order; no two places overlap. At most `most` of them.
QList<TextRange> PlacesOf(const QList<SearchTerm>& terms, const QString& text, qsizetype most);

} // namespace torvik
