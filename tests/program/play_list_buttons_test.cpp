#include "platform/paths/program_folder.h"
#include "program/play_list_buttons.h"
#include "program/program_state.h"
#include "support/browsing_fixture.h"
#include "support/test_class.h"
#include "windows/main_window.h"
#include "windows/play_list_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// The entry of the photo on show, and the buttons that follow it.
class PlayListButtonsTest : public BrowsingFixture {
    Q_OBJECT

private Q_SLOTS:
    void a_photo_has_an_entry_of_its_own_name()
    {
        state.TorviksPathPos = 99;
        QCOMPARE(PlayListEntry(), ProgramFolder() + u"\\ssTorviks\\67A.JPG"_s);
        QCOMPARE(int(state.TorviksPathPos), 3);
    }

    void the_opening_picture_has_its_own_entry()
    {
        Form1->panYear.SetCaption(nothingChosen);
        QCOMPARE(PlayListEntry(), ProgramFolder() + u"\\ssTorviks\\ClassicTorviks.jpg"_s);
    }

    void the_buttons_tell_whether_the_photo_is_listed()
    {
        QVERIFY(frmSSPhoto->SSCommand7.Enabled());
        QVERIFY(!frmSSPhoto->SSCommand8.Enabled());
        program_->AddToProgramFolder(u"SSTORVIKS/67a.jpg"_s, "x");
        UpdatePlayListButtons();
        QVERIFY(!frmSSPhoto->SSCommand7.Enabled());
        QVERIFY(frmSSPhoto->SSCommand8.Enabled());
        QCOMPARE(state.CopyTarget, ProgramFolder() + u"\\ssTorviks\\67A.JPG"_s);
    }

    void a_step_updates_them_at_once_while_the_form_is_not_on_the_screen()
    {
        program_->AddToProgramFolder(u"ssTorviks/67B.JPG"_s, "x");
        program_->Press(Qt::Key_Period);
        QVERIFY(!frmSSPhoto->Visible());
        QVERIFY(!frmSSPhoto->SSCommand7.Enabled());
        program_->Press(Qt::Key_Period);
        QVERIFY(frmSSPhoto->SSCommand7.Enabled());
    }

    void an_update_makes_the_form_anew_after_it_was_closed()
    {
        frmSSPhoto->Show();
        frmSSPhoto.Unload();
        QVERIFY(!frmSSPhoto.IsLoaded());
        UpdatePlayListButtons();
        QVERIFY(frmSSPhoto.IsLoaded());
        QVERIFY(!frmSSPhoto->Visible());
    }
};

TORVIK_TEST(PlayListButtonsTest)
#include "play_list_buttons_test.moc"
