#include "search/find_fixture.h"

#include "program/search_words.h"
#include "ui/forms/clock.h"
#include "ui/forms/form_window.h"
#include "windows/find_window.h"
#include "windows/main_window.h"

#include <QTest>
#include <QTextBrowser>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr int longestReading = 60'000; // milliseconds, on a busy machine

bool IsAllRead()
{
    return !frmFind->ProgressGuage.Visible();
}

} // namespace

void FindFixture::init()
{
    program_ = std::make_unique<Program>();
    TestDisc& disc = program_->disc;
    for (const char* group : {"67", "69", "A1", "TD", "M1"})
        disc.AddGroup(QString::fromLatin1(group), 6);
    disc.AddDocument(u"69desc.rtf"_s, u"The hood scoop of 1969 is painted."_s);
    disc.AddDocument(u"a1colors.rtf"_s, u"Velvet black and no other."_s);
    disc.AddDocument(u"nostalgia69.rtf"_s, u"A moon walk."_s);
    disc.AddDocument(u"glossary.rtf"_s,
                     u"Scoop: an opening. "_s + u"more\\par "_s.repeated(200) + u"a hood"_s);
    disc.AddDocument(u"69c.rtf"_s, u"A silver roof."_s);
    disc.AddDocument(u"69a.rtf"_s, u"A golden roof."_s);
    disc.AddDocument(u"tdm010.rtf"_s, u"A tiny bumper."_s);
    disc.AddDocument(u"tda.rtf"_s, u"A tiny wheel."_s);
    disc.AddFile(u"movies/TheSuperGlider.avi"_s, "no movie");
    disc.AddFile(u"wav/taxi.wav"_s, "no sound");
    program_->StartBrowsing();
}

FindFixture::Seen FindFixture::Seen::Now()
{
    Seen seen;
    seen.title = txtForm->Caption();
    seen.marked = MarkedIn(txtForm->rtbText);
    seen.bar = txtForm->panFind.Visible() ? txtForm->lblFindText.Caption() : u"closed"_s;
    auto& pane = static_cast<QTextBrowser&>(txtForm->rtbText.Widget());
    if (!pane.extraSelections().isEmpty()) {
        QTextCursor first = pane.extraSelections().first().cursor;
        first.setPosition(first.selectionStart());
        seen.isFirstInView = pane.viewport()->rect().contains(pane.cursorRect(first));
    }
    return seen;
}

void FindFixture::OpenForm()
{
    QTest::keyClick(&Form1->cmdYR(2).Widget(), Qt::Key_F, Qt::ControlModifier);
    program_->Settle();
    frmFind->Window().activateWindow();
    program_->Settle();
}

void FindFixture::OpenFormOnLongDisc()
{
    for (int year = 70; year < 100; ++year) {
        for (const char* ending : {"desc.rtf", "opts.rtf"})
            program_->disc.AddDocument(QString::number(year) + QLatin1String(ending),
                                       u"much to be read\\par "_s.repeated(4000));
    }
    Form1->KeyDown.Fire(key::letterF, held::ctrl);
    program_->Settle();
    frmFind->Window().activateWindow();
    QVERIFY(frmFind->ProgressGuage.Visible());
}

void FindFixture::WaitForEnd()
{
    QVERIFY(QTest::qWaitFor(IsAllRead, longestReading));
}

void FindFixture::WaitFor(const QString& text)
{
    QVERIFY2(QTest::qWaitFor([&] { return FirstLine() == text && IsAllRead(); }, longestReading),
             qPrintable(frmFind->lblFound.Caption()));
}

void FindFixture::Find(const QString& words)
{
    if (!frmFind.IsLoaded())
        OpenForm();
    Ask({});
    QVERIFY2(
        QTest::qWaitFor([] { return IsAllRead() && frmFind->lstFound.ListCount() == 0; }, longestReading),
        qPrintable(frmFind->lblFound.Caption()));
    Ask(words);
    const auto isCounted = [] { return IsAllRead() && FirstLine().endsWith(u"ound"_s); };
    if (LookForSomething(SearchTermsOf(words)))
        QVERIFY2(QTest::qWaitFor(isCounted, longestReading), qPrintable(frmFind->lblFound.Caption()));
    program_->Settle();
}

void FindFixture::Ask(const QString& words)
{
    frmFind->txtFind.SetText(words);
    Clock::Turn(80);
    program_->Settle();
}

QString FindFixture::FirstLine()
{
    return frmFind->lblFound.Caption().section(u'\n', 0, 0);
}

QStringList FindFixture::Rows()
{
    QStringList rows;
    for (int index = 0; index < frmFind->lstFound.ListCount(); ++index) {
        RichListRow row = frmFind->lstFound.List(index);
        for (auto piece = row.bold.rbegin(); piece != row.bold.rend(); ++piece) {
            row.line.insert(piece->End(), u']');
            row.line.insert(piece->begin, u'[');
        }
        rows.append(row.title + u" | "_s + row.line);
    }
    return rows;
}

QStringList FindFixture::MarkedIn(const RichTextBox& box)
{
    QStringList marked;
    for (const auto& mark : static_cast<QTextBrowser&>(box.Widget()).extraSelections())
        marked.append(mark.cursor.selectedText());
    return marked;
}

} // namespace torvik
