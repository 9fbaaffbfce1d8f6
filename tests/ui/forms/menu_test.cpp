#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/forms/menu.h"

#include <QMenu>
#include <QMenuBar>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s, Scale::Pixels, FormBorder::Sizable, true)) {}
    Menu mnuFile{*this, u"mnuFile"_s, u"File"_s};
    Menu mnuCopy{mnuFile, u"mnuCopy"_s, u"Copy CD-ROM photos to hard drive"_s};
    Menu mnuDash{mnuFile, u"mnuDash"_s, u"-"_s};
    Menu mnuNames{mnuFile, u"mnuNames"_s, u"Show File &Names"_s};
    Menu mnuMag{mnuFile, u"mnuMag"_s, u"Torvik && Fords"_s};
    Menu mnuMore{mnuFile, u"mnuMore"_s, u"More"_s};
    Menu mnuLeaf{mnuMore, u"mnuLeaf"_s, u"Leaf"_s};
    Menu mnuMovies{*this, u"mnuMovies"_s, u"Movies"_s};
};

struct BareForm : Form {
    BareForm() : Form(DesignOf(u"Bare"_s)) {}
};

FormHandle<MainForm> Main;
FormHandle<BareForm> bare;

QAction* ActionNamed(const QString& name)
{
    return Main->Window().findChild<QAction*>(name);
}

QMenu* FileMenu()
{
    return ActionNamed(u"mnuFile"_s)->menu();
}

/// What stands in the bar and in the File menu, worked by mouse and keys.
void ClickIn(QMenu* menu, const QString& name)
{
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(ActionNamed(name)).center());
}

} // namespace

