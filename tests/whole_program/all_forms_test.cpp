#include "support/all_forms.h"
#include "support/test_class.h"

#include <QAccessible>
#include <QAction>
#include <QMenuBar>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// The names that an array's members have.
QStringList Members(const QString& name, int first, int last, int step = 1)
{
    QStringList names;
    for (int index = first; index <= last; index += step)
        names += u"%1(%2)"_s.arg(name).arg(index);
    return names;
}

QStringList Parts(const QString& name, const QString& parts)
{
    QStringList names = {name};
    for (const QString& part : parts.split(u' '))
        names += u"%1(%2)"_s.arg(name, part);
    return names;
}

QStringList Words(const char* words)
{
    return QString::fromLatin1(words).split(u' ');
}

const QString barParts = u"Prev Next Play Pause Back Step Stop Record Eject"_s;

/// What a screen reader says of a widget's kind.
QAccessible::Role RoleOf(QWidget& widget)
{
    return QAccessible::queryAccessibleInterface(&widget)->role();
}

QStringList Sorted(QStringList names)
{
    std::sort(names.begin(), names.end());
    return names;
}

QStringList NamesOf(const QList<QWidget*>& widgets)
{
    QStringList names;
    for (const QWidget* widget : widgets)
        names += widget->objectName();
    return Sorted(names);
}

} // namespace

/// Every form as a screen reader and a program that drives it from outside meet it.
class AllFormsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 3);
        program_->Start();
    }
    void cleanup() { program_.reset(); }

    void every_control_has_its_name_and_none_has_two_data() { AddRowForEachForm(); }
    void every_control_has_its_name_and_none_has_two()
    {
        Form& form = FormNamed(*program_, CurrentName());
        QCOMPARE(form.Window().objectName(), CurrentName());
        QCOMPARE(NamesOf(NamedWidgets(form)), Sorted(ControlsOf(CurrentName())));
    }

    void the_menu_has_each_entry_under_its_name()
    {
        program_->PassSplash();
        QStringList names;
        for (const QAction* entry : Form1->Window().MenuBar()->findChildren<QAction*>()) {
            if (entry->objectName().startsWith(u"mnu"_s))
                names += entry->objectName();
        }
        QStringList expected = Words(
            "mnuFile mnuCopy mnuRemove mnuDash2 mnuCopyMovies mnuRemoveMovies mnuDash5 mnuSaver mnuVideo "
            "mnuDash4 mnuPrintPhoto mnuPrnt mnuPrint mnuLine5 mnuCheckResolution mnuLine6 mnuNames mnuLine1 "
            "mnuExit mnuSound mnuMovies mnuLiterature mnuBooks mnuCatalogs mnuMagazines mnuMiscellaneous "
            "mnuAdsList mnuMisc0(0) mnuArtWork mnuTorvikStuff mnuSpecial(5) mnuHideStatus mnuHelp "
            "mnuContents "
            "mnuLine3 mnuQuillonSoftware mnuLine2 mnuWhatsNew mnuIntro mnuNotice mnuCredits mnuSysInfo "
            "mnuContrib mnuLine4 mnuAbout");
        expected += Members(u"mnuMag"_s, 1, 5);
        expected += Members(u"mnuPR"_s, 1, 3);
        expected += Members(u"mnuMisc"_s, 1, 4);
        expected += Members(u"mnuArt"_s, 1, 2);
        expected += Members(u"mnuStuff"_s, 1, 7, 2);
        expected += Members(u"mnuSpecialty"_s, 0, 1);
        QCOMPARE(Sorted(names), Sorted(expected));
    }

    void what_is_never_seen_has_its_name_too()
    {
        QCOMPARE(Unseen(*Form2, "MMControl1"), &Form2->MMControl1);
        QVERIFY(Form2->Window().findChild<QTimer*>(u"Timer1"_s) != nullptr);
        program_->PassSplash();
        QCOMPARE(Unseen(*Form1, "MMControl1"), &Form1->MMControl1);
        QCOMPARE(Unseen(*Form1, "dlgCommon1"), &Form1->dlgCommon1);
        QCOMPARE(Unseen(*Form1, "dlgPrint"), &Form1->dlgPrint);
        QCOMPARE(Unseen(*txtForm, "CommonDialog1"), &txtForm->CommonDialog1);
        QVERIFY(frmSlide->Window().findChild<QTimer*>(u"Timer1"_s) != nullptr);
        QVERIFY(frmSlide->Window().findChild<QTimer*>(u"Timer3"_s) != nullptr);
    }

    void every_control_is_spoken_of_by_a_name_data() { AddRowForEachForm(); }
    void every_control_is_spoken_of_by_a_name()
    {
        Form& form = FormNamed(*program_, CurrentName());
        QVERIFY(!form.Window().accessibleName().isEmpty());
        for (QWidget* widget : NamedWidgets(form)) {
            QVERIFY2(!widget->accessibleName().trimmed().isEmpty(), qPrintable(widget->objectName()));
            const auto* spoken = QAccessible::queryAccessibleInterface(widget);
            QCOMPARE(spoken->text(QAccessible::Name), widget->accessibleName());
        }
    }

    void every_control_is_told_as_what_it_is_data() { AddRowForEachForm(); }
    void every_control_is_told_as_what_it_is()
    {
        Form& form = FormNamed(*program_, CurrentName());
        QCOMPARE(RoleOf(form.Window()), QAccessible::Window);
        for (QWidget* widget : NamedWidgets(form)) {
            const QList<QAccessible::Role> fitting = RolesFor(widget->objectName());
            QVERIFY2(
                fitting.contains(RoleOf(*widget)),
                qPrintable(
                    u"%1 has role %2"_s.arg(widget->objectName()).arg(static_cast<int>(RoleOf(*widget)))));
        }
    }

    void a_gauge_tells_its_percentage()
    {
        program_->PassSplash();
        Panel& gauge = Form1->ProgressGuage;
        gauge.SetFloodPercent(40);
        auto* spoken = QAccessible::queryAccessibleInterface(&gauge.Widget());
        QVERIFY(spoken->valueInterface() != nullptr);
        QCOMPARE(spoken->valueInterface()->currentValue().toInt(), 40);
        QCOMPARE(spoken->valueInterface()->minimumValue().toInt(), 0);
        QCOMPARE(spoken->valueInterface()->maximumValue().toInt(), 100);
        QCOMPARE(spoken->text(QAccessible::Name), u"40%"_s);
        QVERIFY(QAccessible::queryAccessibleInterface(&Form1->panYear.Widget())->valueInterface() == nullptr);
    }

