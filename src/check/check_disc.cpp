#include "check/check_disc.h"

#include "check/asked_files.h"
#include "check/examine_file.h"
#include "check/examine_picture.h"
#include "check/oddities.h"
#include "platform/files/all_files.h"
#include "platform/paths/drives.h"
#include "program/program_state.h"
#include "ui/pictures/picture.h"

#include <QSet>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <tuple>
#include <vector>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr int threadCount = 2;
constexpr int betweenLooks = 25; ///< files
constexpr std::chrono::milliseconds longestSilence{200};

/// Looks into all files; what came of each stands at its place.
std::vector<Examination> ExamineAll(const QList<ListedFile>& files, const CheckProgress& progress)
{
    ListenToDecoders();
    RaisePictureLimit();
    std::vector<Examination> examined(static_cast<std::size_t>(files.size()));
    std::atomic<qsizetype> next = 0;
    std::mutex mutex;
    std::condition_variable isOneDone;
    int done = 0;
    const auto work = [&] {
        for (qsizetype file = next++; file < files.size(); file = next++) {
            examined[static_cast<std::size_t>(file)] = Examine(files[file]);
            const std::scoped_lock lock(mutex);
            ++done;
            isOneDone.notify_one();
        }
    };
    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    for (int count = 0; count < threadCount; ++count)
        threads.emplace_back(work);
    const int all = static_cast<int>(files.size());
    for (int shown = 0; shown < all;) {
        std::unique_lock lock(mutex);
        isOneDone.wait_for(lock, longestSilence, [&] { return done == all || done >= shown + betweenLooks; });
        shown = done;
        lock.unlock();
        progress(shown, all);
    }
    for (std::thread& thread : threads)
        thread.join();
    return examined;
}

class Checker {
public:
    Checker(const QList<ListedFile>& files, const std::vector<Examination>& examined)
        : files_(files), examined_(examined), photos_(NamesOfPhotos(files_)), asked_(AskedFiles(photos_))
    {}

    QList<Finding> Check()
    {
        findings_ = MissingFiles(files_, asked_);
        for (const QString& screen : ScreensWithoutPhoto(photos_))
            findings_.append({FindingKind::Missing,
                              torviksFolder.mid(1) + u"*.JPG"_s,
                              u"has no photo for this screen"_s,
                              {screen}});
        for (qsizetype file = 0; file < files_.size(); ++file)
            TakeFile(files_[file], examined_[static_cast<std::size_t>(file)]);
        findings_ += Oddities(files_, examined_, asked_);
        std::stable_sort(findings_.begin(), findings_.end(), [](const Finding& a, const Finding& b) {
            return std::tuple(a.kind, FoldedPath(a.file)) < std::tuple(b.kind, FoldedPath(b.file));
        });
        return findings_;
    }

private:
    void TakeFile(const ListedFile& file, const Examination& examined)
    {
        if (!examined.isWhole)
            findings_.append(
                {examined.kind, file.path, examined.what, asked_.value(FoldedPath(file.path)).screens});
    }

    const QList<ListedFile>& files_;
    const std::vector<Examination>& examined_;
    QStringList photos_;
    QHash<QString, AskedFile> asked_;
    QList<Finding> findings_;
};

} // namespace

QList<Finding> MissingFiles(const QList<ListedFile>& files, const QHash<QString, AskedFile>& asked)
{
    QSet<QString> there;
    for (const ListedFile& file : files)
        there.insert(FoldedPath(file.path));
    QList<Finding> findings;
    for (auto file = asked.cbegin(); file != asked.cend(); ++file) {
        if (file->most < Need::Remark || there.contains(file.key()))
            continue;
        if (file->most == Need::Full)
            findings.append({FindingKind::Missing, file->path, u"is missing"_s, file->screens});
        else
            findings.append({FindingKind::Remark, file->path,
                             u"is missing, and the program says so in words of its own"_s, file->screens});
    }
    return findings;
}

QList<Finding> FindingsOf(const QList<ListedFile>& files, const std::vector<Examination>& examined)
{
    return Checker(files, examined).Check();
}

CheckResult CheckDisc(QChar letter, const CheckProgress& progress)
{
    CheckResult result;
    const QList<ListedFile> files = AllFiles(QString(letter) + u":\\"_s);
    result.disc = DriveFolder(letter);
    result.fileCount = static_cast<int>(files.size());
    for (const ListedFile& file : files)
        result.bytes += std::max<qint64>(file.length, 0);
    result.findings = FindingsOf(files, ExamineAll(files, progress));
    return result;
}

} // namespace torvik
