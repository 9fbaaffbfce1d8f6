#include "search/open_found.h"

#include "browser/next_and_previous_photo.h"
#include "browser/photo_caption.h"
#include "browser/select_year.h"
#include "documents/books_and_magazines.h"
#include "documents/topic_menus.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "program/search_words.h"
#include "runtime/failure.h"
#include "ui/forms/event.h"
#include "windows/movie_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// What is opened while this lives is searched for the words; what opens later is not.
class Wanted {
public:
    explicit Wanted(const QString& words) { state.TextToFind = words; }
    ~Wanted() { state.TextToFind.clear(); }
    Wanted(const Wanted&) = delete;
    Wanted& operator=(const Wanted&) = delete;
};

void MarkInDetails(const QString& words)
{
    RichTextBox& details = Form1->rtbDetails;
    const QList<TextRange> places = PlacesOf(SearchTermsOf(words), details.Text(), details.Text().size());
    details.SetMarks(places, places.isEmpty() ? -1 : 0);
    if (!places.isEmpty())
        details.BringIntoView(places.first());
}

void ChooseTopicByItsCode(const QString& title)
{
    Form1->panYear.SetCaption(title);
    ShowSpecialTopic();
}

} // namespace

Choosing ChooseYear(int button)
{
    return [button] { Form1->cmdYR(button).Click.Fire(); };
}

Choosing ChooseTopic(const Topic& topic)
{
    const int index = topic.entry.index;
    switch (topic.entry.menu) {
    case TopicMenu::Artwork:
        return [index] { ShowArtTopic(index); };
    case TopicMenu::Stuff:
        return [index] { ShowStuffTopic(index); };
    case TopicMenu::Specialty:
        return [index] { ShowSpecialtyTopic(index); };
    case TopicMenu::None:
        break;
    }
    return [title = QString::fromLatin1(topic.title)] { ChooseTopicByItsCode(title); };
}

void OpenArticleOf(const Choosing& choose, Button Form1Controls::*button, const QString& words)
{
    choose();
    const Wanted wanted(words);
    ((*Form1).*button).Click.Fire();
}

void OpenLibraryDocument(const QString& entry, const QString& words)
{
    const Wanted wanted(words);
    ShowLibraryDocument(entry);
}

void OpenCaption(const Choosing& choose, int photo, const QString& words)
{
    choose();
    StepToPhoto(photo);
    state.ErrorCode = u"ER012"_s; // as a step reports it
    OnError(
        [&] {
            ShowPhotoDetails();
            MarkInDetails(words);
        },
        ReportError);
}

void OpenNote(const Choosing& choose, int photo, const QString& words)
{
    choose();
    StepToPhoto(photo);
    Form1->cmdStats.Click.Fire();
    if (Form1->rtbDetails.Visible())
        MarkInDetails(words);
}

/// The player opens modally, so its option is chosen from inside its loop.
void OpenMovieOf(int option)
{
    const auto choose = [option] {
        if (!frmMovie.IsLoaded() || !frmMovie->Visible())
            return;
        frmMovie->optMovie(option).SetValue(true);
        frmMovie->optMovie(option).Click.Fire();
    };
    QMetaObject::invokeMethod(&*Form1, choose, Qt::QueuedConnection);
    Form1->mnuMovies.Click.Fire();
}

void OpenSoundOf(int button)
{
    Form1->mnuSound.Click.Fire();
    Form1->SSCommand2(button).Click.Fire();
}

} // namespace torvik
