#include "program/program_state.h"
#include "support/menu_choice.h"
#include "support/print_folder.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/program_end.h"
#include "ui/printer/printer.h"
#include "ui/printer/printer_dialog.h"
#include "windows/main_window.h"

#include <QProcess>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

constexpr double border = 360;      // twips from the paper's edge to the printable area
constexpr double millimetre = 56.7; // twips

} // namespace

/// Printing the photo on show, and setting the printer up.
class PrintPhotoAndSetupTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddPhoto(u"67A.JPG"_s, QColor(220, 20, 20), {320, 200});
        program_->disc.AddPhoto(u"69A.JPG"_s, QColor(20, 20, 220), {200, 320});
        printed_ = std::make_unique<PrintFolder>();
        program_->StartBrowsing();
    }
    void cleanup()
    {
        SetPrinterResponder({});
        printed_.reset();
        program_.reset();
    }

    void the_user_is_asked_first()
    {
        ChoosePrintPhoto(msgbox::answerCancel);
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(program_->messages.Last().text, u"Would you like to print this photograph?"_s);
        QCOMPARE(program_->messages.Last().style, 32 + 1);
        QCOMPARE(program_->messages.Last().title, u"The Torvik Vollandry 2001"_s);
        QCOMPARE(int(state.MessageResult), 2);
    }

    void cancel_prints_nothing_and_opens_no_job()
    {
        ChoosePrintPhoto(msgbox::answerCancel);
        QVERIFY(!Printer.HasJob());
        QVERIFY(printed_->Files().isEmpty());
    }

    void the_photo_stands_below_two_lines_at_its_natural_size()
    {
        ChoosePrintPhoto(msgbox::answerOk);
        QCOMPARE(int(state.MessageResult), 1);
        QVERIFY(!Printer.HasJob());
        QCOMPARE(printed_->Files(), QStringList(u"job-1.pdf"_s));
        QCOMPARE(printed_->Pages(1).size(), 1);
        const QRectF photo = InkOf(printed_->Image(1, 1), [](const QColor& colour) {
            return colour.red() > 180 && colour.green() < 80;
        });
        QVERIFY(qAbs(photo.left() - (border + 1460)) < millimetre);
        QVERIFY(qAbs(photo.top() - (border + 3000)) < millimetre);
        QVERIFY(qAbs(photo.width() - 320 * 15) < millimetre);
        QVERIFY(qAbs(photo.height() - 200 * 15) < millimetre);
    }

    void the_lines_follow_eight_blank_ones_with_a_blank_one_between()
    {
        ChoosePrintPhoto(msgbox::answerOk);
        const QList<QRectF> words = WordBoxes();
        QCOMPARE(printed_->Pages(1).first().simplified(), u"The Torvik Vollandry 2001 1967"_s);
        // Word by word: The Torvik Vollandry 2001, then the year two lines below.
        QCOMPARE(words.size(), 5);
        const double line = (words.at(4).top() - words.at(0).top()) / 2;
        QVERIFY2(line > 200 && line < 260, qPrintable(QString::number(line)));
        QVERIFY(qAbs(words.at(0).top() - (border + 8 * line)) < millimetre);
        // Both begin after twelve blanks.
        QVERIFY(qAbs(words.at(0).left() - words.at(4).left()) < 20);
        const double blanks = words.at(0).left() - border;
        QVERIFY2(blanks > 12 * 45 && blanks < 12 * 70, qPrintable(QString::number(blanks)));
        QVERIFY(words.at(4).bottom() < border + 3000);
    }

    void the_year_line_is_the_caption_whatever_it_says_data()
    {
        QTest::addColumn<QString>("caption");
        QTest::newRow("nothing chosen yet") << u"panYear"_s;
        QTest::newRow("a topic") << u"Danbury Mint Die Cast Models "_s;
        QTest::newRow("another year") << u"2001"_s;
    }
    void the_year_line_is_the_caption_whatever_it_says()
    {
        QFETCH(QString, caption);
        Form1->panYear.SetCaption(caption);
        ChoosePrintPhoto(msgbox::answerOk);
        QCOMPARE(printed_->Pages(1).first().simplified(),
                 u"The Torvik Vollandry 2001 "_s + caption.trimmed());
    }

    void what_is_on_show_is_printed_also_when_it_is_no_photo_of_a_year()
    {
        program_->disc.AddFile(u"ads/67ad.jpg"_s, TestDisc::Jpeg(QColor(20, 160, 20), {100, 50}));
        Form1->Image4.Load(u"G:\\ads\\67ad.jpg"_s);
        ChoosePrintPhoto(msgbox::answerOk);
        const QRectF picture = InkOf(printed_->Image(1, 1), [](const QColor& colour) {
            return colour.green() > 120 && colour.red() < 80;
        });
        QVERIFY(qAbs(picture.width() - 100 * 15) < millimetre);
        QVERIFY(qAbs(picture.height() - 50 * 15) < millimetre);
    }

    void a_large_picture_runs_off_the_page()
    {
        program_->disc.AddPhoto(u"69A.JPG"_s, QColor(20, 20, 220), {2000, 1500});
        program_->Click(Form1->cmdYR(3));
        ChoosePrintPhoto(msgbox::answerOk);
        QCOMPARE(printed_->Pages(1).size(), 1);
        const QRectF photo = InkOf(printed_->Image(1, 1), [](const QColor& colour) {
            return colour.blue() > 180 && colour.red() < 80;
        });
        const QSizeF paper = printed_->Paper(1);
        QVERIFY(qAbs(photo.left() - (border + 1460)) < millimetre);
        QVERIFY(qAbs(photo.right() - paper.width()) < millimetre);
        QVERIFY(qAbs(photo.bottom() - paper.height()) < millimetre);
    }

    void no_picture_leaves_the_lines_alone_on_the_page()
    {
        Form1->Image4.Clear();
        ChoosePrintPhoto(msgbox::answerOk);
        QCOMPARE(printed_->Pages(1).first().simplified(), u"The Torvik Vollandry 2001 1967"_s);
        QVERIFY(InkOf(printed_->Image(1, 1)).bottom() < border + 3000);
    }

    void each_photo_is_a_job()
    {
        ChoosePrintPhoto(msgbox::answerOk);
        program_->Click(Form1->cmdYR(3));
        ChoosePrintPhoto(msgbox::answerOk);
        QCOMPARE(printed_->Files(), QStringList({u"job-1.pdf"_s, u"job-2.pdf"_s}));
        QVERIFY(printed_->Pages(2).first().contains(u"1969"_s));
    }

    void a_printer_error_ends_the_program_with_the_run_time_error()
    {
        Printer.PrintTo(u"/proc/nothing/here"_s);
        ChoosePrintPhoto(msgbox::answerOk);
        QVERIFY(ProgramIsEnding());
        QCOMPARE(program_->messages.Count(), 2);
        QCOMPARE(program_->messages.Last().text, u"Run-time error '482':\r\n\r\nPrinter error"_s);
    }

    void a_printer_that_is_gone_is_that_error_too()
    {
        Printer.PrintTo({});
        Printer.SetUp(PrinterSetup{u"Gone"_s, QPageSize(QPageSize::A4)});
        ChoosePrintPhoto(msgbox::answerOk);
        QVERIFY(ProgramIsEnding());
        QCOMPARE(program_->messages.Last().text, u"Run-time error '482':\r\n\r\nPrinter error"_s);
    }

    void print_setup_asks_once_with_the_flag_of_a_set_up()
    {
        int asked = 0;
        SetPrinterResponder([&](const PrinterSetup&, const QList<PrinterOption>&) {
            ++asked;
            return std::optional<PrinterSetup>();
        });
        ChooseMenu(*Form1, u"mnuPrint"_s);
        QCOMPARE(asked, 1);
        QCOMPARE(Form1->dlgPrint.Flags(), 64);
        QVERIFY(!Printer.HasJob());
        QVERIFY(printed_->Files().isEmpty());
    }

    void what_was_chosen_holds_for_the_photos_that_follow()
    {
        SetPrinterResponder([](const PrinterSetup& present, const QList<PrinterOption>&) {
            return std::optional(
                PrinterSetup{present.name, QPageSize(QPageSize::A5), QPageLayout::Landscape});
        });
        ChooseMenu(*Form1, u"mnuPrint"_s);
        for (int job = 1; job <= 2; ++job) {
            ChoosePrintPhoto(msgbox::answerOk);
            QVERIFY(qAbs(printed_->Paper(job).width() - 210 / 25.4 * 1440) < millimetre);
        }
    }

    void cancel_in_the_set_up_changes_nothing()
    {
        const PrinterSetup before = Printer.Setup();
        SetPrinterResponder([](const PrinterSetup&, const QList<PrinterOption>&) { return std::nullopt; });
        ChooseMenu(*Form1, u"mnuPrint"_s);
        QCOMPARE(Printer.Setup(), before);
        QCOMPARE(program_->messages.Count(), 0);
    }

