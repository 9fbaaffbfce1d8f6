#include "browser/neighbours.h"

#include "program/photo_name.h"
#include "program/program_state.h"
#include "runtime/failure.h"
#include "windows/main_window.h"

namespace torvik {

namespace {

/// The nearest photo of the code on show, round the end of the list: that at `index` itself when there is no
/// other.
int Neighbour(int index, int step)
{
    const int count = state.PhotoCount;
    for (int distance = 1; distance < count; ++distance) {
        const int other = (index - 1 + step * distance % count + count) % count + 1;
        if (CodeOfPhoto(state.PhotoFiles(other)) == state.YearCode)
            return other;
    }
    return index;
}

/// The paths of what the next steps show, the most probable one first.
QStringList NeighboursOf(int index, int step)
{
    const int next = Neighbour(index, step);
    if (next == index)
        return {};
    QStringList paths;
    for (const int neighbour : {next, Neighbour(index, -step), Neighbour(next, step)}) {
        const QString& path = state.PhotoFiles(neighbour);
        if (neighbour != index && !paths.contains(path))
            paths.append(path);
    }
    return paths;
}

} // namespace

void ReadNeighboursAhead(int index, Walk walk)
{
    ResumeNext([&] { Form1->Image4.ReadAhead(NeighboursOf(index, walk == Walk::Forward ? 1 : -1)); });
}

} // namespace torvik
