#include "program/catalogue/topics.h"

#include "runtime/text.h"
#include "windows/main_window.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

// Every title is spelled here and nowhere else.
constexpr Topic topics[] = {
    {.title = "Early Torvik Prototypes ",
     .code = "PT",
     .entry = {TopicMenu::Specialty, 1},
     .description = "\\richtext\\ptdesc.rtf",
     .descriptionEnding = "Description ",
     .notes = {"pt00", "pt0"},
     .emblem = "\\emblems\\EMBpt.jpg",
     .script = "\\SCRIPTS\\SCRIpt.jpg",
     .hasStatistics = true,
     .renamesStatistics = true,
     // The list of titles that drop the overlays has always named this one without its first word.
     .keepsOverlays = true},
    {.title = "The Classic Harwell ",
     .code = "SB",
     .entry = {TopicMenu::Specialty, 0},
     .statistics = "\\richtext\\sbstats.rtf",
     .colors = "\\RichText\\sbcolors.rtf",
     .options = "\\RichText\\sbopts.rtf",
     .emblem = "\\emblems\\embsb.jpg",
     .script = "\\SCRIPTS\\SCRISB.jpg",
     .renamesStatistics = true,
     .keepsYearButtons = true,
     .keepsOverlays = true},
    {.title = "Torvik Kestra I ",
     .code = "M1",
     .entry = {TopicMenu::Specialty, 2},
     .statistics = "\\richtext\\m1stats.rtf", // never reached, since there are notes
     .notes = {"m100", "m10"},
     .hasStatistics = true,
     .renamesStatistics = true},
    {.title = "Torvik Kestra III ",
     .code = "M3",
     .entry = {TopicMenu::Specialty, 3},
     .statistics = "\\richtext\\m3stats.rtf",
     .hasDescription = true,
     .hasStatistics = true,
     .renamesStatistics = true},
    {.title = "Torvik Super Stallion ",
     .code = "MS",
     .entry = {TopicMenu::Specialty, 4},
     .statistics = "\\richtext\\msstats.rtf",
     .hasDescription = true,
     .hasStatistics = true,
     .renamesStatistics = true},
    {.title = "Torvik Postage Stamps ",
     .code = "ZZ",
     .entry = {TopicMenu::Stuff, 7},
     .description = "\\richtext\\stamps.rtf",
     .notes = {"zz00", "zz0"},
     .hasDescription = true,
     .renamesStatistics = true},
    {.title = "Torvik Metal Signs ",
     .code = "VM",
     .entry = {TopicMenu::Stuff, 5},
     .description = "\\richtext\\desperat.rtf",
     .notes = {"vms0", "vms0"},
     .hasDescription = true,
     .hasStatistics = true},
    {.title = "Danbury Mint Die Cast Models ",
     .code = "TD",
     .entry = {TopicMenu::Stuff, 1},
     .description = "\\richtext\\danbury.rtf",
     .notes = {"tdm00", "tdm0"},
     .hasDescription = true,
     .hasStatistics = true,
     .renamesStatistics = true},
    {.title = "Franklin Mint Collector Knives ",
     .code = "TE",
     .description = "\\richtext\\knives.rtf",
     .notes = {"tek00", "tek0"},
     .hasDescription = true},
    {.title = "Franklin Mint Die Cast Models ",
     .code = "TF",
     .entry = {TopicMenu::Stuff, 3},
     .description = "\\richtext\\franklin.rtf",
     .notes = {"tfm00", "tfm0"},
     .hasDescription = true,
     .hasStatistics = true},
    // The notes of these two have each other's letters.
    {.title = "Torvik Cookies ", .code = "VC", .notes = {"usa00", "usa00"}},
    {.title = "The Torvik Monopoly Game ",
     .code = "US",
     .description = "\\richtext\\monopoly.rtf",
     .notes = {"vck00", "vck00"},
     .hasDescription = true,
     .isNamedInSlideShow = false},
    {.title = "Torvik Calendars ",
     .code = "TC",
     .description = "\\richtext\\carstuff.rtf",
     .isBrowsed = false,
     .isNamedInSlideShow = false},
    {.title = "Franklin Mint Collector Plates ",
     .code = "TP",
     .description = "\\richtext\\plates.rtf",
     .isBrowsed = false,
     .isNamedInSlideShow = false},
    {.title = "Lemuel Ostrand Art Print ",
     .code = "GB",
     .entry = {TopicMenu::Artwork, 1},
     .isBrowsed = false,
     .isNamedInSlideShow = false},
    {.title = "National Torvik Museum Print ",
     .code = "GH",
     .entry = {TopicMenu::Artwork, 2},
     .isBrowsed = false,
     .isNamedInSlideShow = false},
    {.title = "Arlen Mercer Art Print ",
     .code = "GL",
     .entry = {TopicMenu::Artwork, 3},
     .notes = {"glsj0", "glsj0"},
     .isBrowsed = false,
     .isNamedInSlideShow = false},
    // Reached by the slide show alone.
    {.title = "The Tarrant Torvik ", .code = "CW", .isBrowsed = false},
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
    return FirstTopic([&](const Topic& topic) { return title == QLatin1String(topic.title); });
}

const Topic* BrowsedTopicOf(const QString& title)
{
    const Topic* topic = TopicOf(title);
    return topic != nullptr && topic->isBrowsed ? topic : nullptr;
}

const Topic* TopicOfCode(const QString& code)
{
    return FirstTopic([&](const Topic& topic) { return code == QLatin1String(topic.code); });
}

const Topic* TopicOfEntry(TopicMenu menu, int index)
{
    return FirstTopic(
        [&](const Topic& topic) { return topic.entry.menu == menu && topic.entry.index == index; });
}

QString TitleOfCode(const QString& code)
{
    const Topic* topic = TopicOfCode(code);
    if (topic != nullptr && topic->isNamedInSlideShow)
        return QString::fromLatin1(topic->title);
    if (code == code2000)
        return u"2000"_s;
    if (code == code2001)
        return u"2001"_s;
    return u"19"_s + code + u" "_s;
}

QString CodeOfTitle(const QString& title)
{
    if (const Topic* topic = BrowsedTopicOf(title))
        return QString::fromLatin1(topic->code);
    QString digits = Mid(title, 3, 2);
    if (digits == u"00"_s)
        return code2000;
    if (digits == u"01"_s)
        return code2001;
    return digits;
}

QString YearOfButton(int index)
{
    return QString::number(1900 + yearBeforeFirst + index);
}

} // namespace torvik
