#include "program/search_words.h"
#include "search/bind_search.h"
#include "search/finder.h"
#include "ui/forms/event.h"
#include "ui/forms/screen.h"
#include "ui/forms/units.h"
#include "windows/find_window.h"
#include "windows/main_window.h"

#include <QPointer>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr int typingRest = 80; // milliseconds

/// Lives and ends with the main window, so that a form that is closed and opened again need not read anew.
QPointer<Finder> finder;

/// What the list shows.
struct FoundList {
    QString question;
    qsizetype count = 0;
    QList<Findable> hits;
    bool opensFirst = false; ///< Return was pressed before there was a hit
};
FoundList found;

bool LooksForSomething(const QString& words)
{
    return LookForSomething(SearchTermsOf(words));
}

QString TextOfProgress(const IndexProgress& progress)
{
    if (progress.isDone && finder->IsDiscGone())
        return u"The disc is gone: %1 of %2 were not read"_s.arg(progress.leftOut).arg(progress.total);
    if (!progress.isDone)
        return u"Reading %1 of %2"_s.arg(progress.read).arg(progress.total);
    const qsizetype lacking = progress.leftOut + finder->Missing();
    if (lacking == 0)
        return {};
    return lacking == 1 ? u"1 is missing or cannot be read"_s
                        : u"%1 are missing or cannot be read"_s.arg(lacking);
}

/// The last count stands until the next answer comes, as the list does. Nothing in what was read so far says
/// nothing about the rest.
QString TextOfCount(const IndexProgress& progress)
{
    if (!LooksForSomething(found.question) || !LooksForSomething(frmFind->txtFind.Text()))
        return {};
    if (found.count == 0)
        return progress.isDone ? u"Nothing found"_s : QString();
    QString text = u"%1 found"_s.arg(found.count);
    if (found.count > found.hits.size())
        text += u", the best %1 are shown"_s.arg(found.hits.size());
    return text;
}

/// Beside the middle of the buttons, or above the bar.
void PlaceCount()
{
    frmFindControls& form = *frmFind;
    const double aboveBar = form.ProgressGuage.Top() - form.lblFound.Height() - 30;
    const double beside = form.cmdOpen.Top() + (form.cmdOpen.Height() - form.lblFound.Height()) / 2;
    form.lblFound.SetTop(form.ProgressGuage.Visible() ? aboveBar : beside);
}

void ShowState(const IndexProgress& progress)
{
    frmFindControls& form = *frmFind;
    if (!progress.isUsable) {
        form.lblFound.SetCaption(u"Finding needs SQLite, which is not installed"_s);
        form.ProgressGuage.Hide();
        PlaceCount();
        return;
    }
    QStringList lines{TextOfCount(progress), TextOfProgress(progress)};
    lines.removeAll(QString());
    form.lblFound.SetCaption(lines.join(u'\n'));
    form.ProgressGuage.SetVisible(!progress.isDone);
    if (progress.total > 0)
        form.ProgressGuage.SetFloodPercent(100.0 * static_cast<double>(progress.read) /
                                           static_cast<double>(progress.total));
    form.cmdOpen.SetEnabled(!found.hits.isEmpty());
    PlaceCount();
}

bool IsSame(const Findable& one, const Findable& other)
{
    return one.title == other.title && one.place == other.place && one.file == other.file;
}

/// The row that is to be chosen among other hits: while more is read the same hit as before, else the best.
int RowToChoose(const QList<Findable>& hits, bool isSameQuestion)
{
    const int chosen = frmFind->lstFound.ListIndex();
    if (chosen < 0 || !isSameQuestion)
        return 0;
    const Findable before = found.hits[chosen];
    const auto stays =
        std::find_if(hits.begin(), hits.end(), [&](const Findable& hit) { return IsSame(hit, before); });
    return stays != hits.end() ? static_cast<int>(stays - hits.begin()) : 0;
}

void ShowAnswer(const IndexAnswer& answer)
{
    RichListBox& list = frmFind->lstFound;
    QList<RichListRow> rows;
    QList<Findable> hits;
    for (const IndexHit& hit : answer.best) {
        hits.append(finder->Entry(hit.entry));
        rows.append({hits.last().title, hits.last().place, hit.line.text, hit.line.found});
    }
    const bool isSameQuestion = answer.question == found.question;
    const int choice = RowToChoose(hits, isSameQuestion);
    found.question = answer.question;
    found.count = answer.count;
    found.hits = std::move(hits);
    list.SetRows(rows);
    // The best hit of other words comes into view, and is told to a screen reader, although its row was the
    // chosen one already.
    if (!rows.isEmpty() && (!isSameQuestion || list.ListIndex() != choice))
        list.SetListIndex(choice);
}

bool IsAnswered()
{
    return found.question == frmFind->txtFind.Text();
}

void OpenChosen();

/// What is still to be read may hold the first hit, so Return waits for that as well; but nothing comes up
/// before a person who went on to another window meanwhile.
void OpenFirst(const IndexProgress& progress)
{
    if (!found.opensFirst || !IsAnswered() || (found.hits.isEmpty() && !progress.isDone))
        return;
    found.opensFirst = false;
    const Control* active = Screen.ActiveControl();
    if (active != nullptr && &active->OwnerForm() == &*frmFind)
        OpenChosen();
}

