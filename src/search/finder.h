#pragma once

#include "search/disc_index.h"
#include "search/what_can_be_found.h"

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>

namespace torvik {

/// What the form asks: the catalogue of the disc in the drive with its index, made when it is first asked for
/// and anew for another disc.
class Finder : public QObject {
public:
    /// `news` is called on the program's own thread when there is an answer or progress to take.
    explicit Finder(std::function<void()> news);

    /// Has the index of the disc that is in the drive now. While there is none, the index of the last one
    /// stays.
    void Refresh();

    void Ask(const QString& question) { index_->Ask(question); }
    std::optional<IndexAnswer> TakeAnswer() { return index_->TakeAnswer(); }
    IndexProgress Progress() const { return index_->Progress(); }
    /// How many articles that the screens ask for are not on the disc.
    int Missing() const { return missing_; }
    /// True when the disc went away before all of it was read.
    bool IsDiscGone() const { return isDiscGone_; }
    const Findable& Entry(qsizetype entry) const { return findables_[entry]; }

private:
    void Read();
    void News();

    std::function<void()> news_;
    QList<Findable> findables_;
    int missing_ = 0;
    QString disc_; ///< the mark of the disc that the index is of
    bool isDiscGone_ = false;
    std::unique_ptr<DiscIndex> index_;
    std::atomic<bool> newsOnTheWay_ = false;
};

} // namespace torvik
