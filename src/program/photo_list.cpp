#include "program/photo_list.h"

#include "platform/files/files.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "runtime/failure.h"
#include "runtime/text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

template <typename Statement>
void Retrying(Statement&& statement)
{
    RetryOnError(std::forward<Statement>(statement), ReportError);
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
    state.PhotoFiles(1) = names.isEmpty() ? QString() : names.first().toUpper();
    state.PhotoNumbers(1) = u"1"_s;
    if (names.isEmpty())
        return false;

    for (qsizetype next = 1; next <= names.size(); ++next) {
        Retrying([] { state.PhotoIndex += 1; });
        if (state.PhotoIndex > state.PhotoFiles.Count())
            Resize(static_cast<int>(std::min<qsizetype>(names.size() + 1, INT16_MAX)));
        state.PhotoFiles(state.PhotoIndex) = next < names.size() ? names[next].toUpper() : QString();
        if (next < names.size())
            state.PreviousPrefix = Left(state.PhotoFiles(state.PhotoIndex), 2);
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
        const QString prefix = Left(name, 2);
        number = prefix != state.PreviousPrefix ? 1 : number + 1;
        state.PreviousPrefix = prefix;
        state.PhotoNumbers(index) = QString::number(number);
        name = folder + name;
    }
    state.LoopIndex = state.PhotoCount + 1;
}

} // namespace

void BuildPhotoSet()
{
    state.ErrorCode = u"ER037"_s;
    const QString folder = state.PhotoRoot + torviksFolder;
    if (!ListNames(folder))
        return;
    SortNames();
    NumberPhotos(folder);
}

} // namespace torvik
