#include "rtf/fields/bookmark_texts.h"

#include <algorithm>

namespace torvik::rtf {

namespace {

constexpr qsizetype longestText = 2000;
constexpr std::size_t mostOpen = 50;

} // namespace

void BookmarkTexts::Begin(const QString& name, Place place, qsizetype from)
{
    if (open_.size() < mostOpen)
        open_.push_back({name.toLower(), place, from, {}, false});
}

void BookmarkTexts::Gather(Open& bookmark, QStringView paragraph)
{
    const QStringView whole = paragraph.mid(std::min(bookmark.from, paragraph.size()));
    const qsizetype room =
        std::max<qsizetype>(0, std::min(longestText - bookmark.text.size(), gatheringLeft_));
    if (bookmark.isCut || whole.isEmpty())
        return;
    QString piece = whole.left(room).toString();
    piece.remove(QChar(QChar::ObjectReplacementCharacter)); // a picture
    bookmark.isCut = whole.size() > room;
    if (bookmark.isCut)
        piece += u'…';
    if (!bookmark.text.isEmpty() && !piece.isEmpty())
        bookmark.text += u' ';
    bookmark.text += piece;
    gatheringLeft_ -= piece.size();
}

void BookmarkTexts::End(const QString& name, Place place, QStringView paragraph)
{
    const auto found = std::find_if(open_.begin(), open_.end(), [key = name.toLower()](const Open& bookmark) {
        return bookmark.name == key;
    });
    if (found == open_.end())
        return;
    if (found->place == place)
        Gather(*found, paragraph);
    texts_.insert(found->name, found->text.trimmed());
    open_.erase(found);
}

void BookmarkTexts::EndParagraph(Place place, QStringView paragraph)
{
    for (Open& bookmark : open_) {
        if (!(bookmark.place == place))
            continue;
        Gather(bookmark, paragraph);
        bookmark.from = 0;
    }
}

QString BookmarkTexts::Repeat(const QString& name)
{
    QString text = texts_.value(name.toLower());
    if (text.size() > repeatingLeft_)
        return {};
    repeatingLeft_ -= text.size();
    return text;
}

} // namespace torvik::rtf
