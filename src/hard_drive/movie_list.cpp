#include "hard_drive/movie_list.h"

#include "platform/files/files.h"
#include "program/catalogue/movies_and_sounds.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "runtime/failure.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

template <typename Statement>
void Reporting(Statement&& statement)
{
    OnError(std::forward<Statement>(statement), ReportError);
}

} // namespace

void BuildMovieList()
{
    state.ErrorCode = u"ER055"_s;
    state.MovieListIndex = 1;
    state.MovieFiles.Resize(0);
    state.MovieFiles.Resize(1);
    QStringList names;
    Reporting([&] { names = FilesMatching(state.DiscRoot + movieFolder + u"*.avi"_s); });
    state.MovieFiles(1) = names.value(0).toUpper();

    for (qsizetype next = 1; !state.MovieFiles(state.MovieListIndex).isEmpty(); ++next) {
        Reporting([] { state.MovieListIndex += 1; });
        state.MovieFiles.Resize(state.MovieListIndex);
        state.MovieFiles(state.MovieListIndex) = names.value(next).toUpper();
        if (next >= names.size())
            state.MovieCount = state.MovieListIndex - 1;
    }
}

} // namespace torvik
