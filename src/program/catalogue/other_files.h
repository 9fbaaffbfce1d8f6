#pragma once

#include <QString>

namespace torvik {

using namespace Qt::StringLiterals;

// What single screens ask the disc for, under its root.

/// Named at the start, before anything is chosen.
inline const QString startDocument = u"\\richtext\\desc.rtf"_s;
/// The help of the screen saver's panel.
inline const QString saverHelp = u"\\richtext\\sshelp.rtf"_s;
/// The installer of what the movies once needed; most discs have none.
inline const QString movieDriver = u"\\IndeoVideo\\iv5play.exe"_s;

/// The picture of all cars, which the play list shows from beside the program; discs carry it as well.
inline const QString pictureOfAll = u"\\graphics\\ClassicTorviks.jpg"_s;

/// The spoken text of a title; few have one.
inline QString NarrationOf(const QString& title)
{
    return u"\\wav\\"_s + title + u".wav"_s;
}
/// The same while nothing is chosen.
inline const QString startNarration = u"\\wav\\intro.wav"_s;

} // namespace torvik
