#include "program/program_state.h"
#include "support/desktop.h"
#include "support/modal_visit.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/desktop/shell_execute.h"
#include "ui/forms/form_window.h"
#include "ui/forms/program_end.h"
#include "windows/about_window.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// The about box and the ways to the web site.
class AboutBoxTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 1);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void it_says_what_the_product_is()
    {
        QVERIFY(Visit([] {
            QCOMPARE(frmAbout->SSPanel5.Caption(), u"The"_s);
            QCOMPARE(frmAbout->SSPanel1.Caption(), u"Torvik Vollandry   "_s);
            QCOMPARE(frmAbout->SSPanel4.Caption(), u"2001"_s);
            QCOMPARE(frmAbout->SSPanel6.Caption(), u"2001.03"_s);
            QCOMPARE(frmAbout->panAbout.Caption(), QString());
            QCOMPARE(frmAbout->SSCommand1.Caption(), u"OK"_s);
        }));
    }

    void it_names_the_maker_in_four_lines()
    {
        QVERIFY(Visit([] {
            const QStringList lines = frmAbout->panQuillon.Caption().split(u"\r\n"_s);
            QCOMPARE(lines.size(), 4);
            QCOMPARE(lines[0], u"Quillon Software"_s);
            QVERIFY(!lines[1].isEmpty());
            QVERIFY(!lines[2].isEmpty());
            QCOMPARE(lines[3], u"WEB: "_s + frmAbout->SSCommand2.Caption());
        }));
    }

    void the_legal_notice_begins_with_the_copyright_sign()
    {
        QVERIFY(Visit([] {
            QCOMPARE(frmAbout->SSPanel2.Caption().front().unicode(), ushort{169});
            QVERIFY(frmAbout->SSPanel2.Caption().size() > 20);
        }));
    }

    void the_web_address_is_under_the_domain_for_examples()
    {
        QVERIFY(Visit([] {
            const QUrl address(frmAbout->SSCommand2.Caption());
            QCOMPARE(address.scheme(), u"http"_s);
            QVERIFY(address.host().endsWith(u".example"_s));
        }));
    }

    void it_stands_in_the_middle_of_the_main_windows_size_wherever_that_stands()
    {
        Form1->SetLeft(3000);
        Form1->SetTop(1500);
        QVERIFY(Visit([] {
            QCOMPARE(frmAbout->Left(), (12000 - frmAbout->Width()) / 2);
            QCOMPARE(frmAbout->Top(), (9000 - frmAbout->Height()) / 2);
        }));
    }

    void escape_closes_it_like_ok()
    {
        bool stood = false;
        const ModalVisit visit(
            [&] {
                program_->Settle();
                stood = frmAbout->Visible();
                QTest::keyClick(static_cast<QWidget*>(&frmAbout->Window()), Qt::Key_Escape);
                program_->Settle();
            },
            [] { QVERIFY(!frmAbout.IsLoaded()); });
        Form1->mnuAbout.Click.Fire();
        QVERIFY(visit.Ran());
        QVERIFY(stood);
    }

    void its_button_opens_the_web_site_and_leaves_it_open()
    {
        const Desktop desktop;
        QString address;
        QVERIFY(Visit([&] {
            address = frmAbout->SSCommand2.Caption();
            program_->Click(frmAbout->SSCommand2);
            QVERIFY(frmAbout->Visible());
        }));
        QCOMPARE(desktop.opened, QStringList{address});
    }

    void an_address_that_cannot_be_opened_is_passed_over_in_silence()
    {
        QVERIFY2(ShellExecute(u"http://nobody.example/"_s) <= 32,
                 "This test needs a machine on which nobody takes a web address.");
        Form1->mnuQuillonSoftware.Click.Fire();
        QVERIFY(Visit([&] { program_->Click(frmAbout->SSCommand2); }));
        QCOMPARE(program_->messages.Count(), 0);
        QVERIFY(Form1->Enabled());
        QVERIFY(!ProgramIsEnding());
    }

    void the_menu_entry_opens_the_same_site()
    {
        const Desktop desktop;
        Form1->mnuQuillonSoftware.Click.Fire();
        frmAbout.LoadForm();
        QCOMPARE(desktop.opened, QStringList{frmAbout->SSCommand2.Caption()});
        QCOMPARE(program_->messages.Count(), 0);
    }

    void a_hidden_task_bar_comes_back_but_the_entry_keeps_its_caption()
    {
        const Desktop desktop;
        Form1->mnuHideStatus.Click.Fire();
        program_->Settle();
        QVERIFY(Form1->CoversScreen());
        Form1->mnuQuillonSoftware.Click.Fire();
        program_->Settle();
        QVERIFY(!Form1->CoversScreen());
        QCOMPARE(state.ApiResult, 0); // it was hidden before
        QCOMPARE(Form1->mnuHideStatus.Caption(), u"ShowStatusBar"_s);
        Form1->mnuHideStatus.Click.Fire(); // goes by the caption alone
        QVERIFY(!Form1->CoversScreen());
        QCOMPARE(Form1->mnuHideStatus.Caption(), u"HideStatusBar"_s);
    }

    void without_a_task_bar_looked_up_nothing_is_shown()
    {
        const Desktop desktop;
        state.ApiResult = 99;
        Form1->mnuQuillonSoftware.Click.Fire();
        QCOMPARE(state.ApiResult, 0);
        QCOMPARE(state.TrayWindow, 0);
    }

private:
    /// Opens the box, looks at it and closes it with OK; false when it never came.
    template <typename Look>
    bool Visit(Look&& look)
    {
        const ModalVisit visit(
            [&] {
                program_->Settle();
                look();
                program_->Click(frmAbout->SSCommand1);
            },
            [] { frmAbout.Unload(); });
        Form1->mnuAbout.Click.Fire();
        program_->Settle();
        return visit.Ran() && !frmAbout.IsLoaded();
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(AboutBoxTest)
#include "about_box_test.moc"
