#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/form_window.h"
#include "windows/article_window.h"
#include "windows/main_window.h"

#include <QLabel>

using namespace Qt::StringLiterals;
using namespace torvik;

/// The controls of the main window: names, captions, tool tips, places.
class MainWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 1);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void the_window_has_its_caption()
    {
        QCOMPARE(Form1->Caption(), u"The Torvik Vollandry    2001"_s);
        QCOMPARE(Form1->ScaleMode(), Scale::Pixels);
    }

    void every_control_stands_in_its_place_data()
    {
        QTest::addColumn<double>("left");
        QTest::addColumn<double>("top");
        QTest::addColumn<double>("width");
        QTest::addColumn<double>("height");
        const auto row = [](const char* name, double left, double top, double width, double height) {
            QTest::newRow(name) << left << top << width << height;
        };
        row("cmdDesc", 120, 0, 1335, 330);
        row("cmdOptions", 1440, 0, 1335, 330);
        row("cmdStats", 2760, 0, 1335, 330);
        row("cmdColors", 4080, 0, 1335, 330);
        row("cmdScript", 5280, 0, 1335, 330);
        row("cmdEmblem", 6600, 0, 1335, 330);
        row("cmdClipArt", 7920, 0, 1335, 330);
        row("cmdAd", 9240, 0, 1455, 330);
        row("cmdNostalgia", 10680, 0, 1215, 330);
        row("Image4", 120, 360, 11640, 7050);
        row("SpinButton1", 120, 360, 615, 300);
        row("panPhoto", 720, 360, 390, 300);
        row("panYear", 1080, 360, 810, 300);
        row("rtbDetails", 6000, 840, 4935, 975);
        row("Frame1", 0, 7560, 12015, 855);
    }

    void every_control_stands_in_its_place()
    {
        QFETCH(double, left);
        QFETCH(double, top);
        QFETCH(double, width);
        QFETCH(double, height);
        const Control* control = Find(QString::fromLatin1(QTest::currentDataTag()));
        QVERIFY(control != nullptr);
        QCOMPARE(control->Left() * 15, left);
        QCOMPARE(control->Top() * 15, top);
        QCOMPARE(control->Width() * 15, width);
        QCOMPARE(control->Height() * 15, height);
    }

    void the_year_buttons_stand_in_two_rows()
    {
        QCOMPARE(Form1->cmdYR.Count(), 35);
        for (int index = 1; index <= 35; ++index) {
            const Button& button = Form1->cmdYR(index);
            const bool upper = index <= 23;
            const int column = upper ? index - 1 : index - 24;
            QCOMPARE(button.Name(), u"cmdYR(%1)"_s.arg(index));
            QCOMPARE(button.Top(), upper ? 0.0 : 360.0);
            QCOMPARE(button.Height(), 375.0);
            QCOMPARE(button.Left(), column == 0 ? 240.0 : 1080.0 + 480.0 * (column - 1));
            QCOMPARE(button.Width(), column == 0 ? 840.0 : 510.0);
        }
        QCOMPARE(Form1->cmdSlide.Left(), 6360.0);
        QCOMPARE(Form1->cmdExit.Left(), 9000.0);
        for (const Button* button : {&Form1->cmdSlide, &Form1->cmdExit}) {
            QCOMPARE(button->Top(), 360.0);
            QCOMPARE(button->Width(), 2685.0);
            QCOMPARE(button->Height(), 375.0);
        }
    }

    void the_year_buttons_carry_their_years()
    {
        QStringList captions;
        for (int index = 1; index <= 35; ++index)
            captions.append(Form1->cmdYR(index).Caption());
        QCOMPARE(captions.join(u' '),
                 u"1967 68 69 70 71 72 73 74 75 76 77 78 79 80 81 82 83 84 85 86 87 88 89 "
                 "1990 91 92 93 94 95 96 97 98 99 00 01"_s);
    }

    void the_buttons_carry_their_captions()
    {
        QCOMPARE(Form1->cmdExit.Caption(), u"Exit"_s);
        QCOMPARE(Form1->cmdSlide.Caption(), u"SlideShow"_s);
        QCOMPARE(Form1->cmdDesc.Caption(), u"Description"_s);
        QCOMPARE(Form1->cmdStats.Caption(), u"Statistics"_s);
        QCOMPARE(Form1->cmdColors.Caption(), u"Colors"_s);
        QCOMPARE(Form1->cmdOptions.Caption(), u"Options"_s);
        QCOMPARE(Form1->cmdNostalgia.Caption(), u"Nostalgia"_s);
        QCOMPARE(Form1->cmdAd.Caption(), u"Advertisement"_s);
        QCOMPARE(Form1->cmdEmblem.Caption(), u"Emblem"_s);
        QCOMPARE(Form1->cmdScript.Caption(), u"Script"_s);
        QCOMPARE(Form1->cmdClipArt.Caption(), u"ClipArt "_s);
    }

    void the_tool_tips_are_there()
    {
        QCOMPARE(Form1->panPhoto.ToolTip(), u"Double-click to show photo #1"_s);
        QCOMPARE(Form1->Image4.ToolTip(),
                 u"Click the Right mouse button to copy photo or add to Screen Saver"_s);
        for (const PictureBox* pane : {&Form1->picEmblem, &Form1->picEmbSide, &Form1->picEmbRear,
                                       &Form1->picScript, &Form1->picClipArt})
            QCOMPARE(pane->ToolTip(), u"Click the Right mouse button to copy"_s);
    }

    void every_control_says_something_to_a_screen_reader()
    {
        int named = 0;
        const auto widgets = Form1->Host().findChildren<QWidget*>();
        for (const QWidget* widget : widgets) {
            if (Control::OfWidget(widget) == nullptr)
                continue;
            QVERIFY(!widget->objectName().isEmpty());
            QVERIFY2(!widget->accessibleName().trimmed().isEmpty(), qPrintable(widget->objectName()));
            ++named;
        }
        QVERIFY(named > 150);
        QCOMPARE(Form1->Window().objectName(), u"Form1"_s);
        QCOMPARE(Form1->MMControl1.objectName(), u"MMControl1"_s);
    }

    void the_arrows_are_parts_of_the_spin_button_with_names_of_their_own()
    {
        const auto arrow = [](const char* name) {
            return Form1->SpinButton1.Widget().findChild<QWidget*>(QString::fromLatin1(name));
        };
        QCOMPARE(arrow("SpinButton1(Up)")->accessibleName(), u"Next photo"_s);
        QCOMPARE(arrow("SpinButton1(Down)")->accessibleName(), u"Previous photo"_s);
        QVERIFY(arrow("SpinButton1(Down)")->x() < arrow("SpinButton1(Up)")->x());
    }

    void overlays_panels_caption_and_file_name_are_hidden_at_first()
    {
        for (const QString& name : {u"picEmblem"_s, u"picEmbSide"_s, u"picEmbRear"_s, u"picScript"_s,
                                    u"picClipArt"_s, u"pnlSSaver"_s, u"pnlProgress"_s, u"pnlPrint"_s,
                                    u"pnlSound"_s, u"rtbDetails"_s, u"txtFile"_s}) {
            const Control* control = Find(name);
            QVERIFY2(control != nullptr, qPrintable(name));
            QVERIFY2(!control->Visible(), qPrintable(name));
        }
    }

    void the_photo_says_its_file_name_to_a_screen_reader()
    {
        QCOMPARE(Form1->Image4.Widget().accessibleName(), u"67A.JPG"_s);
        QCOMPARE(Form1->panYear.Widget().accessibleName(), u"1967"_s);
        QCOMPARE(Form1->panPhoto.Widget().accessibleName(), u"1"_s);
        QCOMPARE(Form1->cmdYR(3).Widget().accessibleName(), u"69"_s);
    }

    void a_long_title_is_not_cut_off()
    {
        Form1->panYear.SetCaption(u"Danbury Mint Die Cast Models "_s);
        const int needed = Form1->panYear.Widget().fontMetrics().horizontalAdvance(Form1->panYear.Caption());
        QVERIFY(Form1->panYear.Width() > needed);
        Form1->panYear.SetCaption(u"1967"_s);
        QCOMPARE(Form1->panYear.Width(), 54.0);
    }

    /// Few people open all of the panels, and drawing for nobody would delay the start.
    void the_artwork_of_a_panel_is_drawn_when_the_panel_is_first_seen_data()
    {
        QTest::addColumn<QString>("picture");
        QTest::newRow("pnlPrint") << u"Image3"_s;
        QTest::newRow("pnlSSaver") << u"Image2"_s;
        QTest::newRow("pnlProgress") << u"Image1"_s;
        QTest::newRow("pnlSound") << u"Picture5"_s;
    }
    void the_artwork_of_a_panel_is_drawn_when_the_panel_is_first_seen()
    {
        QFETCH(QString, picture);
        Control* panel = Find(QString::fromLatin1(QTest::currentDataTag()));
        QVERIFY(panel != nullptr);
        const auto* shown = panel->Widget().findChild<QLabel*>(picture);
        QVERIFY(shown != nullptr);
        QVERIFY(shown->pixmap().isNull());
        panel->Show();
        panel->ZOrder();
        program_->Settle();
        QVERIFY(!shown->pixmap().isNull());
    }

    void the_common_dialogs_are_there_with_their_stored_properties()
    {
        QCOMPARE(Form1->dlgPrint.objectName(), u"dlgPrint"_s);
        QCOMPARE(Form1->dlgCommon1.objectName(), u"dlgCommon1"_s);
        QCOMPARE(Form1->dlgCommon1.DefaultExt(), u"cbl"_s);
        QCOMPARE(Form1->dlgCommon1.DialogTitle(), u"Select COBOL Source File"_s);
        QCOMPARE(Form1->dlgCommon1.Filter(), u"*.cbl|*.cbl|*.cob|*.cob|All (*.*)|*.*"_s);
        QCOMPARE(txtForm->CommonDialog1.objectName(), u"CommonDialog1"_s);
        QCOMPARE(txtForm->CommonDialog1.DefaultExt() + txtForm->CommonDialog1.DialogTitle() +
                     txtForm->CommonDialog1.Filter(),
                 QString());
    }

private:
    static Control* Find(const QString& name)
    {
        return Control::OfWidget(Form1->Host().findChild<QWidget*>(name));
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(MainWindowTest)
#include "main_window_test.moc"
