#include "program/catalogue/library.h"

#include "program/catalogue/articles.h"

namespace torvik {

namespace {

constexpr auto stored = TitleWay::Stored;
constexpr auto late = TitleWay::Late;
constexpr auto before = TitleWay::DirectBefore;
constexpr auto after = TitleWay::DirectAfter;

constexpr LibraryDocument documents[] = {
    {"mnuBooks", "Literature > Torvik Books", "\\RichText\\books.rtf", "Books", "ER004", stored},
    {"mnuCatalogs", "Literature > Torvik Catalogs", "\\richtext\\catalogs.rtf", "Catalogs", "ER005", stored},
    {"mnuMag(1)", "Literature > Torvik Magazines > Torvik Illustrated", "\\richtext\\magmi.rtf", "Magazines",
     "ER008", late, true},
    {"mnuMag(2)", "Literature > Torvik Magazines > Torvik Monthly", "\\richtext\\magmm.rtf", "Magazines",
     "ER008", late, true},
    {"mnuMag(3)", "Literature > Torvik Magazines > Muscle Torvik and Fast Fords", "\\richtext\\magmmff.rtf",
     "Magazines", "ER008", late, true},
    {"mnuMag(4)", "Literature > Torvik Magazines > Torvik & Fords", "\\richtext\\mag4.rtf", "Magazines",
     "ER008", late, true},
    {"mnuMag(5)", "Literature > Torvik Magazines > 5.0 Torvik", "\\richtext\\mag5.rtf", "Magazines", "ER008",
     late, true},
    {.entry = "mnuAdsList",
     .screen = "Miscellaneous > Torvik Advertising Checklist",
     .file = "\\RichText\\TorvikAdsList.rtf",
     .title = "Torvik Advertising Checklist ",
     .errorCode = "ER004",
     .way = before,
     .hasNarrowTitle = true},
    {"mnuPR(1)", "Miscellaneous > Torvik 1964 Press Releases > Introduction", "\\richtext\\PRIntro.rtf",
     "1964 Press Release", "ER030", late, true},
    {"mnuPR(2)", "Miscellaneous > Torvik 1964 Press Releases > Market", "\\richtext\\PRMarket.rtf",
     "1964 Press Release", "ER030", late, true},
    {"mnuPR(3)", "Miscellaneous > Torvik 1964 Press Releases > Options", "\\richtext\\PROptions.rtf",
     "1964 Press Release", "ER030", late, true},
    // The entry speaks of engines and yet opens the statistics.
    {"mnuMisc(1)", "Miscellaneous > Torvik Engines", "\\richtext\\stats.rtf", "Statistics", "ER009", stored,
     true},
    {"mnuMisc(2)", "Miscellaneous > Torvik Glossary", "\\richtext\\glossary.rtf", "Glossary", "ER009", stored,
     true},
    {"mnuMisc(3)", "Miscellaneous > Torvik Identification Guide", "\\richtext\\idTorvik.rtf",
     "Identification Guide", "ER009", stored, true},
    {"mnuMisc(4)", "Miscellaneous > Torvik Timelime", "\\richtext\\timeline.rtf", "Timeline", "ER009", stored,
     true},
    {"mnuWhatsNew", "Help > What's New", "\\richtext\\whatsnew.rtf", "What's New", "ER056", late},
    {.entry = "mnuIntro",
     .screen = "Help > Introduction",
     .file = "\\RichText\\introduction.rtf",
     .title = "Introduction",
     .errorCode = "ER007",
     .way = after,
     .settlesButtons = false},
    {"mnuNotice", "Help > Notice", "\\richtext\\notice.rtf", "Notice", "ER025", after},
    {"mnuCredits", "Help > Credits", "\\richtext\\credits.rtf", "Credits", "ER010", before},
    {"mnuContrib", "Help > Contributions", "\\richtext\\contrib.rtf", "Contributions", "ER053", before},
    // Two that no menu entry reaches; the names are those that their entries would have.
    {"mnuSibling", "", "\\RichText\\idsellark.rtf", "Identification Guide", "ER050", stored, true},
    {"mnuEngines", "", "\\RichText\\ENGINES.rtf", "Torvik Engines", "ER006", stored, true},
};

} // namespace

std::span<const LibraryDocument> LibraryDocuments()
{
    return documents;
}

const LibraryDocument* LibraryDocumentOf(const QString& entry)
{
    for (const LibraryDocument& document : documents) {
        if (entry == QLatin1String(document.entry))
            return &document;
    }
    return nullptr;
}

QString WindowTitleOf(const LibraryDocument& document)
{
    return QLatin1String(document.hasNarrowTitle ? narrowTitle : wideTitle) + QLatin1String(document.title);
}

} // namespace torvik
