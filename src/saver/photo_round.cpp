#include "saver/photo_round.h"

#include "platform/files/files.h"
#include "platform/paths/drives.h"
#include "runtime/failure.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace torvik {

PhotoRound::PhotoRound(QString folder, double start) : folder_(std::move(folder)), start_(start) {}

QString PhotoRound::Next()
{
    if (next_ >= names_.size())
        Begin();
    return names_.isEmpty() ? QString() : folder_ + names_[next_++];
}

void PhotoRound::Begin()
{
    names_.clear();
    ResumeNext([this] {
        RefreshDrives();
        names_ = FilesMatching(folder_ + u"*.jpg"_s);
    });
    std::sort(names_.begin(), names_.end(), [](const QString& one, const QString& other) {
        return QString::compare(one, other, Qt::CaseInsensitive) < 0;
    });
    next_ = static_cast<qsizetype>(std::exchange(start_, 0) * static_cast<double>(names_.size()));
}

} // namespace torvik
