#include "search/find_fixture.h"
#include "support/test_class.h"
#include "ui/forms/clock.h"
#include "ui/forms/form_window.h"
#include "windows/find_window.h"
#include "windows/main_window.h"

#include <QAbstractItemView>
#include <QApplication>

using namespace Qt::StringLiterals;
using namespace torvik;

/// The form that finds words in all that the disc holds: its keys, its list, its texts.
class FindFormTest : public FindFixture {
    Q_OBJECT

private Q_SLOTS:
    void control_and_f_opens_the_form_beside_the_main_window()
    {
        OpenForm();
        QVERIFY(frmFind.IsLoaded() && frmFind->Visible());
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        QCOMPARE(frmFind->Caption(), u"Find"_s);
        QCOMPARE(Program::Focus(), u"txtFind"_s);
        QVERIFY(!frmFind->cmdOpen.Enabled());
    }

    void it_lies_over_the_photo_clear_of_the_caption_of_the_photo()
    {
        OpenForm();
        const double captionEnd = Form1->Top() + (Form1->Image4.Top() + 9 + 106 + 19 + 19) *
                                                     twipsPerPixel; // caption bar and menu bar
        QVERIFY(frmFind->Top() > captionEnd);
        QVERIFY(frmFind->Top() + frmFind->Height() <=
                Form1->Top() + (Form1->Image4.Top() + Form1->Image4.Height() + 38) * twipsPerPixel);
    }

    void hits_come_after_a_rest_of_80_milliseconds()
    {
        OpenForm();
        WaitForEnd();
        QTest::keyClicks(&frmFind->txtFind.Widget(), u"hood"_s);
        Clock::Turn(79);
        program_->Settle();
        QCOMPARE(frmFind->lstFound.ListCount(), 0);
        Clock::Turn(1);
        WaitFor(u"2 found"_s);
        QCOMPARE(Rows().first(),
                 u"The Torvik Vollandry 1969 Description | The [hood] scoop of 1969 is painted."_s);
        QCOMPARE(Rows().last(), u"The Torvik Vollandry Glossary | …more more more more more a [hood]"_s);
        QCOMPARE(frmFind->lstFound.ListIndex(), 0);
        QVERIFY(frmFind->cmdOpen.Enabled());
        QCOMPARE(Program::Focus(), u"txtFind"_s);
    }

    void typing_on_without_a_rest_asks_once()
    {
        OpenForm();
        WaitForEnd();
        QTest::keyClicks(&frmFind->txtFind.Widget(), u"h"_s);
        Clock::Turn(60);
        QTest::keyClicks(&frmFind->txtFind.Widget(), u"ood"_s);
        Clock::Turn(60);
        program_->Settle();
        QCOMPARE(frmFind->lstFound.ListCount(), 0);
        Clock::Turn(20);
        WaitFor(u"2 found"_s);
    }

    void the_list_is_never_empty_between_two_answers()
    {
        Find(u"hood"_s);
        auto& view = static_cast<QAbstractItemView&>(frmFind->lstFound.Widget());
        int fewest = view.model()->rowCount();
        connect(view.model(), &QAbstractItemModel::rowsRemoved, this,
                [&] { fewest = std::min(fewest, view.model()->rowCount()); });
        QTest::keyClick(&frmFind->txtFind.Widget(), Qt::Key_End);
        QTest::keyClicks(&frmFind->txtFind.Widget(), u" scoop"_s);
        program_->Settle();
        Clock::Turn(80);
        QCOMPARE(frmFind->lstFound.ListCount(), 2); // stays until the answer is there
        QCOMPARE(FirstLine(), u"2 found"_s);
        QTest::keyClicks(&frmFind->txtFind.Widget(), u" painted"_s);
        Clock::Turn(80);
        QTRY_COMPARE(frmFind->lstFound.ListCount(), 1);
        QCOMPARE(fewest, 1);
    }

    void nothing_found_is_told_and_an_empty_box_tells_nothing()
    {
        Find(u"submarine"_s);
        QCOMPARE(FirstLine(), u"Nothing found"_s);
        QVERIFY(!frmFind->cmdOpen.Enabled());
        Find(u"hood"_s);
        Find(QString());
        QCOMPARE(frmFind->lstFound.ListCount(), 0);
        QVERIFY(!frmFind->lblFound.Caption().contains(u"ound"_s));
        Find(u"\"-(*"_s);
        QCOMPARE(frmFind->lstFound.ListCount(), 0);
    }

