#include "search/what_can_be_found.h"

#include "platform/files/files.h"
#include "platform/paths/program_folder.h"
#include "program/catalogue/articles.h"
#include "program/catalogue/library.h"
#include "program/catalogue/movies_and_sounds.h"
#include "program/catalogue/topics.h"
#include "program/photo_name.h"
#include "program/program_state.h"
#include "runtime/text.h"
#include "search/open_found.h"
#include "windows/main_window.h"
#include "windows/movie_window.h"
#include "windows/sound_panel.h"

#include <map>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

struct DocumentButton {
    ArticleButton button;
    torvik::Button Form1Controls::*control;
    const char* name;
    const char* nameOfTopics; ///< on the button while a topic is the chosen one
    const char* Topic::*ownArticle;
};

const DocumentButton documentButtons[] = {
    {ArticleButton::Description, &Form1Controls::cmdDesc, "Description", "Description", &Topic::description},
    {ArticleButton::Options, &Form1Controls::cmdOptions, "Options", "Options", &Topic::options},
    {ArticleButton::Statistics, &Form1Controls::cmdStats, "Statistics", "Details", &Topic::statistics},
    {ArticleButton::Colors, &Form1Controls::cmdColors, "Colors", "Colors", &Topic::colors},
};

/// While it lives, names are taken out of the paths of the photo list. The browser goes by the photo on show,
/// which may be none, and gets its own position back.
class PathPosition {
public:
    PathPosition() { RefreshPathPosition(); }
    ~PathPosition() { state.TorviksPathPos = ofBrowser_; }
    PathPosition(const PathPosition&) = delete;
    PathPosition& operator=(const PathPosition&) = delete;

private:
    const Integer ofBrowser_ = state.TorviksPathPos;
};

/// The photos of one year or topic: their places in the list.
using PhotoGroup = QList<int>;

std::map<QString, PhotoGroup> GroupsOfPhotos()
{
    std::map<QString, PhotoGroup> groups;
    for (int index = 1; index <= state.PhotoCount && index <= state.PhotoFiles.Count(); ++index)
        groups[CodeOfPhoto(state.PhotoFiles(index))].append(index);
    return groups;
}

/// Puts the catalogue together.
class Collector {
public:
    FoundCatalogue Collect()
    {
        const PathPosition ofPhotos;
        const std::map<QString, PhotoGroup> groups = GroupsOfPhotos();
        for (int button = 1; button <= yearCount; ++button)
            AddArticlesOfYear(button);
        // A topic without a photo can only be chosen with an error.
        for (const Topic& topic : Topics()) {
            if (topic.isBrowsed && groups.contains(QString::fromLatin1(topic.code)))
                AddArticlesOfTopic(topic);
        }
        for (const LibraryDocument& document : LibraryDocuments())
            AddLibraryDocument(document);
        AddPhotoTexts(groups);
        AddMovies();
        AddSounds();
        return std::move(catalogue_);
    }

private:
    void Add(const QString& title, const QString& place, const QString& file,
             std::function<void(const QString&)> open)
    {
        catalogue_.findables.append({title.simplified(), place, file, std::move(open)});
    }

    /// `isAskedFor`: by a button that works; what else lies on the disc is found too.
    void AddArticle(const Article& article, const QString& place, const Choosing& choose,
                    torvik::Button Form1Controls::*button, bool isAskedFor = true)
    {
        const QString file = state.DiscRoot + article.file;
        if (!FileExists(file)) {
            catalogue_.missing += isAskedFor ? 1 : 0;
            return;
        }
        Add(article.windowTitle, place, file,
            [choose, button](const QString& words) { OpenArticleOf(choose, button, words); });
    }

    void AddArticlesOfYear(int button)
    {
        const QString year = YearOfButton(button);
        const Choosing choose = ChooseYear(button);
        for (const DocumentButton& each : documentButtons)
            AddArticle(ArticleOf(each.button, year), year + u" > "_s + QLatin1String(each.name), choose,
                       each.control);
        AddArticle(NostalgiaOf(year), year + u" > Nostalgia"_s, choose, &Form1Controls::cmdNostalgia);
    }

