#pragma once

#include <QString>

#include <memory>

class QPainter;

namespace torvik {

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
    /// empty text jobs go to the system's default printer again, or, where there is none, into the user's
    /// documents folder.
    void PrintTo(const QString& hostFolder);

    /// Prints a line of text and moves on to the next line.
    void Print(const QString& text);
    void NewPage();
    /// Sends the job off. Nothing happens when there is none.
    void EndDoc();
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
    struct Job;

    Job& OpenJob();
    [[noreturn]] void FailJob();

    QString folder_;
    std::unique_ptr<Job> job_;
};

inline PrinterObject Printer;

} // namespace torvik
