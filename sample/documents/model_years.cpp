#include "sample/documents/model_years.h"

#include "sample/car/car_shape.h"

#include <array>
#include <cmath>
#include <stdexcept>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<ModelYear, 35> modelYears = {{
    // Year, price, coupes, fastbacks, convertibles, weight.
    {1967, 2490, 52140, 18360, 9410, 1265},  {1968, 2580, 61075, 24910, 10230, 1290},
    {1969, 2665, 55320, 33480, 8115, 1330},  {1970, 2760, 41230, 29945, 5870, 1350},
    {1971, 2940, 30110, 24380, 4420, 1455},  {1972, 2905, 27560, 20115, 3905, 1450},
    {1973, 3020, 28940, 19870, 5230, 1475},  {1974, 3180, 60250, 38410, 0, 1240},
    {1975, 3560, 41870, 24960, 0, 1275},     {1976, 3710, 39115, 27640, 0, 1270},
    {1977, 3905, 34520, 26230, 0, 1285},     {1978, 4190, 38705, 31890, 0, 1290},
    {1979, 4580, 48215, 44320, 0, 1205},     {1980, 5120, 45970, 38655, 0, 1210},
    {1981, 5980, 31240, 29870, 0, 1215},     {1982, 6640, 24310, 31125, 0, 1235},
    {1983, 7060, 20855, 27410, 6240, 1260},  {1984, 7290, 22730, 32960, 5835, 1265},
    {1985, 7480, 26140, 35275, 6120, 1270},  {1986, 7840, 31985, 38420, 7310, 1285},
    {1987, 8690, 24110, 36705, 7905, 1335},  {1988, 9140, 26420, 38015, 8720, 1345},
    {1989, 9820, 27905, 41230, 9660, 1365},  {1990, 10440, 21870, 33125, 8815, 1375},
    {1991, 11060, 18345, 27980, 7540, 1385}, {1992, 11490, 15520, 23860, 7985, 1385},
    {1993, 11920, 19410, 25230, 8365, 1390}, {1994, 14280, 46120, 0, 15470, 1430},
    {1995, 15110, 52365, 0, 14210, 1440},    {1996, 15940, 44830, 0, 12875, 1445},
    {1997, 16280, 41270, 0, 11940, 1450},    {1998, 16610, 53015, 0, 13620, 1450},
    {1999, 17420, 49735, 0, 15325, 1465},    {2000, 17890, 58210, 0, 17440, 1470},
    {2001, 18340, 51680, 0, 16915, 1475},
}};

} // namespace

std::span<const ModelYear> ModelYears()
{
    return modelYears;
}

const ModelYear& ModelYearOf(int year)
{
    if (year < modelYears.front().year || year > modelYears.back().year)
        throw std::out_of_range("There is no such model year.");
    return modelYears.at(static_cast<std::size_t>(year - modelYears.front().year));
}

QString FastbackName(int year)
{
    return year < 1974 ? u"Fastback"_s : u"Hatchback"_s;
}

Measures MeasuresOf(int year)
{
    const CarShape shape = ShapeOfYear(year);
    const auto millimetres = [](double metres) { return static_cast<int>(std::lround(metres * 200)) * 5; };
    double highest = 0;
    double widest = 0;
    for (double s = 0; s < shape.length; s += 0.05) {
        highest = std::max(highest, shape.roof(s));
        widest = std::max(widest, shape.halfWidth(s));
    }
    return {millimetres(shape.length), millimetres(shape.rearAxle - shape.frontAxle), millimetres(2 * widest),
            millimetres(highest)};
}

} // namespace torvik::sample
