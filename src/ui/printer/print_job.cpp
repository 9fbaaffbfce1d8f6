#include "ui/printer/print_job.h"

#include "platform/system/print_jobs.h"
#include "ui/forms/program_title.h"

#include <QFontMetricsF>
#include <QPageLayout>
#include <QPrinterInfo>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr int fileResolution = 600; // pixels to the inch
constexpr double fileOffset = 18;   // points: a border that any printer leaves, a quarter of an inch
constexpr double lineFontSize = 10; // points

QFont LineFont()
{
    QFont font;
    font.setFamilies({u"Liberation Sans"_s, u"Arial"_s, u"Helvetica"_s, u"DejaVu Sans"_s});
    font.setPointSizeF(lineFontSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace

PrintJob::PrintJob(const PrinterSetup& setup)
    : device_(QPrinterInfo::printerInfo(setup.name), QPrinter::HighResolution)
{
    TakePaper(setup);
}

PrintJob::PrintJob(const PrinterSetup& setup, const QString& hostFile)
    : device_(QPrinter::HighResolution), file_(hostFile)
{
    device_.setOutputFormat(QPrinter::PdfFormat);
    device_.setOutputFileName(UnfinishedJobFile(file_));
    device_.setResolution(fileResolution);
    TakePaper(setup);
}

PrintJob::~PrintJob()
{
    if (!painter_.isActive())
        return;
    device_.abort();
    painter_.end();
    if (!file_.isEmpty())
        DropJobFile(file_);
}

void PrintJob::TakePaper(const PrinterSetup& setup)
{
    device_.setPageSize(setup.paper);
    device_.setPageOrientation(setup.orientation);
}

bool PrintJob::Begin()
{
    device_.setDocName(applicationTitle);
    device_.setCreator(applicationTitle);
    device_.setFullPage(true);
    const double pixelsPerPoint = device_.resolution() / 72.0;
    offsets_ = (file_.isEmpty() ? device_.pageLayout().minimumMargins()
                                : QMarginsF(fileOffset, fileOffset, fileOffset, fileOffset)) *
               pixelsPerPoint;
    if (!painter_.begin(&device_))
        return false;
    painter_.translate(offsets_.left(), offsets_.top());
    painter_.setFont(LineFont());
    return true;
}

bool PrintJob::End()
{
    const bool sent = painter_.end() && device_.printerState() != QPrinter::Error;
    if (file_.isEmpty())
        return sent;
    if (sent && KeepJobFile(file_))
        return true;
    DropJobFile(file_);
    return false;
}

bool PrintJob::NewPage()
{
    lineTop_ = 0;
    return device_.newPage();
}

void PrintJob::Print(const QString& text)
{
    const QFontMetricsF metrics(painter_.font(), &device_);
    if (!text.trimmed().isEmpty()) // blanks leave no mark, but a file would carry their font
        painter_.drawText(QPointF(0, lineTop_ + metrics.ascent()), text);
    lineTop_ += metrics.lineSpacing();
}

} // namespace torvik
