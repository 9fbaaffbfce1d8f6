#include "hard_drive/copy_file.h"

#include "hard_drive/copy_job.h"
#include "platform/files/binary_file.h"
#include "platform/files/file_changes.h"
#include "platform/files/files.h"
#include "program/program_state.h"
#include "runtime/failure.h"
#include "runtime/integer16.h"
#include "ui/application.h"
#include "ui/forms/message_box.h"
#include "ui/forms/program_end.h"
#include "windows/main_window.h"

#include <algorithm>
#include <functional>
#include <limits>

namespace torvik {

namespace {

/// How a copy goes through a file and what it shows on the way.
struct BlockWise {
    qsizetype blockSize; ///< bytes
    /// A block was read and is about to be written; with it `percent` of the file.
    std::function<void(double percent)> blockRead;
    std::function<void()> blocksWritten;
};

/// The number of whole blocks; a count beyond 16 bits is failure 6.
Integer CountBlocks(qint64 size, qsizetype blockSize)
{
    return static_cast<int>(std::min<qint64>(size / blockSize, std::numeric_limits<int>::max()));
}

/// A program that ends meanwhile takes the half copy away: at the next start it would pass for a whole one.
void LetEventsRun(const QString& target)
{
    try {
        DoEvents();
    } catch (const ProgramEnd&) {
        ResumeNext([&] { DeleteFile(target); });
        throw;
    }
}

void Copy(const QString& source, const QString& target, const BlockWise& way)
{
    const qint64 size = FileLength(source);
    QByteArray buffer(way.blockSize, ' ');
    if (FileExists(target)) {
        if (IsSameFile(source, target))
            Fail(failure::pathFileAccess); // replacing it would destroy the source
        DeleteFile(target);
    }
    BinaryInput input(source);
    BinaryOutput output(target);

    const Integer blocks = CountBlocks(size, way.blockSize);
    for (int block = 1; block <= blocks; ++block) {
        input.Read(buffer, way.blockSize);
        way.blockRead(static_cast<double>(block * way.blockSize) / static_cast<double>(size) * 100);
        output.Write(buffer, way.blockSize);
        LetEventsRun(target);
    }
    way.blocksWritten();
    if (const qint64 rest = size - blocks * way.blockSize; rest != 0) {
        input.Read(buffer, rest);
        output.Write(buffer, rest);
    }
    output.Close();
}

/// Both files of a failed copy are closed on the way out: left open they would keep the disc from being taken
/// out of its drive.
void CopyOrTell(const QString& source, const QString& target, const BlockWise& way)
{
    OnError([&] { Copy(source, target, way); }, [] { MsgBox(RunTimeErrorText(PendingErrorNumber())); });
}

void ShowPercent(Panel& gauge, double percent)
{
    gauge.SetFloodPercent(percent);
    gauge.SetCaption(gauge.FloodPercent());
}

void CountDown(qsizetype bytes)
{
    const std::int64_t remaining = std::int64_t{state.CopyRemaining} - bytes;
    if (remaining < std::numeric_limits<std::int32_t>::min())
        Fail(failure::overflow);
    state.CopyRemaining = static_cast<std::int32_t>(remaining);
}

/// A disc that holds more than the job's fixed size leaves the gauge full; the files go on being copied.
double PercentOfJob()
{
    const double percent = 100 - static_cast<double>(state.CopyRemaining) / PresentCopyJob().size * 100;
    return std::min(percent, 100.0);
}

} // namespace

void CopyFileWithGauges()
{
    constexpr qsizetype blockSize = 25'000;
    // The record may be written to by the forms that work on meanwhile.
    const QString source = state.CopySource;
    const BlockWise way{blockSize,
                        [&](double percent) {
                            Form1->Text1.SetText(source);
                            ShowPercent(Form1->ProgressGuage, percent);
                            CountDown(blockSize);
                            ShowPercent(Form1->ProgressGuage2, PercentOfJob());
                        },
                        [] { ShowPercent(Form1->ProgressGuage, 100); }};
    CopyOrTell(source, QString(state.CopyTarget), way);
}

void CopyFileWithGauge(const QString& source, const QString& target, Panel& gauge)
{
    constexpr qsizetype blockSize = 1'000;
    const BlockWise way{blockSize, [&](double percent) { gauge.SetFloodPercent(percent); }, [] {}};
    CopyOrTell(QString(source), QString(target), way);
}

} // namespace torvik
