#pragma once

#include <QString>

#include <span>

namespace torvik {

/// The menu arrays of the main window that lead to topics.
enum class TopicMenu { None, Artwork, Stuff, Specialty };

/// Where a topic stands in its menu.
struct TopicEntry {
    TopicMenu menu = TopicMenu::None;
    int index = 0; ///< of the menu array; some have no entry
};

/// How the files of a topic's notes begin, by the number of the photo on show. In most of them the longer
/// number of the fifth photo takes the place of a zero.
struct NotePrefixes {
    const char* below5 = "";
    const char* from5 = "";
};

/// A special topic: what a title in panYear stands for that is no year. Files are named as they stand under
/// the disc's root; an empty name means that there is none of its own.
struct Topic {
    const char* title; ///< with its trailing blank, which counts
    const char* code;  ///< the prefix of its photos
    TopicEntry entry = {};

    const char* description = "";
    const char* descriptionEnding = ""; ///< what the window title adds to the topic's own
    const char* statistics = "";
    const char* colors = "";
    const char* options = "";
    NotePrefixes notes = {}; ///< one note for each photo in place of statistics
    const char* emblem = "";
    const char* script = "";

    bool hasDescription = false; ///< cmdDesc is enabled
    bool hasStatistics = false;  ///< cmdStats is enabled

    // What has always been different from topic to topic.
    bool isBrowsed = true;          ///< its photos are found by the code, else by two letters of the title
    bool isNamedInSlideShow = true; ///< else the slide show writes "19" and the code
    bool renamesStatistics = false; ///< cmdStats reads "Details"
    bool keepsYearButtons = false;  ///< a car with colours, options and pictures, as a year has them
    bool keepsOverlays = false;     ///< open emblem, script and clip art stay, and are loaded anew
};

// The codes of 2000 and 2001, which sort after those of the other years.
inline constexpr QLatin1String code2000("A0");
inline constexpr QLatin1String code2001("A1");

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
