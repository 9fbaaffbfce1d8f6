#include "printing/lines_above.h"

#include "printing/line_places.h"

#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>

namespace torvik {

LinesAbove::LinesAbove(const QTextDocument& text)
{
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        const QTextLayout& layout = *block.layout();
        if (layout.lineCount() < 2)
            continue; // most are titles and cells, and to ask where one stands takes its time
        const double top = TopOf(block);
        for (int next = 1; next < layout.lineCount(); ++next) {
            const double page = PageOf(top + layout.lineAt(next).y(), text);
            if (page != PageOf(top + layout.lineAt(next - 1).y(), text))
                lines_.push_back({block, next - 1, static_cast<int>(page)});
        }
    }
    // The cells of a row stand side by side.
    std::stable_sort(lines_.begin(), lines_.end(),
                     [](const Line& a, const Line& b) { return a.page < b.page; });
}

void LinesAbove::Move(int page, double by) const
{
    const auto isBefore = [](const Line& line, int number) { return line.page < number; };
    for (auto at = std::lower_bound(lines_.begin(), lines_.end(), page, isBefore);
         at != lines_.end() && at->page == page; ++at) {
        QTextLine line = at->block.layout()->lineAt(at->number);
        line.setPosition(line.position() + QPointF(by, 0));
    }
}

} // namespace torvik
