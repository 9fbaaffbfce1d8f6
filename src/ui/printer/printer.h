#pragma once

#include "ui/printer/printer_setup.h"

#include <QList>
#include <QString>

#include <memory>
#include <optional>

class QPainter;

namespace torvik {

class Picture;
class PrintJob;
struct PrinterOption;

/// The printer. A job opens by itself with the first thing that is printed and goes out with EndDoc.
/// Positions count from the corner of the printable area. All operations but EndDoc open a job when there is
/// none; a printer that does not take it, or a file that cannot be written, is failure 482, and the job is
/// then dropped.
class PrinterObject {
public:
    PrinterObject();
    ~PrinterObject();
    PrinterObject(const PrinterObject&) = delete;
    PrinterObject& operator=(const PrinterObject&) = delete;

    /// From now on each job becomes a file job-1.pdf, job-2.pdf, ... in this folder of the host. With an
    /// empty text jobs go to a printer of the system again, or, where there is none, into the user's
    /// documents folder.
    void PrintTo(const QString& hostFolder);

    /// Where the next job goes.
    PrinterSetup Setup() const;
    /// From the next job on this holds; nothing stands for the system's default printer, and for files where
    /// there is none.
    void SetUp(const std::optional<PrinterSetup>& setup) { chosen_ = setup; }
    /// What can be set up: the system's printers and, last, files.
    QList<PrinterOption> Choices() const;

    /// Prints a line of text and moves on to the next line.
    void Print(const QString& text);
    /// Paints a picture at its natural size, 15 twips to each of its pixels, with its upper left corner at
    /// `x` and `y` twips. What runs off the page is lost. No picture paints nothing. Failure 481 when its
    /// data is damaged.
    void PaintPicture(const Picture& picture, double x, double y);
    void NewPage();
    /// Sends the job off. Nothing happens when there is none.
    void EndDoc();
    /// For the tests: whether a job was begun that EndDoc has not sent off.
    bool HasJob() const { return job_ != nullptr; }

    /// The paper in twips.
    double Width();
    double Height();
    /// The printable area in twips.
    double ScaleWidth();
    double ScaleHeight();
    /// How far the printable area lies inside the paper, in the printer's pixels.
    double PhysicalOffsetX();
    double PhysicalOffsetY();
    /// Twips to one of the printer's pixels.
    double TwipsToPixel();

    /// Paints on the page. It measures in the printer's pixels, from the corner of the printable area.
    QPainter& Painter();

private:
    QString FileFolder() const;
    std::unique_ptr<PrintJob> MakeJob() const;
    PrintJob& OpenJob();
    [[noreturn]] void FailJob();

    QString folder_;
    std::optional<PrinterSetup> chosen_;
    std::unique_ptr<PrintJob> job_;
};

inline PrinterObject Printer;

} // namespace torvik
