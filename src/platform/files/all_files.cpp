#include "platform/files/all_files.h"

#include "platform/folders/host_name.h"
#include "platform/paths/drives.h"
#include "runtime/failure.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr int mostFoldersListed = 10'000;
constexpr int deepestListed = 32;

bool IsAnyName(std::string_view /*name*/)
{
    return true;
}

std::string Below(const std::string& folder, const std::string& name)
{
    std::string path = folder + '/';
    path += name;
    return path;
}

class Lister {
public:
    explicit Lister(Place root) : volume_(std::move(root.on)), root_(std::move(root.path)) {}

    QList<ListedFile> List()
    {
        Enter(root_, {}, 0);
        return files_;
    }

private:
    void Enter(const std::string& folder, const QString& path, int depth)
    {
        if (depth > deepestListed || folders_++ >= mostFoldersListed)
            return;
        ResumeNext([&] {
            for (const std::string& name : volume_->Files(folder, IsAnyName))
                Take(Below(folder, name), path + NameFromHost(name));
        });
        ResumeNext([&] {
            for (const std::string& name : volume_->Folders(folder, IsAnyName))
                Enter(Below(folder, name), path + NameFromHost(name) + u'\\', depth + 1);
        });
    }

    void Take(const std::string& file, const QString& path)
    {
        ListedFile listed{path, {volume_, file}, -1};
        ResumeNext([&] { listed.length = volume_->Status(file).length; });
        files_.append(std::move(listed));
    }

    std::shared_ptr<const Volume> volume_;
    std::string root_;
    QList<ListedFile> files_;
    int folders_ = 0;
};

} // namespace

QList<ListedFile> AllFiles(const QString& root)
{
    return Lister(PlaceOf(root)).List();
}

} // namespace torvik
