#include "printing/bind_printing.h"
#include "program/program_state.h"
#include "ui/forms/message_box.h"
#include "ui/printer/printer.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

const QString emptyLine = u" "_s;
const QString indent = u"            "_s;

constexpr int linesAbove = 8;
constexpr double photoX = 1460; // twips, like photoY
constexpr double photoY = 3000;

void mnuPrintPhoto_Click()
{
    state.MessageResult =
        MsgBox(u"Would you like to print this photograph?"_s, msgbox::question | msgbox::okCancel);
    if (state.MessageResult != msgbox::answerOk)
        return;
    for (state.LoopIndex = 1; state.LoopIndex <= linesAbove; state.LoopIndex += 1)
        Printer.Print(emptyLine);
    Printer.Print(indent + u"The Torvik Vollandry 2001"_s);
    Printer.Print(emptyLine);
    Printer.Print(indent + Form1->panYear.Caption());
    Printer.Print(emptyLine);
    Printer.PaintPicture(Form1->Image4.Picture(), photoX, photoY);
    Printer.EndDoc();
}

void mnuPrint_Click()
{
    Form1->dlgPrint.SetFlags(commonDialog::printSetup);
    Form1->dlgPrint.SetAction(commonDialog::showPrinter);
}

} // namespace

void BindPrintPhotoAndSetup()
{
    Form1.Bind([](Form1Controls& form) {
        form.mnuPrintPhoto.Click = mnuPrintPhoto_Click;
        form.mnuPrint.Click = mnuPrint_Click;
    });
}

} // namespace torvik
