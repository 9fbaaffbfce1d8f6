#include "program/error_catalogue.h"

#include "program/program_state.h"
#include "runtime/text.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

struct CodeText {
    const char* code;
    const char* text;
};

constexpr const char* noDisc = " Unable to detect the Torvik Vollandry CDROM.";
constexpr const char* noTextFile = " Unable to load the text file.";
constexpr const char* noSlide = " Unable to load Slide Show photo.";

constexpr CodeText catalogue[] = {
    {"ER001", noDisc},
    {"ER002", " Unable to load  Description  for year selected."},
    {"ER003", " Unable to load Intel Video driver install software."},
    {"ER004", noTextFile},
    {"ER005", noTextFile},
    {"ER006", noTextFile},
    {"ER007", noTextFile},
    {"ER008", noTextFile},
    {"ER009", noTextFile},
    {"ER010", noTextFile},
    {"ER011", noSlide},
    {"ER012", " Unable to load photo."},
    {"ER013", noSlide},
    {"ER014", noSlide},
    {"ER015", noSlide},
    {"ER016", noSlide},
    {"ER017", noSlide},
    {"ER018", noSlide},
    {"ER020", " Error loading text file."},
    {"ER021", " Unable to load  Script  for year selected."},
    {"ER022", " Unable to load  Emblem  for year selected."},
    {"ER023", " Torvik photo not found for year selected."},
    {"ER024", " Torvik clip art not found for year selected."},
    {"ER033", " Unable to load 'Postage Stamps' text file."},
    {"ER034", " You must select both a Start Year and an End Year. "},
    {"ER035", " Torvik clip art not found for year selected."},
    {"ER036", " 'TO' year may not be earlier than 'FROM' year."},
    {"ER037", " Unable to load the photo array."},
    {"ER038", " Unable to load the 'Sound Effects' file."},
    {"ER039", noSlide},
    {"ER040", " Unable to load file for printing."},
    {"ER041", " Unable to load  Rear Emblem for year selected."},
    {"ER042", " Unable to load  Side Emblem for year selected."},
    {"ER043", "  "},
    {"ER044", " Unable to load Torvik Ad."},
    {"ER045", " Unable to load Torvik Movie."},
    {"ER046", " "},
    {"ER047", " "},
    {"ER048", " "},
    {"ER049", " Unable to find Screen Saver."},
    {"ER050", " Unable to load 'Identification Guide' text file."},
    {"ER051", " "},
    {"ER052", " Unable to load 'Install Screen Saver Help' text file."},
    {"ER053", " Unable to load 'Contributions' text file."},
    {"ER054", "       "},
    {"ER055", noDisc},
    {"ER056", " Unable to load 'What's New' text file."},
};

/// The first five characters of the path are dropped, whatever they are.
QString SoundFileText()
{
    state.LoopIndex = static_cast<int>(state.SoundFile.size()) - 5;
    return u" Unable to load sound file: "_s + Mid(state.SoundFile, 6, state.LoopIndex);
}

QString TextOf(const QString& code)
{
    if (code >= u"ER025"_s && code <= u"ER031"_s)
        return QString::fromLatin1(noTextFile);
    if (code == u"ER032"_s)
        return SoundFileText();
    for (const CodeText& entry : catalogue) {
        if (code == QLatin1String(entry.code))
            return QString::fromLatin1(entry.text);
    }
    return {};
}

} // namespace

CatalogueEntry CatalogueEntryOf(const QString& code)
{
    CatalogueEntry entry;
    entry.text = TextOf(code);
    entry.retry = code == u"ER001"_s || code == u"ER037"_s || code == u"ER055"_s;
    entry.discHint = code != u"ER034"_s && code != u"ER036"_s;
    return entry;
}

} // namespace torvik
