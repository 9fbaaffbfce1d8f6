#include "program/program_state.h"
#include "support/program.h"
#include "support/test_class.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// Showing and hiding the file name of the photo.
class ShowFileNamesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 3);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void the_entry_shows_the_name_and_changes_its_caption()
    {
        state.TorviksPathPos = 0;
        Form1->mnuNames.Click.Fire();
        QVERIFY(state.ShowFileNames);
        QCOMPARE(Form1->mnuNames.Caption(), u"Hide File &Names"_s);
        QVERIFY(Form1->txtFile.Visible());
        QCOMPARE(Form1->txtFile.Text(), u"67A.JPG"_s);
        QCOMPARE(int(state.TorviksPathPos), 3);
    }

    void the_name_follows_each_step()
    {
        Form1->mnuNames.Click.Fire();
        program_->Press(Qt::Key_Period);
        QCOMPARE(Form1->txtFile.Text(), u"67B.JPG"_s);
        program_->Press(Qt::Key_Comma);
        QCOMPARE(Form1->txtFile.Text(), u"67A.JPG"_s);
    }

    void the_entry_hides_it_again()
    {
        Form1->mnuNames.Click.Fire();
        Form1->mnuNames.Click.Fire();
        QVERIFY(!state.ShowFileNames);
        QCOMPARE(Form1->mnuNames.Caption(), u"Show File &Names"_s);
        QVERIFY(!Form1->txtFile.Visible());
    }

    void a_click_on_the_name_hides_it()
    {
        Form1->mnuNames.Click.Fire();
        program_->Click(Form1->txtFile);
        QVERIFY(!state.ShowFileNames);
        QCOMPARE(Form1->mnuNames.Caption(), u"Show File &Names"_s);
        QVERIFY(!Form1->txtFile.Visible());
    }

    void with_nothing_chosen_the_entry_does_nothing()
    {
        Form1->panYear.SetCaption(nothingChosen);
        Form1->mnuNames.Click.Fire();
        QVERIFY(!state.ShowFileNames);
        QVERIFY(!Form1->txtFile.Visible());
        QCOMPARE(Form1->mnuNames.Caption(), u"Show File &Names"_s);
    }

    void the_name_lies_in_front()
    {
        Form1->mnuNames.Click.Fire();
        const QObjectList& siblings = Form1->Host().children();
        QCOMPARE(siblings.last(), static_cast<QObject*>(&Form1->txtFile.Widget()));
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(ShowFileNamesTest)
#include "show_file_names_test.moc"
