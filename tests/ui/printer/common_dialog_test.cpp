#include "runtime/failure.h"
#include "support/test_class.h"
#include "ui/printer/common_dialog.h"
#include "ui/printer/printer.h"
#include "ui/printer/printer_dialog.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

const PrinterSetup landscapeA5{{}, QPageSize(QPageSize::A5), QPageLayout::Landscape};

} // namespace

/// The control that shows the system's dialogs.
class CommonDialogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        SetPrinterResponder({});
        Printer.SetUp(std::nullopt);
    }

    void its_name_and_stored_properties_are_those_of_its_design()
    {
        const CommonDialog plain(u"dlgPrint"_s);
        QCOMPARE(plain.objectName(), u"dlgPrint"_s);
        QCOMPARE(plain.DefaultExt() + plain.DialogTitle() + plain.Filter() + plain.HelpFile(), QString());
        QCOMPARE(plain.Flags(), 0);
        QCOMPARE(plain.HelpCommand(), 0);
        const CommonDialog stored(u"dlg"_s, {u"txt"_s, u"Open"_s, u"*.txt|*.txt"_s});
        QCOMPARE(stored.DefaultExt(), u"txt"_s);
        QCOMPARE(stored.DialogTitle(), u"Open"_s);
        QCOMPARE(stored.Filter(), u"*.txt|*.txt"_s);
    }

    void what_is_set_is_read_back()
    {
        CommonDialog dialog(u"dlg"_s);
        dialog.SetFlags(64);
        dialog.SetHelpFile(u"C:\\Help.HLP"_s);
        dialog.SetHelpCommand(3);
        QCOMPARE(dialog.Flags(), 64);
        QCOMPARE(dialog.HelpFile(), u"C:\\Help.HLP"_s);
        QCOMPARE(dialog.HelpCommand(), 3);
    }

    void action_five_asks_for_the_printer_and_what_is_chosen_holds()
    {
        int asked = 0;
        SetPrinterResponder([&](const PrinterSetup& present, const QList<PrinterOption>& choices) {
            ++asked;
            Q_ASSERT(!choices.isEmpty());
            return std::optional(asked == 1 ? landscapeA5 : present);
        });
        CommonDialog dialog(u"dlg"_s);
        dialog.SetAction(5);
        QCOMPARE(asked, 1);
        QCOMPARE(Printer.Setup(), landscapeA5);
        dialog.SetAction(5); // comes up with what was chosen before
        QCOMPARE(asked, 2);
        QCOMPARE(Printer.Setup(), landscapeA5);
    }

    void cancel_changes_nothing()
    {
        const PrinterSetup before = Printer.Setup();
        SetPrinterResponder([](const PrinterSetup&, const QList<PrinterOption>&) { return std::nullopt; });
        CommonDialog(u"dlg"_s).SetAction(5);
        QCOMPARE(Printer.Setup(), before);
    }

    void an_action_without_a_dialog_is_refused_data()
    {
        QTest::addColumn<int>("action");
        for (const int action : {-1, 0, 1, 2, 3, 4, 7})
            QTest::addRow("%d", action) << action;
    }
    void an_action_without_a_dialog_is_refused()
    {
        QFETCH(int, action);
        QCOMPARE(ResumeNext([&] { CommonDialog(u"dlg"_s).SetAction(action); }), failure::invalidProperty);
    }
};

TORVIK_TEST(CommonDialogTest)
#include "common_dialog_test.moc"
