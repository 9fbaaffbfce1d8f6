#include "browser/select_year.h"
#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/screen.h"
#include "windows/main_window.h"
#include "windows/play_list_window.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;
using namespace torvik;

/// The mouse on the photo: the walk through all that the browser has, and the play list.
class PhotoClickTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        for (int year = 67; year <= 99; ++year)
            program_->disc.AddGroup(QString::number(year), 2);
        for (const char* prefix : {"A0", "A1", "TD", "TF", "VM", "ZZ", "SB"})
            program_->disc.AddGroup(QString::fromLatin1(prefix), 2);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void each_click_goes_one_year_on_and_round_through_the_topics()
    {
        QStringList titles;
        QStringList photos;
        QStringList focus;
        for (int click = 0; click < 40; ++click) {
            program_->Click(Form1->Image4);
            titles.append(Form1->panYear.Caption());
            photos.append(Form1->Image4.Picture().FileName());
            focus.append(Program::Focus());
        }
        for (int click = 0; click < 34; ++click) {
            const int year = 1968 + click;
            QCOMPARE(titles[click], QString::number(year));
            const QString prefix = year < 2000 ? QString::number(year - 1900) : u"A%1"_s.arg(year - 2000);
            QCOMPARE(photos[click], prefix + u"A.JPG"_s);
            QCOMPARE(focus[click], year == 2001 ? u"cmdYR(1)"_s : u"cmdYR(%1)"_s.arg(click + 3));
        }
        QCOMPARE(titles.mid(34),
                 (QStringList{u"Danbury Mint Die Cast Models "_s, u"Franklin Mint Die Cast Models "_s,
                              u"Torvik Metal Signs "_s, u"Torvik Postage Stamps "_s, u"1967 "_s, u"1968"_s}));
        QCOMPARE(photos.mid(34), (QStringList{u"TDA.JPG"_s, u"TFA.JPG"_s, u"VMA.JPG"_s, u"ZZA.JPG"_s,
                                              u"67A.JPG"_s, u"68A.JPG"_s}));
        QCOMPARE(focus.mid(34), (QStringList{u"cmdYR(1)"_s, u"cmdYR(1)"_s, u"cmdYR(1)"_s, u"cmdYR(2)"_s,
                                             u"cmdYR(2)"_s, u"cmdYR(3)"_s}));
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    void the_cursor_starts_anew_with_each_click()
    {
        program_->Press(Qt::Key_Period);
        program_->Click(Form1->Image4);
        QCOMPARE(int(state.PhotoIndex), 0);
        QCOMPARE(Form1->panPhoto.Caption(), u"1"_s);
        QVERIFY(!state.SteppedForward);
        QVERIFY(!state.SteppedBackward);
        QVERIFY(state.YearChosen);
        QCOMPARE(int(state.CurrentYearButton), 2);
        QCOMPARE(int(state.NextYearButton), 2);
        QCOMPARE(Screen.Pointer(), MousePointer::Default);
    }

    void a_click_hides_the_caption()
    {
        Form1->rtbDetails.Show();
        program_->Click(Form1->Image4);
        QVERIFY(!Form1->rtbDetails.Visible());
    }

    void from_a_topic_outside_the_walk_it_goes_to_1967()
    {
        Form1->panYear.SetCaption(u"The Classic Harwell "_s);
        SelectYear();
        state.CurrentYearButton = 0;
        program_->Click(Form1->Image4);
        QCOMPARE(Form1->panYear.Caption(), u"1967"_s);
        QCOMPARE(Program::Focus(), u"cmdYR(2)"_s);
    }

    void in_2001_the_current_button_stays_35_through_three_topics()
    {
        program_->Click(Form1->cmdYR(35));
        for (int topic = 0; topic < 3; ++topic) {
            program_->Click(Form1->Image4);
            QCOMPARE(int(state.CurrentYearButton), 35);
        }
        program_->Click(Form1->Image4);
        QCOMPARE(int(state.CurrentYearButton), 1);
    }

    void the_middle_button_walks_as_the_left_one_does()
    {
        program_->Click(Form1->Image4, Qt::MiddleButton);
        QCOMPARE(Form1->panYear.Caption(), u"1968"_s);
    }

    void quick_clicks_count_each()
    {
        QTest::mouseClick(&Form1->Image4.Widget(), Qt::LeftButton);
        QTest::mouseDClick(&Form1->Image4.Widget(), Qt::LeftButton);
        program_->Settle();
        QCOMPARE(Form1->panYear.Caption(), u"1969"_s);
    }

    void the_right_button_makes_the_folder_and_opens_the_play_list()
    {
        program_->Click(Form1->Image4, Qt::RightButton);
        QVERIFY(QFileInfo(program_->InProgramFolder(u"ssTorviks"_s)).isDir());
        QVERIFY(frmSSPhoto->Visible());
        QCOMPARE(Form1->panYear.Caption(), u"1967"_s);
        QVERIFY(!state.YearChosen);
    }

    void a_folder_that_exists_already_causes_no_message()
    {
        program_->AddToProgramFolder(u"ssTorviks/67A.JPG"_s, "x");
        program_->Click(Form1->Image4, Qt::RightButton);
        QVERIFY(program_->messages.Shown().isEmpty());
        QVERIFY(frmSSPhoto->Visible());
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(PhotoClickTest)
#include "photo_click_test.moc"
