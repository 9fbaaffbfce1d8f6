#include "ui/help/help_topics.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextFragment>

namespace torvik {

namespace {

/// The bookmark that a paragraph begins with; empty without one.
QString AnchorOf(const QTextBlock& block)
{
    const auto first = block.begin();
    if (first.atEnd())
        return {};
    const QStringList names = first.fragment().charFormat().anchorNames();
    return names.isEmpty() ? QString() : names.first();
}

} // namespace

std::vector<HelpTopic> TopicsOf(const QTextDocument& document)
{
    std::vector<HelpTopic> topics;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QString anchor = AnchorOf(block);
        if (!anchor.isEmpty())
            topics.push_back({anchor, block.text().simplified(), anchor.contains(u'-') ? 2 : 1});
    }
    return topics;
}

} // namespace torvik
