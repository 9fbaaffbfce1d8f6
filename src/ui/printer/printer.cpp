#include "ui/printer/printer.h"

#include "platform/system/print_jobs.h"
#include "platform/system/print_queue.h"
#include "runtime/failure.h"
#include "runtime/logging.h"
#include "ui/forms/units.h"
#include "ui/pictures/picture.h"
#include "ui/printer/print_job.h"
#include "ui/printer/printer_dialog.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPrinterInfo>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr double twipsPerInch = 1440;

QPageSize UsualPaper()
{
    const bool american = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return QPageSize(american ? QPageSize::Letter : QPageSize::A4);
}

QList<QPageSize> PapersOfFiles()
{
    return {QPageSize(QPageSize::A4), QPageSize(QPageSize::Letter), QPageSize(QPageSize::Legal),
            QPageSize(QPageSize::A3), QPageSize(QPageSize::A5)};
}

QList<QPageSize> PapersOf(const QPrinterInfo& printer)
{
    const QList<QPageSize> papers = printer.supportedPageSizes();
    return papers.isEmpty() ? PapersOfFiles() : papers;
}

/// A job that is open when the program ends goes out as it is.
void EndOpenJob()
{
    ResumeNext([] { Printer.EndDoc(); });
}

} // namespace

PrinterObject::PrinterObject() = default;
PrinterObject::~PrinterObject() = default;

void PrinterObject::PrintTo(const QString& hostFolder)
{
    folder_ = hostFolder;
}

QString PrinterObject::FileFolder() const
{
    return folder_.isEmpty() ? DocumentsFolder() : folder_;
}

PrinterSetup PrinterObject::Setup() const
{
    PrinterSetup setup = chosen_.value_or(PrinterSetup());
    if (!folder_.isEmpty())
        setup.name.clear();
    else if (!chosen_)
        setup.name = QPrinterInfo::defaultPrinterName();
    if (!setup.paper.isValid() && !setup.name.isEmpty())
        setup.paper = QPrinterInfo::printerInfo(setup.name).defaultPageSize();
    if (!setup.paper.isValid())
        setup.paper = UsualPaper();
    return setup;
}

QList<PrinterOption> PrinterObject::Choices() const
{
    QList<PrinterOption> choices;
    const QStringList names = folder_.isEmpty() ? QPrinterInfo::availablePrinterNames() : QStringList();
    for (const QString& name : names)
        choices.append({name, name, PapersOf(QPrinterInfo::printerInfo(name))});
    choices.append({QString(), u"PDF files in "_s + FileFolder(), PapersOfFiles()});
    return choices;
}

std::unique_ptr<PrintJob> PrinterObject::MakeJob() const
{
    const PrinterSetup setup = Setup();
    if (setup.name.isEmpty()) {
        const QString file = NextJobFile(FileFolder());
        qCDebug(logPrint, "a job goes to the file %s", qUtf8Printable(file));
        return std::make_unique<PrintJob>(setup, file);
    }
    const bool isThere = !QPrinterInfo::printerInfo(setup.name).isNull();
    qCDebug(logPrint, "a job is for the printer %s%s", qUtf8Printable(setup.name),
            isThere ? "" : ", which is not there");
    if (!isThere || !TakesJobs(setup.name))
        Fail(failure::printerError);
    return std::make_unique<PrintJob>(setup);
}

PrintJob& PrinterObject::OpenJob()
{
    if (job_ != nullptr)
        return *job_;
    static const bool watchesTheEnd = [] {
        qAddPostRoutine(EndOpenJob);
        return true;
    }();
    Q_UNUSED(watchesTheEnd)

    const int error = ResumeNext([this] { job_ = MakeJob(); });
    if (error != 0 || !job_->Begin())
        FailJob();
    return *job_;
}

void PrinterObject::FailJob()
{
    job_.reset();
    Fail(failure::printerError);
}

void PrinterObject::Print(const QString& text)
{
    OpenJob().Print(text);
}

void PrinterObject::PaintPicture(const Picture& picture, double x, double y)
{
    PrintJob& job = OpenJob();
    const double pixel = TwipsToPixel();
    const QRectF place(QPointF(x, y) / pixel, QSizeF(picture.NaturalSize()) * twipsPerPixel / pixel);
    if (!picture.IsEmpty())
        job.Painter().drawImage(place, picture.Natural());
}

void PrinterObject::NewPage()
{
    if (!OpenJob().NewPage())
        FailJob();
}

void PrinterObject::EndDoc()
{
    if (job_ != nullptr && !job_->End())
        FailJob();
    job_.reset();
}

double PrinterObject::TwipsToPixel()
{
    return twipsPerInch / OpenJob().Resolution();
}

double PrinterObject::Width()
{
    return OpenJob().Paper().width() * TwipsToPixel();
}

double PrinterObject::Height()
{
    return OpenJob().Paper().height() * TwipsToPixel();
}

double PrinterObject::ScaleWidth()
{
    const PrintJob& job = OpenJob();
    return (job.Paper().width() - job.Offsets().left() - job.Offsets().right()) * TwipsToPixel();
}

double PrinterObject::ScaleHeight()
{
    const PrintJob& job = OpenJob();
    return (job.Paper().height() - job.Offsets().top() - job.Offsets().bottom()) * TwipsToPixel();
}

double PrinterObject::PhysicalOffsetX()
{
    return OpenJob().Offsets().left();
}

double PrinterObject::PhysicalOffsetY()
{
    return OpenJob().Offsets().top();
}

QPainter& PrinterObject::Painter()
{
    return OpenJob().Painter();
}

} // namespace torvik
