#pragma once

#include <QString>

#include <exception>
#include <utility>

namespace torvik {

/// A failure of the run time: a file that is not there, an overflow, a picture that is none.
/// It carries the number by which the run-time has always known it; the text follows from the number.
class RunTimeError : public std::exception {
public:
    explicit RunTimeError(int number, const QString& hint = {}) : number_(number), hint_(hint) {}

    int Number() const { return number_; }
    /// The run-time's own text for the number, "File not found" for 53.
    QString Text() const;
    /// What a person can do about it, for the box that tells of a failure without a trap; mostly empty.
    const QString& Hint() const { return hint_; }
    const char* what() const noexcept override { return "run-time error"; }

private:
    int number_;
    QString hint_;
};

/// The numbers that this program raises; failure.cpp has their texts.
namespace failure {
inline constexpr int invalidCall = 5;         ///< Invalid procedure call or argument
inline constexpr int overflow = 6;            ///< Overflow
inline constexpr int outOfMemory = 7;         ///< Out of memory
inline constexpr int subscript = 9;           ///< Subscript out of range
inline constexpr int typeMismatch = 13;       ///< Type mismatch
inline constexpr int internalError = 51;      ///< Internal error
inline constexpr int badFileName = 52;        ///< Bad file name or number
inline constexpr int fileNotFound = 53;       ///< File not found
inline constexpr int deviceIo = 57;           ///< Device I/O error
inline constexpr int fileExists = 58;         ///< File already exists
inline constexpr int diskFull = 61;           ///< Disk full
inline constexpr int inputPastEnd = 62;       ///< Input past end of file
inline constexpr int tooManyFiles = 67;       ///< Too many files
inline constexpr int deviceUnavailable = 68;  ///< Device unavailable
inline constexpr int permissionDenied = 70;   ///< Permission denied
inline constexpr int pathFileAccess = 75;     ///< Path/File access error
inline constexpr int pathNotFound = 76;       ///< Path not found
inline constexpr int invalidFileFormat = 321; ///< Invalid file format
inline constexpr int noSuchElement = 340;     ///< Control array element doesn't exist
inline constexpr int objectUnloaded = 364;    ///< Object was unloaded
inline constexpr int invalidProperty = 380;   ///< Invalid property value
inline constexpr int badListIndex = 381;      ///< Invalid property array index
inline constexpr int alreadyModal = 400;      ///< Form already displayed; can't show modally
inline constexpr int invalidPicture = 481;    ///< Invalid picture
inline constexpr int printerError = 482;      ///< Printer error
} // namespace failure

/// Throws RunTimeError(number, hint).
[[noreturn]] void Fail(int number, const QString& hint = {});

/// The run-time's text for a number; "Application-defined or object-defined error" for one that is not among
/// these.
QString RunTimeErrorText(int number);

/// The number of the failure that is being handled at this moment; 0 while none is.
int PendingErrorNumber();

/// Holds a number as the pending one for as long as it lives, then puts the earlier one back.
class PendingError {
public:
    explicit PendingError(int number);
    ~PendingError();
    PendingError(const PendingError&) = delete;
    PendingError& operator=(const PendingError&) = delete;

private:
    int before_;
};

/// The armed trap: runs `risky`; on a failure runs `handler` with the failure's number pending.
/// A failure inside the handler itself goes on to the caller. Returns true when `risky` went through.
template <typename Risky, typename Handler>
bool OnError(Risky&& risky, Handler&& handler)
{
    int number = 0;
    try {
        std::forward<Risky>(risky)();
        return true;
    } catch (const RunTimeError& error) {
        number = error.Number();
    }
    const PendingError pending(number);
    std::forward<Handler>(handler)();
    return false;
}

/// The tolerant mode for one statement: a failure is swallowed. Returns its number, 0 when there was none.
template <typename Statement>
int ResumeNext(Statement&& statement)
{
    try {
        std::forward<Statement>(statement)();
        return 0;
    } catch (const RunTimeError& error) {
        return error.Number();
    }
}

/// The trap that repeats: on a failure of `statement` runs `handler` with the number pending, then runs the
/// statement again, as often as it takes. The handler leaves the loop by throwing.
template <typename Statement, typename Handler>
void RetryOnError(Statement&& statement, Handler&& handler)
{
    while (!OnError(statement, handler)) {
    }
}

} // namespace torvik
