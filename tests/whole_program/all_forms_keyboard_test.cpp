#include "support/all_forms.h"
#include "support/test_class.h"

#include <QApplication>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// What the Tab key comes to from where it is until it has been everywhere.
QStringList TabWalk(QWidget& window)
{
    QStringList visited;
    for (int step = 0; step < 300; ++step) {
        QTest::keyClick(QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : &window,
                        Qt::Key_Tab);
        const QWidget* focused = QApplication::focusWidget();
        if (focused == nullptr || visited.contains(focused->objectName()))
            break;
        visited += focused->objectName();
    }
    return visited;
}

bool IsIn(const QWidget& widget, const QWidget& ancestor)
{
    return &widget == &ancestor || ancestor.isAncestorOf(&widget);
}

} // namespace

/// Every form as one meets it who has no mouse.
class AllFormsKeyboardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 3);
        program_->Start();
    }
    void cleanup() { program_.reset(); }

    void the_tab_key_comes_to_every_control_that_can_be_used_data() { AddRowForEachForm(); }
    void the_tab_key_comes_to_every_control_that_can_be_used()
    {
        Form& form = FormNamed(*program_, QString::fromLatin1(QTest::currentDataTag()));
        ShowAlone(form);
        ExpectTabReaches(form, form.Host());
    }

    void the_tab_key_comes_to_all_of_a_work_panel_and_nothing_lies_over_it_data()
    {
        QTest::addColumn<QString>("panel");
        QTest::newRow("pnlSSaver") << u"pnlSSaver"_s;
        QTest::newRow("pnlProgress") << u"pnlProgress"_s;
        QTest::newRow("pnlPrint") << u"pnlPrint"_s;
        QTest::newRow("pnlSound") << u"pnlSound"_s;
    }
    void the_tab_key_comes_to_all_of_a_work_panel_and_nothing_lies_over_it()
    {
        QFETCH(QString, panel);
        program_->PassSplash();
        OpenPanel(panel);
        auto* area = Form1->Host().findChild<QWidget*>(panel);
        QVERIFY(area != nullptr);
        QVERIFY(area->isVisible());
        ExpectTabReaches(*Form1, *area);
        for (QWidget* widget : area->findChildren<QWidget*>()) {
            if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible())
                continue;
            const QPoint middle = widget->mapTo(&Form1->Host(), widget->rect().center());
            const QWidget* hit = Form1->Host().childAt(middle);
            QVERIFY2(hit != nullptr && IsIn(*hit, *widget), qPrintable(widget->objectName()));
        }
    }

    void in_a_work_panel_the_tab_key_walks_from_the_choices_to_the_buttons()
    {
        program_->PassSplash();
        OpenPanel(u"pnlPrint"_s);
        Form1->Check1(0).SetFocus();
        QCOMPARE(TabWalk(Form1->Window()).mid(0, 11).join(u' '),
                 u"Check1(1) Check1(2) Check1(3) Check1(4) Check1(5) Check1(6) Check1(7) "
                 "List1(0) List1(1) SSCommand7 cmdOK"_s);
    }

    void the_keyboard_walks_on_from_the_photo_and_opens_the_play_list()
    {
        program_->PassSplash();
        Form1->Image4.Widget().setFocus(Qt::TabFocusReason);
        program_->Press(Qt::Key_Menu);
        QVERIFY(frmSSPhoto.IsLoaded() && frmSSPhoto->Visible());
        program_->Click(frmSSPhoto->SSCommand9);
        Form1->Window().activateWindow();
        program_->Settle();
        Form1->Image4.Widget().setFocus(Qt::TabFocusReason);
        program_->Press(Qt::Key_Space);
        QCOMPARE(Form1->panYear.Caption(), u"1968"_s);
    }

private:
    /// On the screen without waiting for its end, as a modal call would.
    void ShowAlone(Form& form)
    {
        form.Show();
        form.Window().activateWindow();
        program_->Settle();
    }

    void OpenPanel(const QString& panel)
    {
        const QStringList handled = {u"pnlSSaver"_s, u"pnlPrint"_s, u"pnlSound"_s};
        if (panel == handled[0])
            Form1->mnuSaver.Click.Fire();
        else if (panel == handled[1])
            Form1->mnuPrnt.Click.Fire();
        else if (panel == handled[2])
            Form1->mnuSound.Click.Fire();
        else
            Form1->pnlProgress.Show();
        Form1->pnlProgress.ZOrder();
        program_->Settle();
    }

    /// The captions and the photo of the slide show only give the focus back to its keys.
    static bool OnlyHelpsTheMouse(const Control* control)
    {
        return control != nullptr && frmSlide.IsLoaded() && &control->OwnerForm() == &*frmSlide &&
               control->Widget().focusPolicy() == Qt::NoFocus;
    }

    /// Everything in `area` that does something when it is used: the controls with a handler of their own and
    /// all that Qt can put the focus on. Of the options of a group the chosen one is enough: the
    /// arrow keys go on from there.
    static void ExpectTabReaches(Form& form, QWidget& area)
    {
        const QStringList walk = TabWalk(form.Window());
        int expected = 0;
        for (QWidget* widget : NamedWidgets(form)) {
            if (!IsIn(*widget, area) || !widget->isVisible() || !widget->isEnabled())
                continue;
            const Control* control = Control::OfWidget(widget);
            const bool isUsed =
                control != nullptr &&
                (control->Click.IsBound() || control->DblClick.IsBound() || control->MouseDown.IsBound());
            const auto* option = dynamic_cast<const OptionButton*>(control);
            if ((!isUsed && widget->focusPolicy() == Qt::NoFocus) ||
                (option != nullptr && !option->Value()) || OnlyHelpsTheMouse(control))
                continue;
            ++expected;
            QVERIFY2(walk.contains(widget->objectName()),
                     qPrintable(widget->objectName() + u" is not in "_s + walk.join(u' ')));
        }
        QVERIFY(expected > 0 || form.Design().name == u"Form2"_s);
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(AllFormsKeyboardTest)
#include "all_forms_keyboard_test.moc"
