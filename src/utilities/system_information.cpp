#include "utilities/system_information.h"

#include "platform/files/files.h"
#include "platform/system/process.h"
#include "platform/system/registry.h"
#include "runtime/failure.h"
#include "ui/forms/message_box.h"
#include "utilities/bind_utilities.h"
#include "windows/main_window.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// Command lines of the desktops' own tools, the most telling ones first.
constexpr const char* desktopTools[] = {
    "hardinfo2",
    "hardinfo",
    "kinfocenter",
    "gnome-control-center info-overview",
    "cinnamon-settings info",
    "mate-system-monitor",
    "gnome-system-monitor",
    "xfce4-taskmanager",
    "plasma-systemmonitor",
};

/// The tool's own entry in the registry, else the folder in which its like are.
std::optional<QString> RegisteredTool()
{
    QString tool;
    if (ReadRegistryValue(registry::localMachine, u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"_s, u"PATH"_s,
                          tool))
        return tool;
    if (ReadRegistryValue(registry::localMachine, u"SOFTWARE\\Microsoft\\Shared Tools Location"_s,
                          u"MSINFO"_s, tool) &&
        FileExists(tool + u"\\MSINFO32.EXE"_s))
        return tool + u"\\MSINFO32.EXE"_s;
    return std::nullopt;
}

/// The program goes on by itself.
void Start(const QString& commandLine)
{
    const RunningProcess started(commandLine);
}

/// False when none of the desktops' tools is installed.
bool StartDesktopTool()
{
    for (const char* tool : desktopTools) {
        const int error = ResumeNext([tool] { Start(QLatin1String(tool)); });
        if (error == 0)
            return true;
        if (error != failure::fileNotFound)
            Fail(error);
    }
    return false;
}

void SayUnavailable()
{
    MsgBox(u"System Information Is Unavailable At This Time"_s);
}

} // namespace

void StartSystemInformation()
{
    OnError(
        [] {
            if (const auto tool = RegisteredTool())
                Start(u'"' + *tool + u'"');
            else if (!StartDesktopTool())
                SayUnavailable();
        },
        SayUnavailable);
}

void BindSystemInformation()
{
    Form1.Bind([](Form1Controls& form) { form.mnuSysInfo.Click = StartSystemInformation; });
}

} // namespace torvik
