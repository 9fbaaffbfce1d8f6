#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "support/program.h"
#include "ui/forms/screen.h"
#include "windows/main_window.h"
#include "windows/play_list_window.h"

#include <QFileInfo>
#include <QTest>

using namespace torvik;

/// The mouse on the photo: the walk through all that the browser has, and the play list.
class PhotoClickTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        for (int year = 67; year <= 99; ++year)
            program_->Disc.AddGroup(QString::number(year), 2);
        for (const char* prefix : {"A0", "A1", "TD", "TF", "VM", "ZZ", "SB"})
            program_->Disc.AddGroup(QString::fromLatin1(prefix), 2);
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
            const QString prefix =
                year < 2000 ? QString::number(year - 1900) : QStringLiteral("A%1").arg(year - 2000);
            QCOMPARE(photos[click], prefix + QStringLiteral("A.JPG"));
            QCOMPARE(focus[click],
                     year == 2001 ? QStringLiteral("cmdYR(1)") : QStringLiteral("cmdYR(%1)").arg(click + 3));
        }
        QCOMPARE(titles.mid(34),
                 (QStringList{QStringLiteral("Danbury Mint Die Cast Models "),
                              QStringLiteral("Franklin Mint Die Cast Models "),
                              QStringLiteral("Torvik Metal Signs "), QStringLiteral("Torvik Postage Stamps "),
                              QStringLiteral("1967 "), QStringLiteral("1968")}));
        QCOMPARE(photos.mid(34), (QStringList{QStringLiteral("TDA.JPG"), QStringLiteral("TFA.JPG"),
                                              QStringLiteral("VMA.JPG"), QStringLiteral("ZZA.JPG"),
                                              QStringLiteral("67A.JPG"), QStringLiteral("68A.JPG")}));
        QCOMPARE(focus.mid(34), (QStringList{QStringLiteral("cmdYR(1)"), QStringLiteral("cmdYR(1)"),
                                             QStringLiteral("cmdYR(1)"), QStringLiteral("cmdYR(2)"),
                                             QStringLiteral("cmdYR(2)"), QStringLiteral("cmdYR(3)")}));
        QVERIFY(program_->Messages.Shown().isEmpty());
    }

    void the_cursor_starts_anew_with_each_click()
    {
        program_->Press(Qt::Key_Period);
        program_->Click(Form1->Image4);
        QCOMPARE(int(state.PhotoIndex), 0);
        QCOMPARE(Form1->panPhoto.Caption(), QStringLiteral("1"));
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
        Form1->mnuSpecialty(0).Click.Fire();
        QCOMPARE(Form1->panYear.Caption(), QStringLiteral("The Classic Harwell "));
        program_->Click(Form1->Image4);
        QCOMPARE(Form1->panYear.Caption(), QStringLiteral("1967"));
        QCOMPARE(Program::Focus(), QStringLiteral("cmdYR(2)"));
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
        QCOMPARE(Form1->panYear.Caption(), QStringLiteral("1968"));
    }

    void quick_clicks_count_each()
    {
        QTest::mouseClick(&Form1->Image4.Widget(), Qt::LeftButton);
        QTest::mouseDClick(&Form1->Image4.Widget(), Qt::LeftButton);
        program_->Settle();
        QCOMPARE(Form1->panYear.Caption(), QStringLiteral("1969"));
    }

    void the_right_button_makes_the_folder_and_opens_the_play_list()
    {
        program_->Click(Form1->Image4, Qt::RightButton);
        QVERIFY(QFileInfo(program_->InProgramFolder(QStringLiteral("ssTorviks"))).isDir());
        QVERIFY(frmSSPhoto->Visible());
        QCOMPARE(Form1->panYear.Caption(), QStringLiteral("1967"));
        QVERIFY(!state.YearChosen);
    }

    void a_folder_that_exists_already_causes_no_message()
    {
        program_->AddToProgramFolder(QStringLiteral("ssTorviks/67A.JPG"), "x");
        program_->Click(Form1->Image4, Qt::RightButton);
        QVERIFY(program_->Messages.Shown().isEmpty());
        QVERIFY(frmSSPhoto->Visible());
    }

private:
    std::unique_ptr<Program> program_;
};

QTEST_MAIN(PhotoClickTest)
#include "photo_click_test.moc"
