#pragma once

#include "support/discs/booklet_disc.h"
#include "support/print_folder.h"
#include "support/program.h"

namespace torvik {

/// Indices of the boxes of the booklet panel.
namespace box {
inline constexpr int cover = 0;
inline constexpr int introduction = 1;
inline constexpr int clipArt = 2;
inline constexpr int description = 3;
inline constexpr int details = 4;
inline constexpr int engines = 5;
inline constexpr int options = 6;
inline constexpr int colors = 7;
} // namespace box

/// The program with the booklet panel open, a disc with cover, introduction and the years 1967 to 1969 and
/// 1998 to 2001, and a folder to print into.
struct BookletRun {
    BookletRun();

    Program user;
    PrintFolder printed;

    /// Ticks boxes, selects the years that are given ("1967"), and presses the button.
    void Print(const QList<int>& boxes, const char* from = nullptr, const char* to = nullptr);
    /// The text of each job that has gone out; its pages are parted by "|".
    QStringList Texts() const;
};

/// The texts of the documents of a year, by the prefix of their names, in the order in which they are
/// printed.
QStringList DocumentsOf(const char* prefix);

/// A column "box" with a row for each box by year that prints nothing of its own.
void AddBoxesWithoutDocuments();

/// Checks for a test: what the user was told last, and what the panel shows then.
void ExpectSuccess(const BookletRun& run);
void ExpectRefusal(const BookletRun& run, const char* code, const char* text, bool discHint);
/// Each text is a job of one page, and no other job has gone out.
void ExpectTexts(const BookletRun& run, const QStringList& texts);
void ExpectPrinted(const BookletRun& run, const QStringList& texts);

} // namespace torvik
