#pragma once

#include "search/found_line.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace torvik {

/// One thing that can be found, as the index takes it.
struct IndexedText {
    QString title; ///< searched too, and weighs more than the text
    /// Gives the bytes of the rich text. It runs on a thread of the index and tells by a RunTimeError what
    /// cannot be read. None for what has a title only.
    std::function<QByteArray()> read;
};

/// One thing that was found.
struct IndexHit {
    qsizetype entry = 0; ///< which of the texts, counted from 0
    FoundLine line;
};

/// What came of a question.
struct IndexAnswer {
    QString question;
    qsizetype count = 0;
    QList<IndexHit> best; ///< the best of them first
};

/// How far the reading is.
struct IndexProgress {
    qsizetype read = 0;
    qsizetype total = 0;
    qsizetype leftOut = 0; ///< could not be read, or hold no word
    bool isDone = false;
    bool isUsable = true; ///< false where there is no SQLite with full text
};

/// The texts of a disc, read and searched on threads of its own: bytes go in, words come out through one
/// queue, and nobody waits, not even for a disc that hangs. Questions are answered from what is read so far,
/// and again while more is read.
class DiscIndex {
public:
    /// Begins to read. `news` is called on a thread of the index when there is something to take; never after
    /// the end of this object.
    DiscIndex(QList<IndexedText> texts, std::function<void()> news);
    /// Does not wait for a disc that is busy.
    ~DiscIndex();
    DiscIndex(const DiscIndex&) = delete;
    DiscIndex& operator=(const DiscIndex&) = delete;

    /// Asks for what was typed. A question that is not answered yet gives way to it.
    void Ask(const QString& question);
    /// The latest answer, once; nothing when there is no new one.
    std::optional<IndexAnswer> TakeAnswer();
    IndexProgress Progress() const;

private:
    struct Shared;
    std::shared_ptr<Shared> shared_;
};

} // namespace torvik
