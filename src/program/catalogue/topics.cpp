#include "program/catalogue/topics.h"

#include "runtime/text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

// Every title is spelled here and nowhere else.
constexpr Topic topics[] = {
    {.Title = "Early Torvik Prototypes ",
     .Code = "PT",
     .Entry = {TopicMenu::Specialty, 1},
     .Description = "\\richtext\\ptdesc.rtf",
     .DescriptionEnding = "Description ",
     .Notes = {"pt00", "pt0"},
     .Emblem = "\\emblems\\EMBpt.jpg",
     .Script = "\\SCRIPTS\\SCRIpt.jpg",
     .HasStatistics = true,
     .RenamesStatistics = true,
     // The list of titles that drop the overlays has always named this one without its first word.
     .KeepsOverlays = true},
    {.Title = "The Classic Harwell ",
     .Code = "SB",
     .Entry = {TopicMenu::Specialty, 0},
     .Statistics = "\\richtext\\sbstats.rtf",
     .Colors = "\\RichText\\sbcolors.rtf",
     .Options = "\\RichText\\sbopts.rtf",
     .Emblem = "\\emblems\\embsb.jpg",
     .Script = "\\SCRIPTS\\SCRISB.jpg",
     .RenamesStatistics = true,
     .KeepsYearButtons = true,
     .KeepsOverlays = true},
    {.Title = "Torvik Kestra I ",
     .Code = "M1",
     .Entry = {TopicMenu::Specialty, 2},
     .Statistics = "\\richtext\\m1stats.rtf", // never reached, since there are notes
     .Notes = {"m100", "m10"},
     .HasStatistics = true,
     .RenamesStatistics = true},
    {.Title = "Torvik Kestra III ",
     .Code = "M3",
     .Entry = {TopicMenu::Specialty, 3},
     .Statistics = "\\richtext\\m3stats.rtf",
     .HasDescription = true,
     .HasStatistics = true,
     .RenamesStatistics = true},
    {.Title = "Torvik Super Stallion ",
     .Code = "MS",
     .Entry = {TopicMenu::Specialty, 4},
     .Statistics = "\\richtext\\msstats.rtf",
     .HasDescription = true,
     .HasStatistics = true,
     .RenamesStatistics = true},
    {.Title = "Torvik Postage Stamps ",
     .Code = "ZZ",
     .Entry = {TopicMenu::Stuff, 7},
     .Description = "\\richtext\\stamps.rtf",
     .Notes = {"zz00", "zz0"},
     .HasDescription = true,
     .RenamesStatistics = true},
    {.Title = "Torvik Metal Signs ",
     .Code = "VM",
     .Entry = {TopicMenu::Stuff, 5},
     .Description = "\\richtext\\desperat.rtf",
     .Notes = {"vms0", "vms0"},
     .HasDescription = true,
     .HasStatistics = true},
    {.Title = "Danbury Mint Die Cast Models ",
     .Code = "TD",
     .Entry = {TopicMenu::Stuff, 1},
     .Description = "\\richtext\\danbury.rtf",
     .Notes = {"tdm00", "tdm0"},
     .HasDescription = true,
     .HasStatistics = true,
     .RenamesStatistics = true},
    {.Title = "Franklin Mint Collector Knives ",
     .Code = "TE",
     .Description = "\\richtext\\knives.rtf",
     .Notes = {"tek00", "tek0"},
     .HasDescription = true},
    {.Title = "Franklin Mint Die Cast Models ",
     .Code = "TF",
     .Entry = {TopicMenu::Stuff, 3},
     .Description = "\\richtext\\franklin.rtf",
     .Notes = {"tfm00", "tfm0"},
     .HasDescription = true,
     .HasStatistics = true},
    // The notes of these two have each other's letters.
    {.Title = "Torvik Cookies ", .Code = "VC", .Notes = {"usa00", "usa00"}},
    {.Title = "The Torvik Monopoly Game ",
     .Code = "US",
     .Description = "\\richtext\\monopoly.rtf",
     .Notes = {"vck00", "vck00"},
     .HasDescription = true,
     .IsNamedInSlideShow = false},
    {.Title = "Torvik Calendars ",
     .Code = "TC",
     .Description = "\\richtext\\carstuff.rtf",
     .IsBrowsed = false,
     .IsNamedInSlideShow = false},
    {.Title = "Franklin Mint Collector Plates ",
     .Code = "TP",
     .Description = "\\richtext\\plates.rtf",
     .IsBrowsed = false,
     .IsNamedInSlideShow = false},
    {.Title = "Lemuel Ostrand Art Print ",
     .Code = "GB",
     .Entry = {TopicMenu::Artwork, 1},
     .IsBrowsed = false,
     .IsNamedInSlideShow = false},
    {.Title = "National Torvik Museum Print ",
     .Code = "GH",
     .Entry = {TopicMenu::Artwork, 2},
     .IsBrowsed = false,
     .IsNamedInSlideShow = false},
    {.Title = "Arlen Mercer Art Print ",
     .Code = "GL",
     .Entry = {TopicMenu::Artwork, 3},
     .Notes = {"glsj0", "glsj0"},
     .IsBrowsed = false,
     .IsNamedInSlideShow = false},
    // Reached by the slide show alone.
    {.Title = "The Tarrant Torvik ", .Code = "CW", .IsBrowsed = false},
};

template <typename Test>
const Topic* FirstTopic(Test&& test)
{
    const auto* const found = std::find_if(std::begin(topics), std::end(topics), std::forward<Test>(test));
    return found != std::end(topics) ? found : nullptr;
}

} // namespace

std::span<const Topic> Topics()
{
    return topics;
}

const Topic* TopicOf(const QString& title)
{
    return FirstTopic([&](const Topic& topic) { return title == QLatin1String(topic.Title); });
}

const Topic* BrowsedTopicOf(const QString& title)
{
    const Topic* topic = TopicOf(title);
    return topic != nullptr && topic->IsBrowsed ? topic : nullptr;
}

const Topic* TopicOfCode(const QString& code)
{
    return FirstTopic([&](const Topic& topic) { return code == QLatin1String(topic.Code); });
}

const Topic* TopicOfEntry(TopicMenu menu, int index)
{
    return FirstTopic(
        [&](const Topic& topic) { return topic.Entry.Menu == menu && topic.Entry.Index == index; });
}

QString TitleOfCode(const QString& code)
{
    const Topic* topic = TopicOfCode(code);
    if (topic != nullptr && topic->IsNamedInSlideShow)
        return QString::fromLatin1(topic->Title);
    if (code == u"A0"_s)
        return u"2000"_s;
    if (code == u"A1"_s)
        return u"2001"_s;
    return u"19"_s + code + u" "_s;
}

QString CodeOfTitle(const QString& title)
{
    if (const Topic* topic = BrowsedTopicOf(title))
        return QString::fromLatin1(topic->Code);
    const QString digits = Mid(title, 3, 2);
    if (digits == u"00"_s)
        return u"A0"_s;
    if (digits == u"01"_s)
        return u"A1"_s;
    return digits;
}

QString YearOfButton(int index)
{
    return index < 34 ? u"19%1"_s.arg(index + 66) : u"200%1"_s.arg(index - 34);
}

} // namespace torvik
