#include "program/photo_name.h"

#include "program/program_state.h"
#include "runtime/text.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

int StartOfName()
{
    return state.TorviksPathPos + static_cast<int>(torviksFolder.size());
}

} // namespace

void TakePathPosition(const QString& photo)
{
    state.TorviksPathPos = InStr(photo, torviksFolder);
}

void RefreshPathPosition()
{
    TakePathPosition(state.PhotoFiles(1));
}

QString NameOfPhoto(const QString& photo)
{
    return Mid(photo, StartOfName());
}

QString ShortNameOfPhoto(const QString& photo)
{
    return Mid(photo, StartOfName(), 12);
}

QString CodeOfPhoto(const QString& photo)
{
    return Mid(photo, StartOfName(), 2);
}

/// What counts is the first point of the path, wherever it stands.
QString CaptionOfPhoto(const QString& photo)
{
    const int point = InStr(photo, u"."_s);
    const int folder = state.TorviksPathPos;
    const int stem = StartOfName() - 1;
    return Left(photo, folder) + u"RichText"_s + Mid(photo, stem, point - stem) + u".rtf"_s;
}

} // namespace torvik