private:
    /// What is found in a form's window by its name.
    static QObject* Unseen(Form& form, const char* name)
    {
        return form.Window().findChild<QObject*>(QLatin1String(name));
    }

    static QString CurrentName() { return QString::fromLatin1(QTest::currentDataTag()); }

    static QStringList ControlsOf(const QString& form)
    {
        if (form == u"Form2"_s)
            return Words("Image1 SSPanel1 Picture3");
        if (form == u"txtForm"_s)
            return Words("rtbText SSCommand1 cmdPrint SSCommand2 SSCommand3 panFind txtFindText "
                         "cmdFindBefore cmdFindNext lblFindText");
        if (form == u"frmFind"_s)
            return Words("txtFind lstFound lblFound ProgressGuage cmdOpen cmdClose");
        if (form == u"frmSlide"_s)
            return Words("Image1 pnlPhotoNumber panYear panInterval SSCommand1 SSCommand2 PnlCoStar "
                         "StatusDate StatusDay StatusTime cmdExit") +
                   Parts(u"mmSlide"_s, barParts) + Parts(u"SpinInterval"_s, u"Up Down"_s);
        if (form == u"frmScroll"_s)
            return Words("Image1 picParent picChild HScroll1 VScroll1 SSCommand1");
        if (form == u"frmMovie"_s)
            return Words("PicMovie SSPanel1 HScroll1 SSCommand1 SSCommand2") + Members(u"optMovie"_s, 0, 5) +
                   Parts(u"MMControl1"_s, barParts + u" Position"_s);
        if (form == u"frmSSPhoto"_s)
            return Words("Picture1 Text4 SSCommand7 SSCommand8 SSCommand2 SSCommand3 SSCommand1 SSCommand9 "
                         "ProgressGuage");
        if (form == u"frmAbout"_s)
            return Words("SSPanel5 SSPanel1 SSPanel4 SSPanel6 panAbout panQuillon SSPanel2 SSCommand2 "
                         "SSCommand1 Picture2 Image1");
        return ControlsOfForm1();
    }

    static QStringList ControlsOfForm1()
    {
        QStringList names = Words(
            "Frame1 cmdExit cmdSlide panYear panPhoto Image4 rtbDetails txtFile cmdDesc cmdStats cmdColors "
            "cmdOptions cmdNostalgia cmdAd cmdEmblem cmdScript cmdClipArt picEmblem picEmbSide picEmbRear "
            "picScript picClipArt "
            "pnlSSaver Label7 Label8 Label9 panInterval SSCommand4 SSCommand5 SSCommand6 Image2 "
            "pnlProgress Label2 Label1 Text1 ProgressGuage ProgressGuage2 cmdCopy cmdCancel Image1 "
            "pnlPrint Label3 Label5 Label4 Label6 Frame2 cmdPrint cmdOK SSCommand7 Picture3 rtbText Image3 "
            "pnlSound Label10 Picture5 SSCommand3 SSCommand1");
        names += Members(u"cmdYR"_s, 1, 35);
        names += Parts(u"SpinButton1"_s, u"Up Down"_s);
        names += Parts(u"SpinInterval"_s, u"Up Down"_s);
        names += Members(u"Option1"_s, 0, 1);
        names += Members(u"Check1"_s, 0, 7);
        names += Members(u"List1"_s, 0, 1);
        names += Members(u"SSCommand2"_s, 0, 28);
        names += Members(u"lblSound"_s, 0, 28);
        return names;
    }

    /// By the beginnings of the names. A picture without a picture is a label that says what it is for.
    static QList<QAccessible::Role> RolesFor(const QString& name)
    {
        using Roles = QList<QAccessible::Role>;
        static const QList<std::pair<const char*, Roles>> roles = {
            {"MMControl1(Position)", {QAccessible::Slider}},
            {"MMControl1(", {QAccessible::Button}},
            {"mmSlide(", {QAccessible::Button}},
            {"SpinButton1(", {QAccessible::Button}},
            {"SpinInterval(", {QAccessible::Button}},
            {"MMControl1", {QAccessible::Grouping}},
            {"mmSlide", {QAccessible::Grouping}},
            {"Spin", {QAccessible::Grouping}},
            {"Frame", {QAccessible::Grouping}},
            {"cmd", {QAccessible::Button}},
            {"SSCommand", {QAccessible::Button}},
            {"Option1(", {QAccessible::RadioButton}},
            {"optMovie(", {QAccessible::RadioButton}},
            {"Check1(", {QAccessible::CheckBox}},
            {"List1(", {QAccessible::List}},
            {"lst", {QAccessible::List}},
            {"Text", {QAccessible::EditableText}},
            {"txt", {QAccessible::EditableText}},
            {"rtb", {QAccessible::StaticText}},
            {"Label", {QAccessible::StaticText}},
            {"lbl", {QAccessible::StaticText}},
            {"HScroll1", {QAccessible::ScrollBar}},
            {"VScroll1", {QAccessible::ScrollBar}},
            {"ProgressGuage", {QAccessible::ProgressBar}},
            {"pnlPhotoNumber", {QAccessible::StaticText}},
            {"pnl", {QAccessible::Grouping}},
            {"panAbout", {QAccessible::Grouping}},
            {"panFind", {QAccessible::Grouping}},
            {"SSPanel1", {QAccessible::StaticText, QAccessible::Grouping}}, // carries a picture on two forms
            {"SSPanel", {QAccessible::StaticText}},
            {"pan", {QAccessible::StaticText}},
            {"PnlCoStar", {QAccessible::StaticText}},
            {"Status", {QAccessible::StaticText}},
            {"Image", {QAccessible::Graphic, QAccessible::StaticText}},
            {"Pic", {QAccessible::Graphic, QAccessible::StaticText}},
            {"pic", {QAccessible::Graphic, QAccessible::StaticText}},
        };
        for (const auto& [beginning, fitting] : roles) {
            if (name.startsWith(QLatin1String(beginning)))
                return fitting;
        }
        return {};
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(AllFormsTest)
#include "all_forms_test.moc"
