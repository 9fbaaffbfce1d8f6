#include "search/finder.h"

#include "platform/files/files.h"
#include "program/box_title.h"
#include "program/program_state.h"
#include "runtime/failure.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// The disc in the drive; empty while there is none.
QString MarkOfDisc()
{
    return FolderMark(state.DiscRoot + u"\\RichText"_s);
}

/// What is searched of a title: not the product's name, which stands in front of them all.
QString SearchedTitle(const Findable& findable)
{
    QString title = findable.title;
    if (title.startsWith(boxTitle))
        title.remove(0, boxTitle.size());
    return title + u' ' + findable.place;
}

IndexedText TextOf(const Findable& findable)
{
    IndexedText text;
    text.title = SearchedTitle(findable);
    if (findable.file.isEmpty())
        return text;
    // A file that cannot be looked up any more is one that cannot be read.
    if (const int error = ResumeNext([&] { text.read = FileToRead(findable.file); }); error != 0)
        text.read = [error]() -> QByteArray { Fail(error); };
    return text;
}

} // namespace

Finder::Finder(std::function<void()> news) : news_(std::move(news))
{
    Read();
}

void Finder::Refresh()
{
    const QString disc = MarkOfDisc();
    if (!disc.isEmpty() && (disc != disc_ || isDiscGone_))
        Read();
}

void Finder::Read()
{
    index_.reset();
    disc_ = MarkOfDisc();
    isDiscGone_ = false;
    FoundCatalogue catalogue = WhatCanBeFound();
    findables_ = std::move(catalogue.findables);
    missing_ = catalogue.missing;
    QList<IndexedText> texts;
    texts.reserve(findables_.size());
    for (const Findable& findable : std::as_const(findables_))
        texts.append(TextOf(findable));
    // Many pieces of news at once are told as one.
    index_ = std::make_unique<DiscIndex>(std::move(texts), [this] {
        if (!newsOnTheWay_.exchange(true))
            QMetaObject::invokeMethod(
                this, [this] { News(); }, Qt::QueuedConnection);
    });
}

void Finder::News()
{
    newsOnTheWay_ = false;
    const IndexProgress progress = index_->Progress();
    if (progress.isDone && progress.leftOut > 0 && !isDiscGone_)
        isDiscGone_ = MarkOfDisc() != disc_;
    const auto news = news_; // what it opens may be the end of this object
    news();
}

} // namespace torvik
