#include "program/topic_catalogue.h"

#include "program/program_state.h"
#include "runtime/text.h"
#include "windows/slide_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

// The prototypes keep open overlays as a year does: the list that drops them has always known that title
// without its first word.
constexpr Topic catalogue[] = {
    // title, code, renames statistics, description, statistics, drops overlays
    {"Early Torvik Prototypes ", "PT", true, false, true, false},
    {"The Classic Harwell ", "SB", true, false, false, false},
    {"Torvik Kestra I ", "M1", true, false, true, true},
    {"Torvik Kestra III ", "M3", true, true, true, true},
    {"Torvik Super Stallion ", "MS", true, true, true, true},
    {"Torvik Postage Stamps ", "ZZ", true, true, false, true},
    {"Torvik Metal Signs ", "VM", false, true, true, true},
    {"Danbury Mint Die Cast Models ", "TD", true, true, true, true},
    {"Franklin Mint Collector Knives ", "TE", false, true, false, true},
    {"Franklin Mint Die Cast Models ", "TF", false, true, true, true},
    {"Torvik Cookies ", "VC", false, false, false, true},
    {"The Torvik Monopoly Game ", "US", false, true, false, true},
};

struct PrefixCaption {
    const char* Prefix;
    const char* Caption;
};

constexpr PrefixCaption slideCaptions[] = {
    {"CW", "The Tarrant Torvik "},
    {"VC", "Torvik Cookies "},
    {"ZZ", "Torvik Postage Stamps "},
    {"PT", "Early Torvik Prototypes "},
    {"M1", "Torvik Kestra I "},
    {"M3", "Torvik Kestra III "},
    {"MS", "Torvik Super Stallion "},
    {"SB", "The Classic Harwell "},
    {"TD", "Danbury Mint Die Cast Models "},
    {"TE", "Franklin Mint Collector Knives "},
    {"TF", "Franklin Mint Die Cast Models "},
    {"VM", "Torvik Metal Signs "},
    {"A0", "2000"},
    {"A1", "2001"},
};

} // namespace

const Topic* TopicOf(const QString& title)
{
    for (const Topic& topic : catalogue) {
        if (title == QLatin1String(topic.Title))
            return &topic;
    }
    return nullptr;
}

QString SlideCaptionOf(const QString& prefix)
{
    for (const PrefixCaption& entry : slideCaptions) {
        if (prefix == QLatin1String(entry.Prefix))
            return QString::fromLatin1(entry.Caption);
    }
    return u"19"_s + prefix + u" "_s;
}

void SetSlideCaption()
{
    const QString& photo = state.PhotoFiles(state.PhotoIndex);
    frmSlide->panYear.SetCaption(SlideCaptionOf(Mid(photo, state.TorviksPathPos + 9, 2)));
}

} // namespace torvik
