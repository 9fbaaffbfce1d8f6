#include "documents/books_and_magazines.h"

#include "documents/article_viewer.h"
#include "documents/bind_documents.h"
#include "program/catalogue/library.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "runtime/failure.h"
#include "windows/article_window.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

void LoadDocument(const LibraryDocument& document)
{
    const QString title = WindowTitleOf(document);
    if (document.way == TitleWay::Stored)
        state.DocumentTitle = title;
    if (document.file != nullptr)
        state.DocumentFile = state.DiscRoot + QLatin1String(document.file);
    if (document.way == TitleWay::DirectBefore)
        txtForm->SetCaption(title);
    txtForm->rtbText.SetFileName(state.DocumentFile);
    if (document.way == TitleWay::Late)
        state.DocumentTitle = title;
    if (document.way == TitleWay::DirectAfter)
        txtForm->SetCaption(title);
}

void OpenDocument(const LibraryDocument& document)
{
    OnError(
        [&] {
            LoadDocument(document);
            if (document.settlesButtons) {
                PutWaveButtonsAway();
                WidenOkButton();
            }
            if (document.comesToFront)
                txtForm->ZOrder();
            txtForm->ShowModal();
        },
        [&] {
            state.ErrorCode = QLatin1String(document.errorCode);
            ReportError();
        });
}

/// An index that no entry of the menu array has opens what DocumentFile already names.
void OpenDocumentOf(const QString& menuArray, int index)
{
    const auto entry = [&](int of) { return LibraryDocumentOf(u"%1(%2)"_s.arg(menuArray).arg(of)); };
    if (const LibraryDocument* document = entry(index)) {
        OpenDocument(*document);
        return;
    }
    LibraryDocument unnamed = *entry(1);
    unnamed.file = nullptr;
    OpenDocument(unnamed);
}

} // namespace

void ShowLibraryDocument(const QString& entry)
{
    OpenDocument(*LibraryDocumentOf(entry));
}

void ShowMagazine(int index)
{
    OpenDocumentOf(u"mnuMag"_s, index);
}

void ShowPressRelease(int index)
{
    OpenDocumentOf(u"mnuPR"_s, index);
}

void ShowMiscellaneous(int index)
{
    OpenDocumentOf(u"mnuMisc"_s, index);
}

void ShowSiblingGuide()
{
    ShowLibraryDocument(u"mnuSibling"_s);
}

void ShowEngines()
{
    ShowLibraryDocument(u"mnuEngines"_s);
}

void BindBooksAndMagazines()
{
    Form1.Bind([](Form1Controls& form) {
        for (Menu* entry : {&form.mnuBooks, &form.mnuCatalogs, &form.mnuAdsList, &form.mnuWhatsNew,
                            &form.mnuIntro, &form.mnuNotice, &form.mnuCredits, &form.mnuContrib})
            entry->Click = [name = entry->Name()] { ShowLibraryDocument(name); };
        form.mnuMag.Each([](int index, Menu& entry) { entry.Click = [index] { ShowMagazine(index); }; });
        form.mnuPR.Each([](int index, Menu& entry) { entry.Click = [index] { ShowPressRelease(index); }; });
        form.mnuMisc.Each(
            [](int index, Menu& entry) { entry.Click = [index] { ShowMiscellaneous(index); }; });
    });
}

} // namespace torvik
