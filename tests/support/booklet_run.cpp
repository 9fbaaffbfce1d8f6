#include "support/booklet_run.h"

#include "program/program_state.h"
#include "support/menu_choice.h"
#include "ui/forms/screen.h"
#include "windows/main_window.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

const QString boxTitle = u"The Torvik Vollandry"_s;

void SelectYearIn(int list, const char* year)
{
    if (year != nullptr && *year != '\0')
        Form1->List1(list).SetListIndex(QByteArray(year).toInt() - 1967);
}

} // namespace

BookletRun::BookletRun()
{
    user.disc.AddGroup(u"67"_s, 1);
    for (const char* prefix : {"67", "68", "69", "98", "99", "A0", "A1"})
        AddYear(user.disc, QString::fromLatin1(prefix));
    AddIntroduction(user.disc);
    AddCover(user.disc);
    user.StartBrowsing();
    ChooseMenu(*Form1, u"mnuPrnt"_s);
    user.Settle();
}

void BookletRun::Print(const QList<int>& boxes, const char* from, const char* to)
{
    for (const int box : boxes)
        user.Click(Form1->Check1(box));
    SelectYearIn(0, from);
    SelectYearIn(1, to);
    user.Click(Form1->cmdPrint);
}

QStringList BookletRun::Texts() const
{
    QStringList texts;
    for (int job = 1; job <= printed.Jobs(); ++job)
        texts.append(printed.Pages(job).join(u'|').simplified());
    return texts;
}

QStringList DocumentsOf(const char* prefix)
{
    const QString ending = u" of "_s + QString::fromLatin1(prefix) + u'.';
    return {u"Description"_s + ending, u"Options"_s + ending, u"Statistics"_s + ending, u"Colors"_s + ending};
}

void AddBoxesWithoutDocuments()
{
    QTest::addColumn<int>("box");
    QTest::newRow(" Clip art") << box::clipArt;
    QTest::newRow(" Engines") << box::engines;
    QTest::newRow(" Options") << box::options;
    QTest::newRow(" Colors") << box::colors;
}

void ExpectSuccess(const BookletRun& run)
{
    QCOMPARE(run.user.messages.Last().text, u"Booklet printed!\r\n"_s);
    QCOMPARE(run.user.messages.Last().style, 48);
    QCOMPARE(run.user.messages.Last().title, boxTitle);
    QCOMPARE(Form1->cmdPrint.Caption(), u"Print Again"_s);
    QCOMPARE(Form1->cmdOK.Caption(), u"Exit"_s);
    QCOMPARE(Screen.Pointer(), MousePointer::Default);
}

void ExpectRefusal(const BookletRun& run, const char* code, const char* text, bool discHint)
{
    QString message =
        u"Error number: "_s + QString::fromLatin1(code) + u"\r\n\r\n"_s + QString::fromLatin1(text);
    if (discHint)
        message += u"\r\n\r\nMake sure that the Torvik Vollandry is in the CDROM drive."_s;
    QCOMPARE(run.user.messages.Count(), 1);
    QCOMPARE(run.user.messages.Last().text, message);
    QCOMPARE(run.user.messages.Last().style, 16);
    QCOMPARE(run.user.messages.Last().title, boxTitle);
    QCOMPARE(state.ErrorCode, QString::fromLatin1(code));
    QVERIFY(Form1->pnlPrint.Visible());
    QVERIFY(Form1->cmdPrint.Enabled());
    QCOMPARE(Form1->cmdPrint.Caption(), u"Print"_s);
    QCOMPARE(Form1->cmdOK.Caption(), u"Cancel"_s);
    QCOMPARE(Screen.Pointer(), MousePointer::Default);
    QVERIFY(Form1->Enabled());
}

void ExpectTexts(const BookletRun& run, const QStringList& texts)
{
    QCOMPARE(run.Texts(), texts);
}

void ExpectPrinted(const BookletRun& run, const QStringList& texts)
{
    ExpectSuccess(run);
    ExpectTexts(run, texts);
}

} // namespace torvik
