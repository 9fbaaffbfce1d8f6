#include "ui/printer/print_job.h"

#include "platform/system/print_jobs.h"
#include "ui/forms/program_title.h"

#include <QFontMetricsF>
#include <QPageLayout>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>

#include <utility>

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
{
    auto printer =
        std::make_unique<QPrinter>(QPrinterInfo::printerInfo(setup.name), QPrinter::HighResolution);
    printer->setDocName(applicationTitle);
    printer->setCreator(applicationTitle);
    printer_ = printer.get();
    device_ = std::move(printer);
    TakePaper(setup);
    printer_->setFullPage(true);
    offsets_ = device_->pageLayout().minimumMargins() * PixelsPerPoint();
}

PrintJob::PrintJob(const PrinterSetup& setup, const QString& hostFile) : file_(hostFile)
{
    auto writer = std::make_unique<QPdfWriter>(UnfinishedJobFile(file_));
    writer->setTitle(applicationTitle);
    writer->setCreator(applicationTitle);
    writer->setResolution(fileResolution);
    device_ = std::move(writer);
    TakePaper(setup);
    device_->setPageMargins(QMarginsF());
    offsets_ = QMarginsF(fileOffset, fileOffset, fileOffset, fileOffset) * PixelsPerPoint();
}

PrintJob::~PrintJob()
{
    if (!painter_.isActive())
        return;
    if (printer_ != nullptr)
        printer_->abort();
    painter_.end();
    if (!file_.isEmpty())
        DropJobFile(file_);
}

void PrintJob::TakePaper(const PrinterSetup& setup)
{
    device_->setPageSize(setup.paper);
    device_->setPageOrientation(setup.orientation);
}

double PrintJob::PixelsPerPoint() const
{
    return Resolution() / 72.0;
}

bool PrintJob::Begin()
{
    if (!painter_.begin(device_.get()))
        return false;
    painter_.translate(offsets_.left(), offsets_.top());
    painter_.setFont(LineFont());
    return true;
}

bool PrintJob::End()
{
    const bool sent = painter_.end() && (printer_ == nullptr || printer_->printerState() != QPrinter::Error);
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
    return device_->newPage();
}

void PrintJob::Print(const QString& text)
{
    const QFontMetricsF metrics(painter_.font(), device_.get());
    if (!text.trimmed().isEmpty()) // blanks leave no mark, but a file would carry their font
        painter_.drawText(QPointF(0, lineTop_ + metrics.ascent()), text);
    lineTop_ += metrics.lineSpacing();
}

} // namespace torvik
