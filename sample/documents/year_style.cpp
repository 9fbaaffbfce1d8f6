#include "sample/car/car_shape.h"
#include "sample/documents/year_articles.h"

#include <array>

namespace torvik::sample {

Article NewYearArticle(int year, YearArticle kind, const QString& title)
{
    constexpr std::array<unsigned, 6> accents = {0x8B1A1A, 0x93500A, 0x5A6418, 0x1F3F77, 0x0C5C62, 0x4A2A6A};
    const int generation = GenerationOfYear(year);
    ArticleStyle style{.accent = QColor(QRgb(accents.at(static_cast<std::size_t>(generation - 1))))};
    switch (kind) {
    case YearArticle::Description:
        style.justified = generation % 2 == 0;
        break;
    case YearArticle::Statistics:
    case YearArticle::Colours:
        style.body = Typeface::Sans;
        style.bodySize = 20;
        break;
    case YearArticle::Options:
        style.body = Typeface::Sans;
        style.bodySize = 20;
        style.heading = Typeface::Roman;
        break;
    case YearArticle::Nostalgia:
        style.heading = Typeface::Roman;
        break;
    }
    const Dialect dialects[] = {Dialect::Styled, Dialect::Bare, Dialect::Late};
    // Tables grow large in the late dialect; a document with five of them keeps to the other two.
    const int manners = kind == YearArticle::Statistics ? 2 : 3;
    const Dialect dialect = dialects[(static_cast<int>(kind) + generation + 2) % manners];
    const int written = dialect == Dialect::Bare ? 1996 + year % 2 : dialect == Dialect::Styled ? 1998 : 2001;
    return Article(title, dialect, written, style);
}

} // namespace torvik::sample
