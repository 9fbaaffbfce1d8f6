#include "printing/booklet.h"

#include "printing/rich_text_printing.h"
#include "program/box_title.h"
#include "program/catalogue/booklet.h"
#include "program/catalogue/pictures.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "ui/forms/message_box.h"
#include "ui/forms/screen.h"
#include "ui/printer/printer.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr int margin = 1440; // twips

namespace box {
constexpr int cover = 0;
constexpr int introduction = 1;
constexpr int firstByYear = 2;
constexpr int description = 3;
constexpr int details = 4;
constexpr int lastByYear = 7;
} // namespace box

bool IsTicked(int index)
{
    return Form1->Check1(index).Value();
}

bool WantsYears()
{
    for (state.LoopIndex = box::firstByYear; state.LoopIndex <= box::lastByYear; state.LoopIndex += 1) {
        if (IsTicked(state.LoopIndex))
            return true;
    }
    return false;
}

/// 67 to 99 for the years of the old century, 100 and 101 for those of the new one; 0 for no selection.
int RangeNumber(const QString& year)
{
    if (IsNumeric(year) && ToNumber(year) > 1999)
        return 100 + static_cast<int>(ToNumber(Mid(year, 4, 1)));
    const QString digits = Mid(year, 3);
    return digits.isEmpty() ? 0 : static_cast<int>(ToNumber(digits));
}

/// The job stays open: the first document after the cover continues it.
void PrintCover()
{
    for (const CoverPicture& picture : CoverPictures()) {
        Form1->Picture3.Load(state.DiscRoot + QString::fromLatin1(picture.file));
        Printer.PaintPicture(Form1->Picture3.Picture(), picture.x, picture.y);
        Form1->Picture3.Clear(); // nobody sees it, and a cover may be many megapixels
    }
    Printer.NewPage();
}

void PrintDocument(const QString& file)
{
    state.DocumentFile = state.DiscRoot + file;
    Form1->rtbText.SetFileName(state.DocumentFile);
    PrintRichText(Form1->rtbText, margin, margin, margin, margin);
}

/// The other boxes by year print nothing of their own.
void PrintYear(const QString& prefix)
{
    if (IsTicked(box::description))
        PrintDocument(BookletDescription(prefix));
    if (!IsTicked(box::details))
        return;
    const QStringList details = BookletDetails(prefix);
    for (const QString& file : details)
        PrintDocument(file);
}

void Refuse(const QString& code)
{
    state.ErrorCode = code;
    ReportError();
    Screen.SetMousePointer(MousePointer::Default);
}

/// False when the range is none; the user knows then.
bool PrintYears(int from, int to)
{
    if (from == 0 || to == 0) {
        Refuse(u"ER034"_s);
        return false;
    }
    if (to < from) {
        Refuse(u"ER036"_s);
        return false;
    }
    for (int number = from; number <= to; ++number)
        PrintYear(BookletPrefix(number));
    return true;
}

void SayThatItIsPrinted()
{
    Screen.SetMousePointer(MousePointer::Default);
    state.MessageText = u"Booklet printed!\r\n"_s;
    MsgBox(state.MessageText, msgbox::exclamation, boxTitle);
    Form1->cmdPrint.SetCaption(u"Print Again"_s);
    Form1->cmdOK.SetCaption(u"Exit"_s);
}

void PrintWhatIsTicked(int from, int to)
{
    if (IsTicked(box::cover))
        PrintCover();
    if (IsTicked(box::introduction))
        PrintDocument(BookletIntroduction());
    if (!WantsYears() || PrintYears(from, to))
        SayThatItIsPrinted();
}

} // namespace

void PrintBooklet()
{
    const int from = RangeNumber(Form1->List1(0).Text());
    const int to = RangeNumber(Form1->List1(1).Text());
    Screen.SetMousePointer(MousePointer::Hourglass);
    state.ErrorCode = u"ER040"_s;
    OnError([&] { PrintWhatIsTicked(from, to); },
            [] {
                ReportError();
                Screen.SetMousePointer(MousePointer::Default);
            });
}

} // namespace torvik
