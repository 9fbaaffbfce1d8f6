#pragma once

#include "ui/printer/printer_setup.h"

#include <QMarginsF>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QSizeF>

#include <memory>

class QPrinter;

namespace torvik {

/// A print job that is open: the device, the painter on its present page, and where the next line goes.
/// Lengths are the device's pixels. A job that goes to a file is written beside it and takes the file's name
/// only when it is whole; one that is destroyed before its End is dropped.
class PrintJob {
public:
    /// A job for one of the system's printers.
    explicit PrintJob(const PrinterSetup& setup);
    /// A job that becomes a PDF file of the host.
    PrintJob(const PrinterSetup& setup, const QString& hostFile);
    ~PrintJob();
    PrintJob(const PrintJob&) = delete;
    PrintJob& operator=(const PrintJob&) = delete;

    /// False when the printer does not take the job, or its file cannot be written.
    bool Begin();
    /// Sends the job off. False when it did not go out.
    bool End();
    bool NewPage();
    /// Prints a line of text and moves on to the next.
    void Print(const QString& text);

    /// Paints from the corner of the printable area.
    QPainter& Painter() { return painter_; }
    QSizeF Paper() const { return device_->pageLayout().fullRectPixels(Resolution()).size(); }
    /// How far the printable area lies inside the paper.
    const QMarginsF& Offsets() const { return offsets_; }
    /// Pixels to the inch.
    int Resolution() const { return device_->logicalDpiX(); }

private:
    void TakePaper(const PrinterSetup& setup);
    double PixelsPerPoint() const;

    std::unique_ptr<QPagedPaintDevice> device_;
    QPrinter* printer_ = nullptr; ///< the device; none where the job becomes a file
    QPainter painter_;
    QMarginsF offsets_;
    double lineTop_ = 0;
    QString file_; ///< that the job becomes; empty for a printer
};

} // namespace torvik
