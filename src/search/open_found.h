#pragma once

#include "program/catalogue/topics.h"
#include "windows/main_window.h"

#include <QString>

#include <functional>

namespace torvik {

// What is found is opened by the procedures of the buttons and menu entries themselves. `words` is what was
// looked for: a text is searched for it, and stands at the first place where it holds it.

/// Makes a year or topic the chosen one, with its first photo.
using Choosing = std::function<void()>;
Choosing ChooseYear(int button);
Choosing ChooseTopic(const Topic& topic);

/// Opens the article of a document button for a year or topic.
void OpenArticleOf(const Choosing& choose, Button Form1Controls::*button, const QString& words);
/// Opens a document of the library by the name of its menu entry.
void OpenLibraryDocument(const QString& entry, const QString& words);
/// Shows the photo at an index of the list, which is one of the year or topic, with its caption, or with the
/// note that the button of the statistics opens.
void OpenCaption(const Choosing& choose, int photo, const QString& words);
void OpenNote(const Choosing& choose, int photo, const QString& words);
/// Opens the player with the movie of an option.
void OpenMovieOf(int option);
/// Opens the panel of the sounds and plays the one of a button.
void OpenSoundOf(int button);

} // namespace torvik
