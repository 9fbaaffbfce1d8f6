#include "runtime/failure.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

struct Entry {
    int number;
    const char* text;
};

/// The run-time's own texts.
constexpr Entry entries[] = {
    {failure::invalidCall, "Invalid procedure call or argument"},
    {failure::overflow, "Overflow"},
    {failure::outOfMemory, "Out of memory"},
    {failure::subscript, "Subscript out of range"},
    {failure::typeMismatch, "Type mismatch"},
    {failure::internalError, "Internal error"},
    {failure::badFileName, "Bad file name or number"},
    {failure::fileNotFound, "File not found"},
    {failure::deviceIo, "Device I/O error"},
    {failure::fileExists, "File already exists"},
    {failure::diskFull, "Disk full"},
    {failure::inputPastEnd, "Input past end of file"},
    {failure::tooManyFiles, "Too many files"},
    {failure::deviceUnavailable, "Device unavailable"},
    {failure::permissionDenied, "Permission denied"},
    {failure::pathFileAccess, "Path/File access error"},
    {failure::pathNotFound, "Path not found"},
    {failure::invalidFileFormat, "Invalid file format"},
    {failure::noSuchElement, "Control array element doesn't exist"},
    {failure::objectUnloaded, "Object was unloaded"},
    {failure::invalidProperty, "Invalid property value"},
    {failure::badListIndex, "Invalid property array index"},
    {failure::alreadyModal, "Form already displayed; can't show modally"},
    {failure::invalidPicture, "Invalid picture"},
    {failure::printerError, "Printer error"},
};

int pendingNumber = 0;

} // namespace

QString RunTimeError::Text() const
{
    return RunTimeErrorText(number_);
}

void Fail(int number, const QString& hint)
{
    throw RunTimeError(number, hint);
}

QString RunTimeErrorText(int number)
{
    const auto* found = std::find_if(std::begin(entries), std::end(entries),
                                     [number](const Entry& entry) { return entry.number == number; });
    if (found == std::end(entries))
        return u"Application-defined or object-defined error"_s;
    return QString::fromLatin1(found->text);
}

int PendingErrorNumber()
{
    return pendingNumber;
}

PendingError::PendingError(int number) : before_(pendingNumber)
{
    pendingNumber = number;
}

PendingError::~PendingError()
{
    pendingNumber = before_;
}

} // namespace torvik
