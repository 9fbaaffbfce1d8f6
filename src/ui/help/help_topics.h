#pragma once

#include <QString>

#include <vector>

class QTextDocument;

namespace torvik {

/// A topic of a help file: a heading that carries a bookmark.
struct HelpTopic {
    QString anchor; ///< the bookmark's name
    QString title;  ///< the words of the heading
    int level =
        1; ///< 1 for a chapter, 2 for what a bookmark with a hyphen in its name ("printing-booklet") heads
};

/// The topics in the order in which they stand.
std::vector<HelpTopic> TopicsOf(const QTextDocument& document);

} // namespace torvik
