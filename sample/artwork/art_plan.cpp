#include "sample/artwork/art_plan.h"

#include "sample/documents/figures.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

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
    return u"%1"_s.arg(year % 100, 2, 10, '0'_L1);
}

std::vector<SmallPicture> PlanEmblems()
{
    std::vector<SmallPicture> pictures = OnePerYear(u"emblems/emb%1.jpg"_s);
    pictures.push_back({u"emblems/embsb.jpg"_s, 1967, Marque::Harwell});
    pictures.push_back({u"emblems/EMBpt.jpg"_s, 1966, Marque::Prototype});
    return pictures;
}

std::vector<SmallPicture> PlanScripts()
{
    std::vector<SmallPicture> pictures = OnePerYear(u"SCRIPTS/scri%1.jpg"_s);
    pictures.push_back({u"SCRIPTS/SCRISB.jpg"_s, 1967, Marque::Harwell});
    pictures.push_back({u"SCRIPTS/SCRIpt.jpg"_s, 1966, Marque::Prototype});
    return pictures;
}

std::vector<SmallPicture> PlanClipArt()
{
    return OnePerYear(u"Clipart/%1clip.jpg"_s);
}

} // namespace torvik::sample
