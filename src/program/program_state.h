#pragma once

#include "runtime/integer16.h"
#include "runtime/one_based_array.h"

#include <QString>

#include <array>
#include <cstdint>

namespace torvik {

using namespace Qt::StringLiterals;

/// Placement of the help window, as the help system takes it.
struct HelpWindowRecord {
    std::int32_t wStructSize = 0;
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t dx = 0;
    std::int32_t dy = 0;
    std::int32_t wMax = 0;
    std::array<char16_t, 2> rgchMember{};
};

/// The one record of program-wide variables. Handlers pass their arguments through it; nothing in it outlives
/// the program. Positions and indices count from 1.
// NOLINTBEGIN(readability-identifier-naming): its fields keep the names that they have always had.
struct ProgramState {
    // Where the content is
    QString DiscRoot;     ///< "E:", the drive on which the disc was found
    QString PhotoRoot;    ///< what "\Torviks\" is read under: the program folder or DiscRoot
    QString DriveLetters; ///< the letters that are tried, in order

    // Messages and failures
    QString ErrorCode;     ///< code of the operation under way, "ER001"
    QString MessageText;   ///< text of the message about to be shown
    QString MessageAnswer; ///< digits of the answer to the last box that stores it as text
    Integer MessageResult; ///< answer of the last question box
    Integer LoopIndex;     ///< counter shared by procedures that run one after the other

    // Files about to be used
    QString SoundFile;
    QString DocumentFile;
    QString DocumentTitle; ///< title for the document viewer, read when it loads
    QString TextToFind;    ///< what the next document on show is searched for; mostly nothing

    // The main window
    bool FirstActivation = false;
    bool ShowFileNames = false;
    bool YearChosen = false;   ///< a year was chosen by mouse or space bar; never set back
    Integer CurrentYearButton; ///< 1 to 35; 0 for a topic
    Integer NextYearButton;    ///< where the left click on the photo goes
    QString YearCode;          ///< two characters: the name prefix of the year or topic

    // The photos
    OneBasedArray<QString> PhotoFiles;   ///< sorted full paths and one empty element at the end
    OneBasedArray<QString> PhotoNumbers; ///< number of each photo inside its group, as text
    Integer PhotoCount;
    Integer PhotoIndex;      ///< cursor into PhotoFiles
    Integer ShownPhotoIndex; ///< index of the photo on show
    QString PreviousPrefix;
    QString CurrentPhotoFile; ///< full path of the photo on show
    Integer TorviksPathPos;   ///< position of "\Torviks\" inside a photo's path
    bool SkipFirstPhoto =
        false; ///< the first photo of the group is on show: the next forward step passes over it
    bool SteppedForward = false;
    bool SteppedBackward = false;

    // The slide show
    std::int32_t SlideDelay = 0; ///< milliseconds, 1000 to 60000
    bool SlidePlayPressed = false;
    bool SlideShowOpen = false;
    bool SlideRestorePending = false; ///< the main window rebuilds itself when it is active again
    QString MissingClipArt;           ///< what the rebuilding at the end of a show has already told

    // Movies
    QString MovieFolder; ///< with a closing backslash
    OneBasedArray<QString> MovieFiles;
    Integer MovieCount;
    Integer MovieListIndex;

    // Copies on the hard drive
    bool CopyingPhotos = false;
    bool CopyDeclined = false;
    bool CopyForSaver = false;
    std::int32_t CopyRemaining = 0; ///< bytes
    QString CopySource;
    QString CopyTarget;

    QString ClipboardRequest; ///< "2" while a copy is asked for

    // The desktop
    std::int32_t ApiResult = 0;
    std::int32_t TrayWindow = 0; ///< handle of the task bar; 0 until it is first looked up
    QString TrayClassName;
    std::int32_t HelpWindowHandle = 0;
    HelpWindowRecord HelpWindowInfo;
};
// NOLINTEND(readability-identifier-naming)

inline ProgramState state;

/// A photo's path holds this in front of the file's name.
inline const QString torviksFolder = u"\\Torviks\\"_s;

/// The saver's play list, in the program folder.
inline const QString playListFolder = u"\\ssTorviks\\"_s;

} // namespace torvik
