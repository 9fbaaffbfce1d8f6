#include "sample/artwork/art_plan.h"

#include "sample/documents/model_years.h"

namespace torvik::sample {

namespace {

std::vector<SmallPicture> OnePerYear(const QString& pattern)
{
    std::vector<SmallPicture> pictures;
    for (const ModelYear& year : ModelYears())
        pictures.push_back({pattern.arg(TwoDigits(year.year)), year.year, Marque::Vollandry});
    return pictures;
}

} // namespace

QString TwoDigits(int year)
{
    return QStringLiteral("%1").arg(year % 100, 2, 10, QLatin1Char('0'));
}

std::vector<SmallPicture> PlanEmblems()
{
    std::vector<SmallPicture> pictures = OnePerYear(QStringLiteral("emblems/emb%1.jpg"));
    pictures.push_back({QStringLiteral("emblems/embsb.jpg"), 1967, Marque::Harwell});
    pictures.push_back({QStringLiteral("emblems/EMBpt.jpg"), 1966, Marque::Prototype});
    return pictures;
}

std::vector<SmallPicture> PlanScripts()
{
    std::vector<SmallPicture> pictures = OnePerYear(QStringLiteral("SCRIPTS/scri%1.jpg"));
    pictures.push_back({QStringLiteral("SCRIPTS/SCRISB.jpg"), 1967, Marque::Harwell});
    pictures.push_back({QStringLiteral("SCRIPTS/SCRIpt.jpg"), 1966, Marque::Prototype});
    return pictures;
}

std::vector<SmallPicture> PlanClipArt()
{
    return OnePerYear(QStringLiteral("Clipart/%1clip.jpg"));
}

} // namespace torvik::sample
