#pragma once

#include <QString>

#include <span>

namespace torvik {

/// The menu arrays of the main window that lead to topics.
enum class TopicMenu { None, Artwork, Stuff, Specialty };

/// Where a topic stands in its menu.
struct TopicEntry {
    TopicMenu Menu = TopicMenu::None;
    int Index = 0; ///< of the menu array; some have no entry
};

/// How the files of a topic's notes begin, by the number of the photo on show. In most of them the longer
/// number of the fifth photo takes the place of a zero.
struct NotePrefixes {
    const char* Below5 = "";
    const char* From5 = "";
};

/// A special topic: what a title in panYear stands for that is no year. Files are named as they stand under
/// the disc's root; an empty name means that there is none of its own.
struct Topic {
    const char* Title; ///< with its trailing blank, which counts
    const char* Code;  ///< the prefix of its photos
    TopicEntry Entry = {};

    const char* Description = "";
    const char* DescriptionEnding = ""; ///< what the window title adds to the topic's own
    const char* Statistics = "";
    const char* Colors = "";
    const char* Options = "";
    NotePrefixes Notes = {}; ///< one note for each photo in place of statistics
    const char* Emblem = "";
    const char* Script = "";

    bool HasDescription = false; ///< cmdDesc is enabled
    bool HasStatistics = false;  ///< cmdStats is enabled

    // What has always been different from topic to topic.
    bool IsBrowsed = true;          ///< its photos are found by the code, else by two letters of the title
    bool IsNamedInSlideShow = true; ///< else the slide show writes "19" and the code
    bool RenamesStatistics = false; ///< cmdStats reads "Details"
    bool KeepsYearButtons = false;  ///< a car with colours, options and pictures, as a year has them
    bool KeepsOverlays = false;     ///< open emblem, script and clip art stay, and are loaded anew
};

/// All topics.
std::span<const Topic> Topics();

/// The topic of a title; null for a year and for a title that is none.
const Topic* TopicOf(const QString& title);

/// The same for the topics whose photos and buttons the browser knows; null for the others too.
const Topic* BrowsedTopicOf(const QString& title);

/// The topic whose photos have that code; null when there is none.
const Topic* TopicOfCode(const QString& code);

/// The topic of a menu entry; null for an index without one.
const Topic* TopicOfEntry(TopicMenu menu, int index);

/// The title for the prefix of a photo, as the slide show writes it: a year's is followed by a blank, but not
/// those of 2000 and 2001.
QString TitleOfCode(const QString& code);

/// The code by which the browser looks for the photos of a title.
QString CodeOfTitle(const QString& title);

/// The year of a year button: 1 gives "1967", 35 gives "2001".
QString YearOfButton(int index);

} // namespace torvik
