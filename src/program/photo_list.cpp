#include "program/photo_list.h"

#include "platform/files/files.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "ui/pictures/pictures_ahead.h"

#include <algorithm>
#include <new>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// A statement of the build: whatever fails, and lack of memory too, is asked about and tried again.
template <typename Statement>
void Retrying(Statement&& statement)
{
    RetryOnError(
        [&] {
            try {
                statement();
            } catch (const std::bad_alloc&) {
                Fail(failure::outOfMemory);
            }
        },
        ReportError);
}

void Resize(int count)
{
    Retrying([count] {
        state.PhotoFiles.Resize(count);
        state.PhotoNumbers.Resize(count);
    });
}

/// Stores the names as the folder lists them; false when there are none.
bool ListNames(const QString& folder)
{
    state.PhotoIndex = 1;
    Resize(1);
    QStringList names;
    Retrying([&] { names = FilesMatching(folder + u"*.jpg"_s); });
    const auto store = [&](qsizetype next) {
        Retrying([&] { state.PhotoFiles(state.PhotoIndex) = names.value(next).toUpper(); });
    };
    store(0);
    Retrying([] { state.PhotoNumbers(1) = u"1"_s; });
    if (names.isEmpty())
        return false;

    for (qsizetype next = 1; next <= names.size(); ++next) {
        Retrying([] { state.PhotoIndex += 1; });
        if (state.PhotoIndex > state.PhotoFiles.Count())
            Resize(static_cast<int>(std::min<qsizetype>(names.size() + 1, INT16_MAX)));
        store(next);
        if (next < names.size())
            Retrying([] { state.PreviousPrefix = Left(state.PhotoFiles(state.PhotoIndex), 2); });
    }
    state.PhotoCount = state.PhotoIndex - 1;
    Resize(state.PhotoIndex);
    return true;
}

void SortNames()
{
    std::sort(state.PhotoFiles.begin(), state.PhotoFiles.begin() + state.PhotoCount);
}

/// Numbers each group from 1 and turns the names into paths.
void NumberPhotos(const QString& folder)
{
    int number = 0;
    for (int index = 1; index <= state.PhotoCount; ++index) {
        QString& name = state.PhotoFiles(index);
        QString prefix;
        Retrying([&] { prefix = Left(name, 2); });
        number = prefix != state.PreviousPrefix ? 1 : number + 1;
        state.PreviousPrefix = prefix;
        Retrying([&] { state.PhotoNumbers(index) = QString::number(number); });
        Retrying([&] { name = folder + name; });
    }
    state.LoopIndex = state.PhotoCount + 1;
}

} // namespace

void BuildPhotoSet()
{
    state.ErrorCode = u"ER037"_s;
    ForgetPicturesAhead();
    const QString folder = state.PhotoRoot + torviksFolder;
    if (!ListNames(folder))
        return;
    SortNames();
    NumberPhotos(folder);
}

} // namespace torvik
