#include "program/title_code.h"

#include "program/program_state.h"
#include "windows/main_window.h"

namespace torvik {

namespace {

struct TitleCode {
    const char* Title;
    const char* Code;
};

constexpr TitleCode titleCodes[] = {
    {"Torvik Cookies ", "VC"},
    {"The Torvik Monopoly Game ", "US"},
    {"Torvik Postage Stamps ", "ZZ"},
    {"Torvik Calendars ", "TC"},
    {"Franklin Mint Collector Knives ", "TE"},
    {"Franklin Mint Collector Plates ", "TP"},
    {"Danbury Mint Die Cast Models ", "TD"},
    {"Franklin Mint Die Cast Models ", "TF"},
    {"Torvik Metal Signs ", "VM"},
    {"Early Torvik Prototypes ", "PT"},
    {"Torvik Kestra I ", "M1"},
    {"Torvik Kestra III ", "M3"},
    {"Torvik Super Stallion ", "MS"},
    {"The Classic Harwell ", "SB"},
    {"Lemuel Ostrand Art Print ", "GB"},
    {"National Torvik Museum Print ", "GH"},
    {"Arlen Mercer Art Print ", "GL"},
};

} // namespace

void TakeCodeOfTitle()
{
    for (const TitleCode& entry : titleCodes) {
        if (Form1->panYear.Caption() == QLatin1String(entry.Title))
            state.YearCode = QString::fromLatin1(entry.Code);
    }
}

} // namespace torvik
