#include "sample/car/paints.h"

#include "sample/drawings/script.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

Paint Named(const char* name, QRgb colour, double metallic)
{
    return {QString::fromLatin1(name), QColor(colour), metallic};
}

const std::vector<Paint>& PaintsOfYear(int year)
{
    static const std::vector<std::pair<int, std::vector<Paint>>> cards = [] {
        Script table("colours");
        table.Run();
        std::vector<std::pair<int, std::vector<Paint>>> read;
        for (const Value& card : table.Get("cards").Items()) {
            std::vector<Paint>& paints = read.emplace_back(card.At(0).Whole(), std::vector<Paint>()).second;
            for (std::size_t i = 1; i < card.Items().size(); ++i) {
                const Value& row = card.At(i);
                paints.push_back(
                    {row.At(0).Text(), QColor(static_cast<QRgb>(row.At(1).Number())), row.At(2).Number()});
            }
        }
        return read;
    }();
    for (const auto& [last, paints] : cards) {
        if (year <= last)
            return paints;
    }
    return cards.back().second;
}

} // namespace torvik::sample
