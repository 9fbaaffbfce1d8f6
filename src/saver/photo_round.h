#pragma once

#include <QString>
#include <QStringList>

namespace torvik {

/// Goes round the photos of a folder in the order of their names, year by year, again and again. The folder
/// is read anew for each round, so that a disc that was put in meanwhile, or a photo that was added, is seen.
class PhotoRound {
public:
    /// The first round begins at `start` of its length, 0 to less than 1: a saver that always began with the
    /// same photo would mostly show the same few.
    explicit PhotoRound(QString folder, double start = 0);

    /// The drive path of the next photo; empty when the folder has none or cannot be read.
    QString Next();
    /// How many photos the round has.
    int Count() const { return static_cast<int>(names_.size()); }

private:
    void Begin();

    QString folder_;
    double start_;
    QStringList names_;
    qsizetype next_ = 0;
};

} // namespace torvik
