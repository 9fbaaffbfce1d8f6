#include "platform/paths/mounted_volumes.h"

#include <QStorageInfo>

#include <future>
#include <thread>
#include <utility>

namespace torvik {

namespace {

using Answer = std::future<QList<MountedVolume>>;

Answer Ask(VolumeReader reader)
{
    std::packaged_task<QList<MountedVolume>()> task(reader);
    Answer answer = task.get_future();
    std::thread(std::move(task)).detach();
    return answer;
}

bool Comes(const Answer& answer, std::chrono::milliseconds patience)
{
    return answer.wait_for(patience) == std::future_status::ready;
}

} // namespace

QList<MountedVolume> MountedVolumes()
{
    QList<MountedVolume> volumes;
    const QList<QStorageInfo> mounted = QStorageInfo::mountedVolumes();
    for (const QStorageInfo& volume : mounted)
        volumes.append({volume.rootPath(), volume.fileSystemType(), volume.device()});
    return volumes;
}

std::optional<QList<MountedVolume>> ReadInTime(VolumeReader reader, std::chrono::milliseconds patience)
{
    static Answer stuck;
    if (stuck.valid()) {
        if (!Comes(stuck, patience))
            return std::nullopt;
        stuck = {}; // it came too late to be true now
    }
    Answer answer = Ask(reader);
    if (Comes(answer, patience))
        return answer.get();
    stuck = std::move(answer);
    return std::nullopt;
}

} // namespace torvik