private:
    void ChoosePrintPhoto(int answer)
    {
        program_->messages.Answer(answer);
        ChooseMenu(*Form1, u"mnuPrintPhoto"_s);
    }

    /// Where each word of the first job's page stands, in twips.
    QList<QRectF> WordBoxes() const
    {
        QProcess process;
        process.start(u"pdftotext"_s, {u"-bbox"_s, printed_->FileOf(1), u"-"_s});
        if (!process.waitForFinished())
            qFatal("pdftotext does not read the printed file");
        static const QRegularExpression word(
            u"<word xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" yMax=\"([0-9.]+)\""_s);
        QList<QRectF> boxes;
        for (auto found = word.globalMatch(QString::fromUtf8(process.readAllStandardOutput()));
             found.hasNext();) {
            const QRegularExpressionMatch match = found.next();
            constexpr double twipsPerPoint = 20;
            const auto twips = [&](int part) { return match.captured(part).toDouble() * twipsPerPoint; };
            boxes.append(QRectF(QPointF(twips(1), twips(2)), QPointF(twips(3), twips(4))));
        }
        return boxes;
    }

    std::unique_ptr<Program> program_;
    std::unique_ptr<PrintFolder> printed_;
};

TORVIK_TEST(PrintPhotoAndSetupTest)
#include "print_photo_and_setup_test.moc"