/// Menus of a form.
class MenuTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        room_ = std::make_unique<UiRoom>();
        QVERIFY(UiRoom::Open(*Main));
        clicked_.clear();
        for (Menu* menu : {&Main->mnuFile, &Main->mnuCopy, &Main->mnuDash, &Main->mnuNames, &Main->mnuMag,
                           &Main->mnuMore, &Main->mnuLeaf, &Main->mnuMovies})
            menu->Click = [this, menu] { clicked_.append(menu->Name()); };
    }
    void cleanup() { room_.reset(); }

    void entries_stand_in_the_order_in_which_they_were_made()
    {
        const QList<QAction*> bar = Main->Window().MenuBar()->actions();
        QCOMPARE(bar.size(), 2);
        QCOMPARE(bar.at(0)->objectName(), u"mnuFile"_s);
        QCOMPARE(bar.at(1)->objectName(), u"mnuMovies"_s);
        QStringList names;
        for (const QAction* action : FileMenu()->actions())
            names.append(action->objectName());
        QCOMPARE(names, (QStringList{u"mnuCopy"_s, u"mnuDash"_s, u"mnuNames"_s, u"mnuMag"_s, u"mnuMore"_s}));
    }

    void a_click_in_an_open_menu_runs_the_entry()
    {
        QMenuBar* bar = Main->Window().MenuBar();
        QTest::mousePress(bar, Qt::LeftButton, {}, bar->actionGeometry(bar->actions().at(0)).center());
        QCOMPARE(QApplication::activePopupWidget(), FileMenu());
        ClickIn(FileMenu(), u"mnuCopy"_s);
        QCOMPARE(clicked_, QStringList{u"mnuCopy"_s});
    }

    void an_entry_of_the_bar_itself_can_be_clicked()
    {
        QMenuBar* bar = Main->Window().MenuBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(bar->actions().at(1)).center());
        QCOMPARE(clicked_, QStringList{u"mnuMovies"_s});
    }

    void an_entry_with_a_submenu_opens_it_and_is_no_click()
    {
        FileMenu()->popup({0, 0});
        ClickIn(FileMenu(), u"mnuMore"_s);
        QMenu* more = ActionNamed(u"mnuMore"_s)->menu();
        QTRY_VERIFY(more->isVisible());
        QVERIFY(clicked_.isEmpty());
        ClickIn(more, u"mnuLeaf"_s);
        QCOMPARE(clicked_, QStringList{u"mnuLeaf"_s});
    }

    void the_mnemonic_works_in_the_open_menu()
    {
        FileMenu()->popup({0, 0});
        QTest::keyClick(FileMenu(), Qt::Key_N);
        QCOMPARE(clicked_, QStringList{u"mnuNames"_s});
    }

    void a_doubled_ampersand_is_no_mnemonic_and_shows_as_one()
    {
        FileMenu()->popup({0, 0});
        FileMenu()->setActiveAction(nullptr);
        QCOMPARE(QKeySequence::mnemonic(Main->mnuMag.Caption()), QKeySequence());
        QCOMPARE(Main->mnuMag.Caption(), u"Torvik && Fords"_s);
        QCOMPARE(ActionNamed(u"mnuMag"_s)->iconText(), u"Torvik & Fords"_s);
        FileMenu()->hide();
    }

    void a_dash_is_a_separator()
    {
        QVERIFY(ActionNamed(u"mnuDash"_s)->isSeparator());
        QVERIFY(!ActionNamed(u"mnuCopy"_s)->isSeparator());
        FileMenu()->popup({0, 0});
        ClickIn(FileMenu(), u"mnuDash"_s);
        QVERIFY(clicked_.isEmpty());
        FileMenu()->hide();
    }

    void a_disabled_entry_does_nothing()
    {
        Main->mnuCopy.SetEnabled(false);
        QVERIFY(!Main->mnuCopy.Enabled());
        FileMenu()->popup({0, 0});
        ClickIn(FileMenu(), u"mnuCopy"_s);
        QVERIFY(clicked_.isEmpty());
        Main->mnuCopy.SetEnabled(true);
        ClickIn(FileMenu(), u"mnuCopy"_s);
        QCOMPARE(clicked_.size(), 1);
    }

    void a_disabled_entry_of_the_bar_does_nothing()
    {
        Main->mnuMovies.SetEnabled(false);
        QMenuBar* bar = Main->Window().MenuBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(bar->actions().at(1)).center());
        QVERIFY(clicked_.isEmpty());
    }

    void a_hidden_entry_takes_no_room()
    {
        QVERIFY(Main->mnuMovies.Visible());
        Main->mnuMovies.SetVisible(false);
        QVERIFY(!Main->mnuMovies.Visible());
        QMenuBar* bar = Main->Window().MenuBar();
        QVERIFY(bar->actionGeometry(bar->actions().at(1)).isEmpty());
        Main->mnuMovies.SetVisible(true);
        QVERIFY(!bar->actionGeometry(bar->actions().at(1)).isEmpty());
    }

    void captions_can_be_changed_and_keep_their_ampersands()
    {
        Main->mnuNames.SetCaption(u"Hide File &Names"_s);
        QCOMPARE(Main->mnuNames.Caption(), u"Hide File &Names"_s);
        QCOMPARE(Main->mnuNames.Name(), u"mnuNames"_s);
    }

    void no_desktop_moves_an_entry()
    {
        for (const QString& name : {u"mnuFile"_s, u"mnuCopy"_s, u"mnuLeaf"_s})
            QCOMPARE(ActionNamed(name)->menuRole(), QAction::NoRole);
        QVERIFY(!Main->Window().MenuBar()->isNativeMenuBar());
    }

    void a_menu_on_a_form_without_a_menu_bar_is_failure_5()
    {
        QCOMPARE(ResumeNext([] { const Menu menu(*bare, u"mnu"_s, u"File"_s); }), 5);
    }

    void a_menu_handler_may_unload_the_form()
    {
        Main->mnuCopy.Click = [] { Main.Unload(); };
        FileMenu()->popup({0, 0});
        ClickIn(FileMenu(), u"mnuCopy"_s);
        QVERIFY(!Main.IsLoaded());
        UiRoom::Settle();
    }

private:
    std::unique_ptr<UiRoom> room_;
    QStringList clicked_;
};

TORVIK_TEST(MenuTest)
#include "menu_test.moc"
