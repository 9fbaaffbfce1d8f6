#include "ui/printer.h"

#include "platform/failure.h"
#include "platform/print_jobs.h"
#include "ui/application.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QLocale>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

namespace torvik {

namespace {

constexpr double twipsPerInch = 1440;
constexpr int fileResolution = 600; // pixels to the inch
constexpr double fileOffset = 18;   // points: a border that any printer leaves, a quarter of an inch
constexpr double lineFontSize = 10; // points

QPageSize UsualPaper()
{
    const bool american = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return QPageSize(american ? QPageSize::Letter : QPageSize::A4);
}

QFont LineFont()
{
    QFont font;
    font.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("Arial"), QStringLiteral("Helvetica"),
                      QStringLiteral("DejaVu Sans")});
    font.setPointSizeF(lineFontSize);
    return font;
}

/// A job that is open when the program ends goes out as it is.
void EndOpenJob()
{
    ResumeNext([] { Printer.EndDoc(); });
}

} // namespace

/// A printer that prints, and where it stands on the page. Lengths are the printer's pixels.
struct PrinterObject::Job {
    QPrinter Device;
    QPainter Painter;
    QMarginsF Offsets;
    double LineTop = 0;

    explicit Job(const QPrinterInfo& printer) : Device(printer, QPrinter::HighResolution) {}

    explicit Job(const QString& file) : Device(QPrinter::HighResolution)
    {
        Device.setOutputFormat(QPrinter::PdfFormat);
        Device.setOutputFileName(file);
        Device.setResolution(fileResolution);
        Device.setPageSize(UsualPaper());
    }

    bool Begin()
    {
        Device.setDocName(applicationTitle);
        Device.setCreator(applicationTitle);
        Device.setFullPage(true);
        const bool toFile = Device.outputFormat() == QPrinter::PdfFormat;
        const double pixelsPerPoint = Device.resolution() / 72.0;
        const QMarginsF border = toFile ? QMarginsF(fileOffset, fileOffset, fileOffset, fileOffset)
                                        : Device.pageLayout().minimumMargins();
        Offsets = border * pixelsPerPoint;
        if (!Painter.begin(&Device))
            return false;
        Painter.translate(Offsets.left(), Offsets.top());
        Painter.setFont(LineFont());
        return true;
    }

    bool End()
    {
        const bool sent = Painter.end() && Device.printerState() != QPrinter::Error;
        return sent &&
               (Device.outputFormat() != QPrinter::PdfFormat || IsWholeJobFile(Device.outputFileName()));
    }

    QSizeF Paper() const { return Device.paperRect(QPrinter::DevicePixel).size(); }
};

PrinterObject::PrinterObject() = default;
PrinterObject::~PrinterObject() = default;

void PrinterObject::PrintTo(const QString& hostFolder)
{
    folder_ = hostFolder;
}

PrinterObject::Job& PrinterObject::OpenJob()
{
    if (job_ != nullptr)
        return *job_;
    static const bool watchesTheEnd = [] {
        qAddPostRoutine(EndOpenJob);
        return true;
    }();
    Q_UNUSED(watchesTheEnd)

    const QPrinterInfo printer = folder_.isEmpty() ? QPrinterInfo::defaultPrinter() : QPrinterInfo();
    if (!printer.isNull()) {
        job_ = std::make_unique<Job>(printer);
    } else {
        QString file;
        if (ResumeNext([&] { file = NextJobFile(folder_.isEmpty() ? DocumentsFolder() : folder_); }) != 0)
            Fail(failure::printerError);
        job_ = std::make_unique<Job>(file);
    }
    if (!job_->Begin())
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
    Job& job = OpenJob();
    const QFontMetricsF metrics(job.Painter.font(), &job.Device);
    job.Painter.drawText(QPointF(0, job.LineTop + metrics.ascent()), text);
    job.LineTop += metrics.lineSpacing();
}

void PrinterObject::NewPage()
{
    Job& job = OpenJob();
    if (!job.Device.newPage())
        FailJob();
    job.LineTop = 0;
}

void PrinterObject::EndDoc()
{
    if (job_ != nullptr && !job_->End())
        FailJob();
    job_.reset();
}

double PrinterObject::TwipsToPixel()
{
    return twipsPerInch / OpenJob().Device.resolution();
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
    const Job& job = OpenJob();
    return (job.Paper().width() - job.Offsets.left() - job.Offsets.right()) * TwipsToPixel();
}

double PrinterObject::ScaleHeight()
{
    const Job& job = OpenJob();
    return (job.Paper().height() - job.Offsets.top() - job.Offsets.bottom()) * TwipsToPixel();
}

double PrinterObject::PhysicalOffsetX()
{
    return OpenJob().Offsets.left();
}

double PrinterObject::PhysicalOffsetY()
{
    return OpenJob().Offsets.top();
}

QPainter& PrinterObject::Painter()
{
    return OpenJob().Painter;
}

} // namespace torvik