    void arrow_and_page_keys_walk_the_list_while_the_letters_stay()
    {
        Find(u"roof"_s);
        QCOMPARE(frmFind->lstFound.ListCount(), 2);
        QWidget& box = frmFind->txtFind.Widget();
        program_->Press(frmFind->txtFind, Qt::Key_Down);
        QCOMPARE(frmFind->lstFound.ListIndex(), 1);
        program_->Press(frmFind->txtFind, Qt::Key_Down);
        QCOMPARE(frmFind->lstFound.ListIndex(), 1);
        program_->Press(frmFind->txtFind, Qt::Key_PageUp);
        QCOMPARE(frmFind->lstFound.ListIndex(), 0);
        program_->Press(frmFind->txtFind, Qt::Key_PageDown);
        QCOMPARE(frmFind->lstFound.ListIndex(), 1);
        program_->Press(frmFind->txtFind, Qt::Key_Up);
        QCOMPARE(frmFind->lstFound.ListIndex(), 0);
        QVERIFY(box.hasFocus());
        QCOMPARE(frmFind->txtFind.Text(), u"roof"_s);
    }

    void other_words_bring_the_best_hit_into_view()
    {
        for (int year = 70; year < 100; ++year)
            program_->disc.AddDocument(u"%1desc.rtf"_s.arg(year), u"A spare wheel in the boot."_s);
        Find(u"spare"_s);
        QCOMPARE(frmFind->lstFound.ListCount(), 30);
        auto& view = static_cast<QAbstractItemView&>(frmFind->lstFound.Widget());
        view.scrollToBottom(); // by the wheel, which leaves the choice where it is
        QCOMPARE(frmFind->lstFound.ListIndex(), 0);
        Ask(u"spare wheel"_s);
        QTRY_COMPARE(Rows().first(),
                     u"The Torvik Vollandry 1970 Description | A [spare] [wheel] in the boot."_s);
        QVERIFY(view.viewport()->rect().contains(view.visualRect(view.model()->index(0, 0))));
    }

    void of_very_many_hits_the_best_are_shown()
    {
        for (int year = 70; year < 100; ++year) {
            for (const char* ending : {"desc.rtf", "opts.rtf", "stats.rtf", "colors.rtf"})
                program_->disc.AddDocument(QString::number(year) + QLatin1String(ending),
                                           u"A spare wheel."_s);
        }
        OpenForm();
        Ask(u"spare"_s);
        WaitFor(u"120 found, the best 100 are shown"_s);
        QCOMPARE(frmFind->lstFound.ListCount(), 100);
    }

    void escape_closes_the_form_and_the_words_are_kept_for_no_one()
    {
        Find(u"hood"_s);
        program_->Press(frmFind->txtFind, Qt::Key_Escape);
        QVERIFY(!frmFind.IsLoaded());
        OpenForm();
        QCOMPARE(frmFind->txtFind.Text(), QString());
        Find(u"hood"_s);
        QCOMPARE(frmFind->lstFound.ListCount(), 2);
        program_->Click(frmFind->cmdClose);
        QVERIFY(!frmFind.IsLoaded());
    }

    void control_and_f_again_selects_the_words()
    {
        Find(u"hood"_s);
        Form1->Window().activateWindow();
        Form1->cmdYR(3).SetFocus();
        program_->Settle();
        QCOMPARE(Program::Focus(), u"cmdYR(3)"_s);
        QTest::keyClick(&Form1->cmdYR(3).Widget(), Qt::Key_F, Qt::ControlModifier);
        program_->Settle();
        QCOMPARE(Program::Focus(), u"txtFind"_s);
        QCOMPARE(frmFind->txtFind.SelText(), u"hood"_s);
        QCOMPARE(frmFind->lstFound.ListCount(), 2);
    }

    void the_form_takes_the_users_size()
    {
        OpenForm();
        frmFind->SetWidth(12'000);
        frmFind->SetHeight(9'000);
        program_->Settle();
        QCOMPARE(frmFind->txtFind.Width(), frmFind->ScaleWidth() - 240);
        QCOMPARE(frmFind->lstFound.Width(), frmFind->ScaleWidth() - 240);
        QVERIFY(frmFind->lstFound.Top() + frmFind->lstFound.Height() < frmFind->lblFound.Top());
        QVERIFY(frmFind->cmdClose.Left() + frmFind->cmdClose.Width() <= frmFind->ScaleWidth());
        frmFind->SetWidth(600);
        frmFind->SetHeight(600);
        program_->Settle();
        QVERIFY(frmFind->lstFound.Height() >= 0);
    }

    void every_part_has_a_name_for_a_screen_reader()
    {
        OpenForm();
        QCOMPARE(frmFind->txtFind.Widget().accessibleName(),
                 u"Words to find, \"words in a row\", -without"_s);
        QCOMPARE(frmFind->lstFound.Widget().accessibleName(), u"What was found"_s);
        QCOMPARE(frmFind->cmdOpen.Widget().accessibleName(), u"Open"_s);
        QCOMPARE(frmFind->cmdClose.Widget().accessibleName(), u"Close"_s);
        Find(u"silver"_s);
        QVERIFY(frmFind->lblFound.Widget().accessibleName().startsWith(u"1 found"_s));
    }
};

TORVIK_TEST(FindFormTest)
#include "find_form_test.moc"