void TakeNews()
{
    if (!frmFind.IsLoaded())
        return;
    // In this order: when all was read, the answer is that to all.
    const IndexProgress progress = finder->Progress();
    const std::optional<IndexAnswer> answer = finder->TakeAnswer();
    if (answer && answer->question == frmFind->txtFind.Text())
        ShowAnswer(*answer);
    ShowState(progress);
    OpenFirst(progress);
}

void RefreshFinder()
{
    if (finder != nullptr) {
        finder->Refresh();
        return;
    }
    finder = new Finder([] { RunHandler(TakeNews); });
    Form1->Adopt(*finder);
}

void AskNow()
{
    frmFind->TypingRest.SetInterval(0);
    RefreshFinder();
    finder->Ask(frmFind->txtFind.Text());
    ShowState(finder->Progress());
}

void txtFind_Change()
{
    found.opensFirst = false;
    frmFind->TypingRest.SetInterval(typingRest);
}

/// The handlers of the main window are for a window that takes input: not while it copies files, say.
void OpenChosen()
{
    frmFindControls& form = *frmFind;
    const int chosen = form.lstFound.ListIndex();
    if (chosen < 0)
        return;
    if (!Form1->Enabled()) {
        form.lblFound.SetCaption(u"The main window is busy"_s);
        return;
    }
    const Findable hit = found.hits[chosen]; // the list may change while it is open
    hit.open(found.question);
}

/// Letters that were not asked for yet are asked for now, and what is found first is opened.
void OpenWhatIsTyped()
{
    if (!LooksForSomething(frmFind->txtFind.Text()))
        return;
    if (IsAnswered() && !found.hits.isEmpty()) {
        OpenChosen();
        return;
    }
    if (!IsAnswered())
        AskNow();
    found.opensFirst = !IsAnswered() || !finder->Progress().isDone;
}

void Walk(int rows)
{
    RichListBox& list = frmFind->lstFound;
    if (list.ListCount() > 0)
        list.SetListIndex(std::clamp(list.ListIndex() + rows, 0, list.ListCount() - 1));
}

void txtFind_KeyDown(int code, int /*shift*/)
{
    const int page = frmFind->lstFound.RowsInView();
    if (code == key::down)
        Walk(1);
    else if (code == key::up)
        Walk(-1);
    else if (code == key::pageDown)
        Walk(page);
    else if (code == key::pageUp)
        Walk(-page);
    else if (code == key::enter)
        OpenWhatIsTyped();
}

void lstFound_KeyDown(int code, int /*shift*/)
{
    if (code == key::enter)
        OpenChosen();
}

/// Over the lower left of the photo: the caption of the photo stays in view.
void frmFind_Load()
{
    frmFindControls& form = *frmFind;
    Form1Controls& main = *Form1;
    found = {};
    const double frame = main.Height() - main.ScaleHeight() * twipsPerPixel; // caption and menu bar
    const double bottom = frame + (main.Image4.Top() + main.Image4.Height()) * twipsPerPixel;
    form.SetLeft(main.Left() + main.Image4.Left() * twipsPerPixel);
    form.SetTop(std::max(0.0, main.Top() + bottom - form.Height()));
}

void frmFind_Resize()
{
    constexpr double edge = 120;   // twips, around everything
    constexpr double footer = 900; // below the list
    frmFindControls& form = *frmFind;
    const double width = std::max(0.0, form.ScaleWidth() - 2 * edge);
    const double bottom = form.ScaleHeight();
    form.txtFind.SetWidth(width);
    form.lstFound.SetWidth(width);
    form.lstFound.SetHeight(std::max(0.0, bottom - footer - form.lstFound.Top()));
    form.cmdClose.Move(edge + width - form.cmdClose.Width(), bottom - 630);
    form.cmdOpen.Move(form.cmdClose.Left() - edge - form.cmdOpen.Width(), bottom - 630);
    const double rest = std::max(0.0, form.cmdOpen.Left() - 2 * edge);
    form.ProgressGuage.Move(edge, bottom - 300, rest, form.ProgressGuage.Height());
    form.lblFound.SetWidth(rest);
    PlaceCount();
}

void ShowFind()
{
    frmFindControls& form = *frmFind;
    form.ShowOver(*Form1);
    form.SetFocus();
    form.txtFind.SetFocus();
    form.txtFind.SelectAll();
    AskNow();
}

void Form1_KeyDown(int code, int shift)
{
    if (code == key::letterF && shift == held::ctrl)
        ShowFind();
}

} // namespace

void BindFindForm()
{
    Form1.Bind([](Form1Controls& form) { form.KeyDown = Form1_KeyDown; });
    frmFind.Bind([](frmFindControls& form) {
        form.Load = frmFind_Load;
        form.Resize = frmFind_Resize;
        form.KeyDown = Form1_KeyDown;
        form.TypingRest.Tick = AskNow;
        form.txtFind.Change = txtFind_Change;
        form.txtFind.KeyDown = txtFind_KeyDown;
        form.lstFound.KeyDown = lstFound_KeyDown;
        form.lstFound.RowDblClick = OpenChosen;
        form.cmdOpen.Click = OpenWhatIsTyped;
        form.cmdClose.Click = [] { frmFind.Unload(); };
    });
}

} // namespace torvik
