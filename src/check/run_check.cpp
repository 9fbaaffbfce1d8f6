#include "check/run_check.h"

#include "check/check_disc.h"
#include "check/report.h"
#include "platform/files/files.h"
#include "platform/paths/drives.h"
#include "platform/system/terminal.h"
#include "program/program_state.h"
#include "runtime/failure.h"

#include <cstdio>
#include <optional>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

const QString letters = u"DEFGHIJKLMNOPQRSTUVWXYZ"_s;

bool IsLetter(const QString& disc)
{
    return disc.size() == 2 && disc[1] == u':' && letters.contains(disc[0].toUpper());
}

/// The drives in which the disc may be, in the order in which the start looks.
QString LettersOf(const QString& disc)
{
    if (!disc.isEmpty() && !IsLetter(disc)) {
        SetDriveOptions({{u'E', disc}});
        return u"E"_s;
    }
    RefreshDrives();
    return disc.isEmpty() ? letters : disc.left(1).toUpper();
}

/// What makes a drive a disc is photos, here as at the start.
std::optional<QChar> DriveOf(const QString& disc)
{
    const QString possible = LettersOf(disc);
    for (const QChar letter : possible) {
        QString first;
        ResumeNext([&] { first = FindFile(letter + u":"_s + torviksFolder + u"*.jpg"_s); });
        if (!first.isEmpty())
            return letter;
    }
    return std::nullopt;
}

int SayNoDisc(const QString& disc)
{
    const QString where =
        disc.isEmpty() ? u"on any drive"_s : u"in %1: it has no photos in the folder Torviks"_s.arg(disc);
    std::fprintf(stderr, "torvik2001: there is no disc %s.\n", qPrintable(where));
    return checkend::noDisc;
}

} // namespace

int RunCheck(const QString& disc, bool asJson)
{
    const bool hasBar = !asJson && ErrorsAreTerminal();
    const auto progress = [hasBar](int done, int all) {
        if (hasBar)
            std::fputs(qPrintable(done < all ? ProgressLine(done, all) : u"\r\x1b[K"_s), stderr);
    };
    CheckResult result;
    ResumeNext([&] {
        if (const auto letter = DriveOf(disc))
            result = CheckDisc(*letter, progress);
    });
    if (result.fileCount == 0)
        return SayNoDisc(disc);
    if (asJson)
        std::fputs(ReportJson(result).constData(), stdout);
    else
        std::fputs(qPrintable(ReportText(result, OutputTakesColours())), stdout);
    return result.IsWhole() ? checkend::whole : checkend::findings;
}

} // namespace torvik