    void AddArticlesOfTopic(const Topic& topic)
    {
        const QString title = QString::fromLatin1(topic.title);
        const bool hasNotes = !NoteOf(title, 1).isEmpty();
        for (const DocumentButton& each : documentButtons) {
            const bool givesWay = hasNotes && each.button == ArticleButton::Statistics;
            if (*(topic.*each.ownArticle) != '\0' && !givesWay)
                AddArticle(ArticleOf(each.button, title),
                           title.trimmed() + u" > "_s + QLatin1String(each.nameOfTopics), ChooseTopic(topic),
                           each.control, AsksForArticle(each.button, topic));
        }
    }

    void AddLibraryDocument(const LibraryDocument& document)
    {
        const QString file = state.DiscRoot + QLatin1String(document.file);
        const QString screen = QString::fromUtf8(document.screen);
        if (!FileExists(file)) {
            catalogue_.missing += screen.isEmpty() ? 0 : 1;
            return;
        }
        Add(WindowTitleOf(document), screen.isEmpty() ? u"Library"_s : screen, file,
            [entry = QString::fromLatin1(document.entry)](const QString& words) {
                OpenLibraryDocument(entry, words);
            });
    }

    void AddPhotoTexts(const std::map<QString, PhotoGroup>& groups)
    {
        for (int button = 1; button <= yearCount; ++button) {
            const QString year = YearOfButton(button);
            const auto group = groups.find(CodeOfTitle(year));
            if (group != groups.end())
                AddCaptions(year, group->second, ChooseYear(button));
        }
        for (const Topic& topic : Topics()) {
            const auto group = groups.find(QString::fromLatin1(topic.code));
            if (!topic.isBrowsed || group == groups.end())
                continue;
            AddCaptions(QString::fromLatin1(topic.title), group->second, ChooseTopic(topic));
            AddNotes(QString::fromLatin1(topic.title), group->second, ChooseTopic(topic));
        }
    }

    void AddCaptions(const QString& title, const PhotoGroup& photos, const Choosing& choose)
    {
        for (const int photo : photos) {
            const QString file = CaptionOfPhoto(state.PhotoFiles(photo));
            if (FileExists(file))
                Add(TitleOfPhoto(title, photo), u"Caption"_s, file,
                    [choose, photo](const QString& words) { OpenCaption(choose, photo, words); });
        }
    }

    void AddNotes(const QString& title, const PhotoGroup& photos, const Choosing& choose)
    {
        for (const int photo : photos) {
            const QString note = NoteOf(title, Val(state.PhotoNumbers(photo)));
            if (!note.isEmpty() && FileExists(state.DiscRoot + note))
                Add(TitleOfPhoto(title, photo), u"Details"_s, state.DiscRoot + note,
                    [choose, photo](const QString& words) { OpenNote(choose, photo, words); });
        }
    }

    static QString TitleOfPhoto(const QString& title, int photo)
    {
        return title.trimmed() + u", photo "_s + state.PhotoNumbers(photo);
    }

    void AddMovies()
    {
        for (int option = 0; option < movieOptionCount; ++option) {
            const Movie movie = MovieOf(option);
            if (!movie.file.isEmpty() && IsMovieThere(movie.file))
                Add(movie.windowTitle, Form1->mnuMovies.Caption(), {},
                    [option](const QString& /*words*/) { OpenMovieOf(option); });
        }
    }

    static bool IsMovieThere(const QString& file)
    {
        return FileExists(state.DiscRoot + movieFolder + file) ||
               FileExists(ProgramFolder() + movieFolder + file);
    }

    void AddSounds()
    {
        for (int button = 0; button < soundCount; ++button) {
            if (!FileExists(state.DiscRoot + SoundOf(button)))
                continue;
            Add(Form1->lblSound(button).Caption(), Form1->mnuSound.Caption(), {},
                [button](const QString& /*words*/) { OpenSoundOf(button); });
        }
    }

    FoundCatalogue catalogue_;
};

} // namespace

FoundCatalogue WhatCanBeFound()
{
    return Collector().Collect();
}

} // namespace torvik
