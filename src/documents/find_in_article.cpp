#include "documents/find_in_article.h"

#include "documents/bind_documents.h"
#include "program/program_state.h"
#include "program/search_words.h"
#include "windows/article_window.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr double lowerEdge = 6255;    // twips, of the text while the bar is closed
constexpr double gap = 105;           // between text and bar
constexpr qsizetype mostMarks = 5000; // each line is painted with a look at every mark

/// What the bar has found in the text on show.
struct FoundPlaces {
    QList<TextRange> places;
    qsizetype present = -1;
};
FoundPlaces found;

void OpenBar()
{
    txtFormControls& form = *txtForm;
    form.rtbText.SetHeight(form.panFind.Top() - gap - form.rtbText.Top());
    form.panFind.Show();
}

void CloseBar()
{
    txtFormControls& form = *txtForm;
    form.panFind.Hide();
    form.rtbText.SetHeight(lowerEdge - form.rtbText.Top());
    form.rtbText.SetMarks({}, -1);
    form.rtbText.SetFocus();
    found = {};
}

/// Of very many places those around the present one.
void MarkPlaces()
{
    const qsizetype first = std::max<qsizetype>(0, found.present - mostMarks / 2);
    txtForm->rtbText.SetMarks(found.places.mid(first, mostMarks), found.present - first);
}

void ShowPresent(const QString& note = {})
{
    txtFormControls& form = *txtForm;
    MarkPlaces();
    if (found.present >= 0)
        form.rtbText.BringIntoView(found.places[found.present]);
    if (found.places.isEmpty())
        form.lblFindText.SetCaption(LookForSomething(SearchTermsOf(form.txtFindText.Text())) ? u"Not found"_s
                                                                                             : QString());
    else
        form.lblFindText.SetCaption(
            u"%1 of %2%3"_s.arg(found.present + 1).arg(found.places.size()).arg(note));
    const bool canWalk = found.places.size() > 1;
    form.cmdFindNext.SetEnabled(canWalk);
    form.cmdFindBefore.SetEnabled(canWalk);
}

/// While a word is being typed the present place stays where it was, or goes on from there.
void FindTyped()
{
    const qsizetype from = found.present >= 0 ? found.places[found.present].begin : 0;
    const QString text = txtForm->rtbText.Text();
    found.places = PlacesOf(SearchTermsOf(txtForm->txtFindText.Text()), text, text.size());
    const auto next = std::find_if(found.places.begin(), found.places.end(),
                                   [from](const TextRange& place) { return place.begin >= from; });
    found.present = next != found.places.end() ? next - found.places.begin() : found.places.size() - 1;
    ShowPresent();
}

void StepToNext()
{
    const qsizetype count = found.places.size();
    if (count == 0)
        return;
    const bool isLast = found.present + 1 == count;
    found.present = isLast ? 0 : found.present + 1;
    ShowPresent(isLast ? u", on from the top"_s : QString());
}

void StepToPrevious()
{
    const qsizetype count = found.places.size();
    if (count == 0)
        return;
    const bool isFirst = found.present == 0;
    found.present = isFirst ? count - 1 : found.present - 1;
    ShowPresent(isFirst ? u", on from the end"_s : QString());
}

void Step(int shift)
{
    if ((shift & held::shift) != 0)
        StepToPrevious();
    else
        StepToNext();
}

void AskForWords()
{
    OpenBar();
    txtForm->txtFindText.SetFocus();
    txtForm->txtFindText.SelectAll();
    FindTyped();
}

void txtForm_KeyDown(int code, int shift)
{
    const bool isOpen = txtForm->panFind.Visible();
    const bool isFind = code == key::letterF && shift == held::ctrl;
    if (isFind || (code == key::f3 && !isOpen))
        AskForWords();
    else if (code == key::f3)
        Step(shift);
    else if (code == key::escape && isOpen)
        CloseBar();
}

void txtFindText_KeyDown(int code, int shift)
{
    if (code == key::enter)
        Step(shift);
}

} // namespace

void FindWhatWasAskedFor()
{
    const QString wanted = std::exchange(state.TextToFind, {});
    if (PlacesOf(SearchTermsOf(wanted), txtForm->rtbText.Text(), 1).isEmpty())
        return;
    found = {};
    OpenBar();
    txtForm->txtFindText.SetText(wanted);
    FindTyped();
}

void BindFindInArticle()
{
    txtForm.Bind([](txtFormControls& form) {
        found = {};
        form.KeyDown = txtForm_KeyDown;
        form.txtFindText.Change = FindTyped;
        form.txtFindText.KeyDown = txtFindText_KeyDown;
        form.cmdFindNext.Click = StepToNext;
        form.cmdFindBefore.Click = StepToPrevious;
    });
}

} // namespace torvik
