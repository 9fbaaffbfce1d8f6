#pragma once

#include <QList>
#include <QString>

#include <functional>

namespace torvik {

/// One thing that can be found on the disc.
struct Findable {
    QString title; ///< as the window that shows it is titled
    QString place; ///< where a person finds it by hand: "1969 > Description"
    QString file;  ///< the document, as a drive path; empty for what has a title alone
    /// Shows it as its button or menu entry does; a document is searched for `words`, and marked.
    std::function<void(const QString& words)> open;
};

/// What there is to be found.
struct FoundCatalogue {
    QList<Findable> findables;
    int missing = 0; ///< articles that a button or menu entry asks for and the disc has not
};

/// All that the screens can show of the disc in the drive, from the tables that the screens themselves use:
/// articles of the years and of the topics that there are photos of, the library, notes and captions of the
/// photos, movies and sounds by their titles. A caption or note that is not on the disc is none; an article
/// is counted.
FoundCatalogue WhatCanBeFound();

} // namespace torvik
