#include "support/modal_visit.h"
#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/printer/printer_dialog.h"

#include <QComboBox>
#include <QDialog>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

const QPageSize a4(QPageSize::A4);
const QPageSize a5(QPageSize::A5);
const QPageSize letter(QPageSize::Letter);

const QList<PrinterOption> choices{
    {u"Laser"_s, u"Laser"_s, {letter, a4}},
    {u"Inkjet"_s, u"Inkjet"_s, {a4, a5}},
    {QString(), u"PDF files in /home"_s, {a4, letter, a5}},
};

QDialog* Shown()
{
    return qobject_cast<QDialog*>(QApplication::activeModalWidget());
}

template <typename Widget>
Widget& Part(const char* name)
{
    auto* part = Shown()->findChild<Widget*>(QString::fromLatin1(name));
    if (part == nullptr)
        qFatal("the dialog has no %s", name);
    return *part;
}

void Press(const char* button)
{
    QTest::mouseClick(&Part<QPushButton>(button), Qt::LeftButton);
}

QStringList EntriesOf(const QComboBox& box)
{
    QStringList entries;
    for (int index = 0; index < box.count(); ++index)
        entries.append(box.itemText(index));
    return entries;
}

} // namespace

/// The dialog that sets the printer up, as the user sees it.
class PrinterDialogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { room_ = std::make_unique<UiRoom>(); }
    void cleanup()
    {
        SetPrinterResponder({});
        room_.reset();
    }

    void it_comes_up_with_what_is_set_up()
    {
        const PrinterSetup present{u"Inkjet"_s, a5, QPageLayout::Landscape};
        const auto chosen = Answer(present, [] {
            QCOMPARE(Shown()->windowTitle(), u"Print Setup"_s);
            QCOMPARE(EntriesOf(Part<QComboBox>("Printer")),
                     QStringList({u"Laser"_s, u"Inkjet"_s, u"PDF files in /home"_s}));
            QCOMPARE(Part<QComboBox>("Printer").currentText(), u"Inkjet"_s);
            QCOMPARE(EntriesOf(Part<QComboBox>("Paper")), QStringList({a4.name(), a5.name()}));
            QCOMPARE(Part<QComboBox>("Paper").currentText(), a5.name());
            QVERIFY(Part<QRadioButton>("Landscape").isChecked());
            Press("OK");
        });
        QVERIFY(chosen.has_value());
        QCOMPARE(*chosen, present);
    }

    void what_the_user_chooses_comes_back()
    {
        const auto chosen = Answer({u"Laser"_s, letter, QPageLayout::Landscape}, [] {
            Part<QComboBox>("Printer").setCurrentIndex(1);
            Part<QComboBox>("Paper").setCurrentIndex(1);
            QTest::mouseClick(&Part<QRadioButton>("Portrait"), Qt::LeftButton);
            Press("OK");
        });
        QVERIFY(chosen.has_value());
        QCOMPARE(*chosen, (PrinterSetup{u"Inkjet"_s, a5, QPageLayout::Portrait}));
    }

    void another_printer_keeps_the_paper_where_it_has_it()
    {
        const auto chosen = Answer({u"Laser"_s, a4}, [] {
            Part<QComboBox>("Printer").setCurrentIndex(2);
            Press("OK");
        });
        QVERIFY(chosen.has_value());
        QCOMPARE(*chosen, (PrinterSetup{QString(), a4, QPageLayout::Portrait}));
    }

    void a_paper_that_the_printer_does_not_have_becomes_its_first()
    {
        const auto chosen = Answer({u"Laser"_s, letter}, [] {
            Part<QComboBox>("Printer").setCurrentIndex(1);
            Press("OK");
        });
        QVERIFY(chosen.has_value());
        QCOMPARE(chosen->paper, a4);
    }

    void a_printer_that_is_gone_gives_way_to_the_first()
    {
        const auto chosen = Answer({u"Gone"_s, a4}, [] { Press("OK"); });
        QVERIFY(chosen.has_value());
        QCOMPARE(chosen->name, u"Laser"_s);
    }

    void cancel_and_escape_bring_nothing_back()
    {
        QVERIFY(!Answer({}, [] { Press("Cancel"); }).has_value());
        QVERIFY(!Answer({}, [] { QTest::keyClick(Shown(), Qt::Key_Escape); }).has_value());
    }

    void enter_is_ok()
    {
        QVERIFY(Answer({}, [] { QTest::keyClick(Shown(), Qt::Key_Return); }).has_value());
    }

    void every_part_has_a_spoken_name()
    {
        Answer({}, [] {
            for (const char* name : {"Printer", "Paper", "Portrait", "Landscape"})
                QCOMPARE(Part<QWidget>(name).accessibleName(), QString::fromLatin1(name));
            QCOMPARE(Part<QPushButton>("OK").text(), u"OK"_s);
            QCOMPARE(Part<QPushButton>("Cancel").text(), u"Cancel"_s);
            Press("Cancel");
        });
    }

    void a_responder_answers_in_place_of_the_dialog()
    {
        SetPrinterResponder([](const PrinterSetup& present, const QList<PrinterOption>& offered) {
            return std::optional(PrinterSetup{offered.last().name, present.paper});
        });
        const auto chosen = AskForPrinter({u"Laser"_s, letter}, choices);
        QVERIFY(chosen.has_value());
        QCOMPARE(*chosen, (PrinterSetup{QString(), letter}));
    }

private:
    std::optional<PrinterSetup> Answer(const PrinterSetup& present, const std::function<void()>& action)
    {
        const ModalVisit visit(action, [] {
            if (Shown() != nullptr)
                Shown()->reject();
        });
        auto chosen = AskForPrinter(present, choices);
        if (!visit.Ran())
            qFatal("no dialog came up");
        return chosen;
    }

    std::unique_ptr<UiRoom> room_;
};

TORVIK_TEST(PrinterDialogTest)
#include "printer_dialog_test.moc"
