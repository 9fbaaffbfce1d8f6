#include "sample/documents/document_plan.h"

#include "sample/documents/article_source.h"
#include "sample/documents/library_statistics.h"
#include "sample/documents/model_years.h"
#include "sample/documents/text_store.h"
#include "sample/documents/year_articles.h"
#include "sample/files/jpeg_file.h"
#include "sample/files/rich_writer.h"

#include <algorithm>
#include <array>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

/// An article that is one stored text.
struct LibraryFile {
    const char* file;
    const char* text;
};

constexpr std::array libraryFiles = {
    LibraryFile{"books.rtf", "books"},
    LibraryFile{"carstuff.rtf", "calendars"},
    LibraryFile{"catalogs.rtf", "catalogs"},
    LibraryFile{"contrib.rtf", "contributions"},
    LibraryFile{"credits.rtf", "credits"},
    LibraryFile{"danbury.rtf", "danbury"},
    LibraryFile{"desc.rtf", "how_to_read"},
    LibraryFile{"desperat.rtf", "metal_signs"},
    LibraryFile{"ENGINES.rtf", "engines"},
    LibraryFile{"franklin.rtf", "franklin"},
    LibraryFile{"glossary.rtf", "glossary"},
    LibraryFile{"idsellark.rtf", "sellark_guide"},
    LibraryFile{"idTorvik.rtf", "identification"},
    LibraryFile{"Introduction.rtf", "introduction"},
    LibraryFile{"knives.rtf", "knives"},
    LibraryFile{"m1stats.rtf", "kestra_one"},
    LibraryFile{"m3stats.rtf", "kestra_three"},
    LibraryFile{"mag4.rtf", "magazine_torvik_fords"},
    LibraryFile{"mag5.rtf", "magazine_five"},
    LibraryFile{"magmi.rtf", "magazine_illustrated"},
    LibraryFile{"magmm.rtf", "magazine_monthly"},
    LibraryFile{"magmmff.rtf", "magazine_muscle"},
    LibraryFile{"monopoly.rtf", "monopoly"},
    LibraryFile{"msstats.rtf", "super_stallion"},
    LibraryFile{"notice.rtf", "notice"},
    LibraryFile{"plates.rtf", "plates"},
    LibraryFile{"PRIntro.rtf", "press_introduction"},
    LibraryFile{"PRMarket.rtf", "press_market"},
    LibraryFile{"PROptions.rtf", "press_options"},
    LibraryFile{"ptdesc.rtf", "prototypes"},
    LibraryFile{"sbcolors.rtf", "harwell_colours"},
    LibraryFile{"sbopts.rtf", "harwell_options"},
    LibraryFile{"sbstats.rtf", "harwell_figures"},
    LibraryFile{"sshelp.rtf", "saver_help"},
    LibraryFile{"stamps.rtf", "stamps"},
    LibraryFile{"timeline.rtf", "timeline"},
    LibraryFile{"TorvikAdsList.rtf", "advertisements"},
    LibraryFile{"whatsnew.rtf", "whats_new"},
};

/// "67" to "99", then "a0" and "a1": how the names of the articles of a year begin.
QString ArticlePrefix(int year)
{
    return year < 2000 ? QString::number(year - 1900) : u"a%1"_s.arg(year - 2000);
}

} // namespace

std::vector<PlannedDocument> PlanDocuments()
{
    std::vector<PlannedDocument> documents;
    const auto add = [&documents](const QString& file, const RichDocument& document) {
        documents.push_back({file, WriteRichText(document)});
    };
    for (const ModelYear& figures : ModelYears()) {
        const int year = figures.year;
        const QString prefix = ArticlePrefix(year);
        add(prefix + u"desc.rtf"_s, YearDescription(year));
        add(prefix + u"stats.rtf"_s, YearStatistics(year));
        add(prefix + u"colors.rtf"_s, YearColours(year));
        add(prefix + (year < 2000 ? u"opts.rtf"_s : u"OPTS.rtf"_s), YearOptions(year));
        add(u"nostalgia%1.rtf"_s.arg(year % 100, 2, 10, '0'_L1), YearNostalgia(year));
    }
    for (const LibraryFile& library : libraryFiles)
        add(QString::fromLatin1(library.file),
            ArticleOfSource(StoredText(QString::fromLatin1(library.text))));
    add(u"stats.rtf"_s, LibraryStatistics());
    std::sort(documents.begin(), documents.end(),
              [](const PlannedDocument& a, const PlannedDocument& b) { return a.file < b.file; });
    return documents;
}

void MakeDocuments(const QString& disc)
{
    for (const PlannedDocument& document : PlanDocuments())
        WriteFile(disc + u"/RichText/"_s + document.file, document.text);
}

} // namespace torvik::sample
