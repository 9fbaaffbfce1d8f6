#include "documents/books_and_magazines.h"

#include "documents/article_viewer.h"
#include "documents/bind_documents.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "runtime/failure.h"
#include "windows/article_window.h"
#include "windows/main_window.h"

#include <span>

namespace torvik {

namespace {

/// How a document's title reaches the window.
enum class TitleWay {
    Stored,       ///< in DocumentTitle before the viewer is touched: its Load shows it
    Late,         ///< in DocumentTitle behind the file: the window still shows the title before
    DirectBefore, ///< on the window, before the file
    DirectAfter,  ///< on the window, behind the file
};

struct LibraryDocument {
    const char* File; ///< under DiscRoot; none keeps what DocumentFile names
    const char* Title;
    TitleWay Way;
    bool Front; ///< brings the viewer to the front
    const char* Code;
    bool SettlesButtons = true; ///< repeats what the viewer's Load did to its buttons
};

constexpr auto stored = TitleWay::Stored;
constexpr auto late = TitleWay::Late;

constexpr LibraryDocument books{"\\RichText\\books.rtf", "The Torvik Vollandry       Books", stored, false,
                                "ER004"};
constexpr LibraryDocument catalogs{"\\richtext\\catalogs.rtf", "The Torvik Vollandry       Catalogs", stored,
                                   false, "ER005"};
constexpr LibraryDocument adsList{"\\RichText\\TorvikAdsList.rtf",
                                  "The Torvik Vollandry     Torvik Advertising Checklist ",
                                  TitleWay::DirectBefore, false, "ER004"};
constexpr LibraryDocument whatsNew{"\\richtext\\whatsnew.rtf", "The Torvik Vollandry       What's New", late,
                                   false, "ER056"};
constexpr LibraryDocument introduction{"\\RichText\\introduction.rtf",
                                       "The Torvik Vollandry       Introduction",
                                       TitleWay::DirectAfter,
                                       false,
                                       "ER007",
                                       false};
constexpr LibraryDocument notice{"\\richtext\\notice.rtf", "The Torvik Vollandry       Notice",
                                 TitleWay::DirectAfter, false, "ER025"};
constexpr LibraryDocument credits{"\\richtext\\credits.rtf", "The Torvik Vollandry       Credits",
                                  TitleWay::DirectBefore, false, "ER010"};
constexpr LibraryDocument contributions{"\\richtext\\contrib.rtf", "The Torvik Vollandry       Contributions",
                                        TitleWay::DirectBefore, false, "ER053"};
constexpr LibraryDocument siblingGuide{
    "\\RichText\\idsellark.rtf", "The Torvik Vollandry       Identification Guide", stored, true, "ER050"};
constexpr LibraryDocument engines{"\\RichText\\ENGINES.rtf", "The Torvik Vollandry       Torvik Engines",
                                  stored, true, "ER006"};

/// The entries of a menu array, from index 1 on.
constexpr LibraryDocument magazines[] = {
    {"\\richtext\\magmi.rtf", "The Torvik Vollandry       Magazines", late, true, "ER008"},
    {"\\richtext\\magmm.rtf", "The Torvik Vollandry       Magazines", late, true, "ER008"},
    {"\\richtext\\magmmff.rtf", "The Torvik Vollandry       Magazines", late, true, "ER008"},
    {"\\richtext\\mag4.rtf", "The Torvik Vollandry       Magazines", late, true, "ER008"},
    {"\\richtext\\mag5.rtf", "The Torvik Vollandry       Magazines", late, true, "ER008"},
};

constexpr LibraryDocument pressReleases[] = {
    {"\\richtext\\PRIntro.rtf", "The Torvik Vollandry       1964 Press Release", late, true, "ER030"},
    {"\\richtext\\PRMarket.rtf", "The Torvik Vollandry       1964 Press Release", late, true, "ER030"},
    {"\\richtext\\PROptions.rtf", "The Torvik Vollandry       1964 Press Release", late, true, "ER030"},
};

/// The first menu entry speaks of engines and yet opens the statistics.
constexpr LibraryDocument miscellaneous[] = {
    {"\\richtext\\stats.rtf", "The Torvik Vollandry       Statistics", stored, true, "ER009"},
    {"\\richtext\\glossary.rtf", "The Torvik Vollandry       Glossary", stored, true, "ER009"},
    {"\\richtext\\idTorvik.rtf", "The Torvik Vollandry       Identification Guide", stored, true, "ER009"},
    {"\\richtext\\timeline.rtf", "The Torvik Vollandry       Timeline", stored, true, "ER009"},
};

void LoadDocument(const LibraryDocument& document)
{
    const QString title = QLatin1String(document.Title);
    if (document.Way == TitleWay::Stored)
        state.DocumentTitle = title;
    if (document.File != nullptr)
        state.DocumentFile = state.DiscRoot + QLatin1String(document.File);
    if (document.Way == TitleWay::DirectBefore)
        txtForm->SetCaption(title);
    txtForm->rtbText.SetFileName(state.DocumentFile);
    if (document.Way == TitleWay::Late)
        state.DocumentTitle = title;
    if (document.Way == TitleWay::DirectAfter)
        txtForm->SetCaption(title);
}

void OpenDocument(const LibraryDocument& document)
{
    OnError(
        [&] {
            LoadDocument(document);
            if (document.SettlesButtons) {
                PutWaveButtonsAway();
                WidenOkButton();
            }
            if (document.Front)
                txtForm->ZOrder();
            txtForm->ShowModal();
        },
        [&] {
            state.ErrorCode = QLatin1String(document.Code);
            ReportError();
        });
}

void OpenDocument(std::span<const LibraryDocument> documents, int index)
{
    const bool known = index >= 1 && static_cast<std::size_t>(index) <= documents.size();
    LibraryDocument document = documents[known ? static_cast<std::size_t>(index) - 1 : 0];
    if (!known)
        document.File = nullptr;
    OpenDocument(document);
}

} // namespace

void ShowMagazine(int index)
{
    OpenDocument(magazines, index);
}

void ShowPressRelease(int index)
{
    OpenDocument(pressReleases, index);
}

void ShowMiscellaneous(int index)
{
    OpenDocument(miscellaneous, index);
}

void ShowSiblingGuide()
{
    OpenDocument(siblingGuide);
}

void ShowEngines()
{
    OpenDocument(engines);
}

void BindBooksAndMagazines()
{
    Form1.Bind([](Form1Controls& form) {
        form.mnuBooks.Click = [] { OpenDocument(books); };
        form.mnuCatalogs.Click = [] { OpenDocument(catalogs); };
        form.mnuMag.Each([](int index, Menu& entry) { entry.Click = [index] { ShowMagazine(index); }; });
        form.mnuAdsList.Click = [] { OpenDocument(adsList); };
        form.mnuPR.Each([](int index, Menu& entry) { entry.Click = [index] { ShowPressRelease(index); }; });
        form.mnuMisc.Each(
            [](int index, Menu& entry) { entry.Click = [index] { ShowMiscellaneous(index); }; });
        form.mnuWhatsNew.Click = [] { OpenDocument(whatsNew); };
        form.mnuIntro.Click = [] { OpenDocument(introduction); };
        form.mnuNotice.Click = [] { OpenDocument(notice); };
        form.mnuCredits.Click = [] { OpenDocument(credits); };
        form.mnuContrib.Click = [] { OpenDocument(contributions); };
    });
}

} // namespace torvik
