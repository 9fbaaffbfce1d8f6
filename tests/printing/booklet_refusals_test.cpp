#include "program/program_state.h"
#include "runtime/failure.h"
#include "support/booklet_run.h"
#include "support/discs/full_disk.h"
#include "support/test_class.h"
#include "ui/forms/screen.h"
#include "ui/printer/printer.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

void ExpectNoYears(const BookletRun& run)
{
    ExpectRefusal(run, "ER034", " You must select both a Start Year and an End Year. ", false);
}

void ExpectNoFile(const BookletRun& run)
{
    ExpectRefusal(run, "ER040", " Unable to load file for printing.", true);
}

} // namespace

/// A booklet that cannot be printed, or not to its end.
class BookletRefusalsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { run_ = std::make_unique<BookletRun>(); }
    void cleanup() { run_.reset(); }

    // Ranges that are none

    void a_missing_year_is_told_data()
    {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        QTest::newRow("both") << QByteArray() << QByteArray();
        QTest::newRow("from") << QByteArray() << QByteArray("1969");
        QTest::newRow("to") << QByteArray("1967") << QByteArray();
    }
    void a_missing_year_is_told()
    {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        run_->Print({box::description}, from.constData(), to.constData());
        ExpectNoYears(*run_);
        QCOMPARE(run_->printed.Jobs(), 0);
    }

    void every_box_by_year_needs_the_years_data()
    {
        AddBoxesWithoutDocuments();
        QTest::newRow(" Description") << box::description;
        QTest::newRow(" Details") << box::details;
    }
    void every_box_by_year_needs_the_years()
    {
        QFETCH(int, box);
        run_->Print({box});
        ExpectNoYears(*run_);
    }

    void cover_and_introduction_have_been_printed_when_a_year_is_missing()
    {
        run_->Print({box::cover, box::introduction, box::description});
        ExpectNoYears(*run_);
        QCOMPARE(run_->printed.Jobs(), 1);
        QCOMPARE(run_->printed.Pages(1).size(), 2);
    }

    void a_range_that_runs_backwards_is_told_data()
    {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        QTest::newRow("in one century") << QByteArray("1969") << QByteArray("1968");
        QTest::newRow("over the turn") << QByteArray("2000") << QByteArray("1999");
        QTest::newRow("in the new century") << QByteArray("2001") << QByteArray("2000");
        QTest::newRow("from the end to the beginning") << QByteArray("2001") << QByteArray("1967");
    }
    void a_range_that_runs_backwards_is_told()
    {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        run_->Print({box::introduction, box::clipArt, box::details}, from.constData(), to.constData());
        ExpectRefusal(*run_, "ER036", " 'TO' year may not be earlier than 'FROM' year.", false);
        ExpectTexts(*run_, {u"Introduction."_s});
    }

    void the_hourglass_stands_until_the_refusal_was_read()
    {
        MousePointer during = MousePointer::Default;
        run_->user.messages.WhenAsked([&] { during = Screen.Pointer(); });
        run_->Print({box::description});
        QCOMPARE(during, MousePointer::Hourglass);
        QCOMPARE(Screen.Pointer(), MousePointer::Default);
    }

    void a_refusal_moves_the_focus_to_the_next_year_button()
    {
        run_->Print({box::description});
        QCOMPARE(Program::Focus(), u"cmdYR(2)"_s);
    }

    // Failures on the way

    void a_missing_file_ends_the_booklet_there_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("printed");
        const QStringList first = DocumentsOf("67");
        const auto row = [](const char* file, const QStringList& printed) {
            QTest::newRow(file) << QString::fromLatin1(file) << printed;
        };
        const QStringList introduction(u"Introduction."_s);
        row("RichText/introduction.rtf", {});
        row("RichText/67desc.rtf", introduction);
        row("RichText/67opts.rtf", introduction + first.mid(0, 1));
        row("RichText/67stats.rtf", introduction + first.mid(0, 2));
        row("RichText/67colors.rtf", introduction + first.mid(0, 3));
        row("RichText/68desc.rtf", introduction + first);
        row("RichText/68stats.rtf", introduction + first + DocumentsOf("68").mid(0, 2));
    }
    void a_missing_file_ends_the_booklet_there()
    {
        QFETCH(QString, file);
        QFETCH(QStringList, printed);
        run_->user.disc.Remove(file);
        run_->Print({box::introduction, box::description, box::details}, "1967", "1969");
        ExpectNoFile(*run_);
        ExpectTexts(*run_, printed);
    }

    void the_choices_stay_after_a_failure_and_print_when_the_file_is_there()
    {
        run_->user.disc.Remove(u"RichText/68desc.rtf"_s);
        run_->Print({box::description}, "1967", "1969");
        ExpectNoFile(*run_);
        QVERIFY(Form1->Check1(box::description).Value());
        QCOMPARE(Form1->List1(0).Text(), u"1967"_s);
        QCOMPARE(Form1->List1(1).Text(), u"1969"_s);
        AddYear(run_->user.disc, u"68"_s);
        run_->user.Click(Form1->cmdPrint);
        ExpectSuccess(*run_);
        ExpectTexts(*run_, {u"Description of 67."_s, u"Description of 67."_s, u"Description of 68."_s,
                            u"Description of 69."_s});
    }

    void a_failure_leaves_the_focus_where_it_is()
    {
        run_->user.disc.Remove(u"RichText/introduction.rtf"_s);
        run_->Print({box::introduction});
        QCOMPARE(Program::Focus(), u"cmdPrint"_s);
    }

    void the_hourglass_stands_until_the_failure_was_read()
    {
        MousePointer during = MousePointer::Default;
        run_->user.messages.WhenAsked([&] { during = Screen.Pointer(); });
        run_->user.disc.Remove(u"RichText/introduction.rtf"_s);
        run_->Print({box::introduction});
        QCOMPARE(during, MousePointer::Hourglass);
        QCOMPARE(Screen.Pointer(), MousePointer::Default);
    }

    void a_cover_picture_that_is_missing_ends_the_booklet_data() { AddCoverFiles(); }
    void a_cover_picture_that_is_missing_ends_the_booklet()
    {
        run_->user.disc.Remove(QString::fromLatin1(QTest::currentDataTag()));
        run_->Print({box::cover, box::introduction});
        ExpectNoFile(*run_);
        QCOMPARE(run_->printed.Jobs(), 0);
    }

    void a_cover_picture_that_is_damaged_ends_the_booklet_data() { AddCoverFiles(); }
    void a_cover_picture_that_is_damaged_ends_the_booklet()
    {
        const QString path = QString::fromLatin1(QTest::currentDataTag());
        QFile file(run_->user.disc.PathOf(path));
        QVERIFY(file.resize(file.size() / 2));
        run_->Print({box::cover, box::introduction});
        ExpectNoFile(*run_);
        QCOMPARE(run_->printed.Jobs(), 0);
    }

    void a_cover_without_its_introduction_waits_in_its_open_job()
    {
        run_->user.disc.Remove(u"RichText/introduction.rtf"_s);
        run_->Print({box::cover, box::introduction});
        ExpectNoFile(*run_);
        QVERIFY(Printer.HasJob());
        Printer.EndDoc();
        QCOMPARE(run_->printed.Pages(1).size(), 2);
        QVERIFY(!InkOf(run_->printed.Image(1, 1)).isNull());
    }

    void no_printer_is_told_as_a_file_that_does_not_print_data()
    {
        QTest::addColumn<int>("box");
        QTest::newRow("the cover") << box::cover;
        QTest::newRow("a document") << box::introduction;
    }
    void no_printer_is_told_as_a_file_that_does_not_print()
    {
        QFETCH(int, box);
        Printer.PrintTo(u"/proc/nothing/here"_s);
        run_->Print({box});
        ExpectNoFile(*run_);
        QVERIFY(!Printer.HasJob());
    }

    void a_printer_that_refuses_is_told_and_the_next_one_prints()
    {
        Printer.PrintTo({});
        Printer.SetUp(PrinterSetup{u"Gone"_s, QPageSize(QPageSize::A4)});
        run_->Print({box::introduction});
        ExpectNoFile(*run_);
        Printer.PrintTo(run_->printed.Path());
        run_->user.Click(Form1->cmdPrint);
        ExpectPrinted(*run_, {u"Introduction."_s});
    }

    void a_disk_that_fills_up_keeps_what_was_printed_and_no_broken_file()
    {
        constexpr rlim_t room = 40'000; // bytes: enough for a line, too little for many
        QString lines;
        for (int line = 0; line < 6000; ++line)
            lines += u"Line %1 of many that fill the disk.\\par\n"_s.arg(line * 7919);
        run_->user.disc.AddDocument(u"68desc.rtf"_s, lines);
        {
            const FullDisk full(room);
            run_->Print({box::description}, "1967", "1969");
        }
        ExpectNoFile(*run_);
        QVERIFY(!Printer.HasJob());
        QCOMPARE(run_->printed.Files(), QStringList(u"job-1.pdf"_s));
        ExpectTexts(*run_, {u"Description of 67."_s});
    }

private:
    static void AddCoverFiles()
    {
        QTest::addColumn<int>("index");
        for (int index = 0; index < 4; ++index)
            QTest::newRow(coverArt.at(static_cast<std::size_t>(index)).file) << index;
    }

    std::unique_ptr<BookletRun> run_;
};

TORVIK_TEST(BookletRefusalsTest)
#include "booklet_refusals_test.moc"
