#include "documents/topic_menus.h"

#include "browser/browse_from_start.h"
#include "browser/select_year.h"
#include "documents/bind_documents.h"
#include "program/program_state.h"
#include "ui/forms/screen.h"
#include "windows/main_window.h"

#include <span>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

struct IndexedTitle {
    int Index;
    const char* Title;
};

constexpr IndexedTitle artTitles[] = {
    {1, "Lemuel Ostrand Art Print "},
    {2, "National Torvik Museum Print "},
    {3, "Arlen Mercer Art Print "},
};

constexpr IndexedTitle stuffTitles[] = {
    {1, "Danbury Mint Die Cast Models "},
    {3, "Franklin Mint Die Cast Models "},
    {5, "Torvik Metal Signs "},
    {7, "Torvik Postage Stamps "},
};

constexpr IndexedTitle specialtyTitles[] = {
    {0, "The Classic Harwell "}, {1, "Early Torvik Prototypes "}, {2, "Torvik Kestra I "},
    {3, "Torvik Kestra III "},   {4, "Torvik Super Stallion "},
};

void SetTitle(std::span<const IndexedTitle> titles, int index)
{
    for (const IndexedTitle& entry : titles) {
        if (entry.Index == index)
            Form1->panYear.SetCaption(QString::fromLatin1(entry.Title));
    }
}

void ShowTopicWithoutPhotos(const QString& title)
{
    Form1->panYear.SetCaption(title);
    ShowSpecialTopic();
    Form1->Image4.Clear();
}

} // namespace

void ShowArtTopic(int index)
{
    SetTitle(artTitles, index);
    ShowSpecialTopic();
}

void ShowStuffTopic(int index)
{
    Screen.SetMousePointer(MousePointer::Hourglass);
    Form1->Image4.Clear();
    SetTitle(stuffTitles, index);
    ShowSpecialTopic();
}

/// Unlike the other topics these leave the document buttons as the browser set them.
void ShowSpecialtyTopic(int index)
{
    Screen.SetMousePointer(MousePointer::Hourglass);
    Form1->Image4.Clear();
    SetTitle(specialtyTitles, index);
    SelectYear();
    BrowseFromStart();
    Screen.SetMousePointer(MousePointer::Default);
    state.CurrentYearButton = 0;
    Form1->cmdYR(1).SetEnabled(true);
    Form1->cmdYR(1).SetFocus();
}

void ShowCalendars()
{
    ShowTopicWithoutPhotos(u"Torvik Calendars "_s);
}

void ShowCollectorPlates()
{
    ShowTopicWithoutPhotos(u"Franklin Mint Collector Plates "_s);
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
