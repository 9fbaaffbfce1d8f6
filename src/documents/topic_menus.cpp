#include "documents/topic_menus.h"

#include "browser/browse_from_start.h"
#include "browser/select_year.h"
#include "documents/bind_documents.h"
#include "program/catalogue/topics.h"
#include "program/program_state.h"
#include "ui/forms/screen.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// An index without a topic leaves the title as it is.
void SetTitle(TopicMenu menu, int index)
{
    if (const Topic* topic = TopicOfEntry(menu, index))
        Form1->panYear.SetCaption(QString::fromLatin1(topic->title));
}

/// A topic that no menu leads to, by its code.
void ShowTopicWithoutPhotos(const QString& code)
{
    Form1->panYear.SetCaption(QString::fromLatin1(TopicOfCode(code)->title));
    ShowSpecialTopic();
    Form1->Image4.Clear();
}

} // namespace

void ShowArtTopic(int index)
{
    SetTitle(TopicMenu::Artwork, index);
    ShowSpecialTopic();
}

void ShowStuffTopic(int index)
{
    Screen.SetMousePointer(MousePointer::Hourglass);
    Form1->Image4.Clear();
    SetTitle(TopicMenu::Stuff, index);
    ShowSpecialTopic();
}

/// Unlike the other topics these leave the document buttons as the browser set them.
void ShowSpecialtyTopic(int index)
{
    Screen.SetMousePointer(MousePointer::Hourglass);
    Form1->Image4.Clear();
    SetTitle(TopicMenu::Specialty, index);
    SelectYear();
    BrowseFromStart();
    Screen.SetMousePointer(MousePointer::Default);
    state.CurrentYearButton = 0;
    Form1->cmdYR(1).SetEnabled(true);
    Form1->cmdYR(1).SetFocus();
}

void ShowCalendars()
{
    ShowTopicWithoutPhotos(u"TC"_s);
}

void ShowCollectorPlates()
{
    ShowTopicWithoutPhotos(u"TP"_s);
}

void BindTopicMenus()
{
    Form1.Bind([](Form1Controls& form) {
        form.mnuArt.Each([](int index, Menu& entry) { entry.Click = [index] { ShowArtTopic(index); }; });
        form.mnuStuff.Each([](int index, Menu& entry) { entry.Click = [index] { ShowStuffTopic(index); }; });
        form.mnuSpecialty.Each(
            [](int index, Menu& entry) { entry.Click = [index] { ShowSpecialtyTopic(index); }; });
    });
}

} // namespace torvik
