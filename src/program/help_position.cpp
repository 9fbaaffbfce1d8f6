#include "program/help_position.h"

#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "ui/help/help_system.h"

using namespace Qt::StringLiterals;

namespace torvik {

QString HelpFile()
{
    const QString folder = ProgramFolder().trimmed();
    const QString separator = folder.endsWith(u'\\') ? QString() : u"\\"_s;
    return ProgramFolder() + separator + u"Torvik2001.HLP"_s;
}

void InitHelp(std::int32_t window)
{
    state.HelpWindowHandle = window;
    state.HelpWindowInfo.wStructSize = 26;
    state.HelpWindowInfo.x = 256;
    state.HelpWindowInfo.y = 256;
    state.HelpWindowInfo.dx = 512;
    state.HelpWindowInfo.dy = 512;
    state.HelpWindowInfo.rgchMember = {u'\0', u'\0'};
}

void QuitHelp()
{
    WinHelp(state.HelpWindowHandle, HelpFile(), winHelp::quit, QString(4, u'\0'));
}

} // namespace torvik
