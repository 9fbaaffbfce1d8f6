#include "platform/system/print_jobs.h"
#include "runtime/failure.h"
#include "support/discs/full_disk.h"
#include "support/logged_messages.h"
#include "support/ordinary_user.h"
#include "support/print_folder.h"
#include "support/test_class.h"
#include "ui/pictures/picture.h"
#include "ui/printer/printer.h"
#include "ui/printer/printer_dialog.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QPrinterInfo>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

constexpr double border = 360; // twips that a job in a file leaves around its page
constexpr double pixel = PrintFolder::twipsPerPixel;

} // namespace

/// The printer with its jobs going to a folder.
class PrinterTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { printed_ = std::make_unique<PrintFolder>(); }
    void cleanup() { printed_.reset(); }

    void the_first_line_opens_a_job_and_the_end_sends_it()
    {
        QVERIFY(!Printer.HasJob());
        Printer.Print(u"A line"_s);
        QVERIFY(Printer.HasJob());
        Printer.EndDoc();
        QVERIFY(!Printer.HasJob());
        QCOMPARE(printed_->Files(), QStringList(u"job-1.pdf"_s));
        QCOMPARE(printed_->Pages(1).first().simplified(), u"A line"_s);
    }

    void a_blank_line_takes_room_and_no_font()
    {
        Printer.Print(u" "_s);
        Printer.EndDoc();
        QFile job(printed_->FileOf(1));
        QVERIFY(job.open(QIODevice::ReadOnly));
        QVERIFY(!job.readAll().contains("/FontFile"));
    }

    void an_end_without_a_job_does_nothing()
    {
        Printer.EndDoc();
        QVERIFY(printed_->Files().isEmpty());
    }

    void jobs_are_numbered_in_turn()
    {
        for (const QString& text : {u"one"_s, u"two"_s, u"three"_s}) {
            Printer.Print(text);
            Printer.EndDoc();
        }
        QCOMPARE(printed_->Files(), QStringList({u"job-1.pdf"_s, u"job-2.pdf"_s, u"job-3.pdf"_s}));
        QCOMPARE(printed_->Pages(2).first().simplified(), u"two"_s);
    }

    void a_file_that_is_there_is_never_written_over()
    {
        QFile earlier(printed_->FileOf(1));
        QVERIFY(earlier.open(QIODevice::WriteOnly));
        earlier.write("kept");
        earlier.close();
        QVERIFY(QFile::link(u"nowhere"_s, printed_->FileOf(2)));
        Printer.Print(u"new"_s);
        Printer.EndDoc();
        QVERIFY(earlier.open(QIODevice::ReadOnly));
        QCOMPARE(earlier.readAll(), QByteArray("kept"));
        QCOMPARE(printed_->Pages(3).first().simplified(), u"new"_s);
    }

    void a_folder_that_is_missing_is_made()
    {
        Printer.PrintTo(printed_->Path() + u"/deep/er"_s);
        Printer.Print(u"A line"_s);
        Printer.EndDoc();
        QVERIFY(QFile::exists(printed_->Path() + u"/deep/er/job-1.pdf"_s));
    }

    void lines_stand_below_each_other_from_the_corner_of_the_printable_area()
    {
        Printer.Print(u"H"_s);
        Printer.Print(u"    "_s);
        Printer.Print(u"H"_s);
        Printer.EndDoc();
        const QRectF ink = InkOf(printed_->Image(1, 1));
        QVERIFY(ink.left() >= border - pixel && ink.left() < border + 60);
        QVERIFY(ink.top() >= border - pixel && ink.top() < border + 120);
        QVERIFY2(ink.height() > 2 * 200 && ink.height() < 3 * 260, qPrintable(QString::number(ink.height())));
    }

    void a_new_page_begins_at_the_top_again()
    {
        Printer.Print(u"first"_s);
        Printer.Print(u"second"_s);
        Printer.NewPage();
        Printer.Print(u"first"_s);
        Printer.EndDoc();
        QCOMPARE(printed_->Pages(1).size(), 2);
        QCOMPARE(InkOf(printed_->Image(1, 2)).top(), InkOf(printed_->Image(1, 1)).top());
    }

    void the_sizes_are_those_of_the_paper_less_its_border()
    {
        QVERIFY(qAbs(Printer.PhysicalOffsetX() * Printer.TwipsToPixel() - border) < 0.01);
        QVERIFY(qAbs(Printer.PhysicalOffsetY() * Printer.TwipsToPixel() - border) < 0.01);
        const QSizeF paper(Printer.Width(), Printer.Height());
        QVERIFY(qAbs(Printer.ScaleWidth() - (paper.width() - 2 * border)) < 0.01);
        QVERIFY(qAbs(Printer.ScaleHeight() - (paper.height() - 2 * border)) < 0.01);
        Printer.EndDoc();
        const QSizeF file = printed_->Paper(1);
        QVERIFY(qAbs(file.width() - paper.width()) <= 2 * pixel);
        QVERIFY(qAbs(file.height() - paper.height()) <= 2 * pixel);
    }

    void painting_counts_from_the_corner_of_the_printable_area_on_every_page()
    {
        const double inch = 1440 / Printer.TwipsToPixel();
        Printer.Painter().fillRect(QRectF(0, 0, inch, 2 * inch), Qt::black);
        Printer.NewPage();
        Printer.Painter().fillRect(QRectF(inch, 0, inch, inch), Qt::black);
        Printer.EndDoc();
        QCOMPARE(InkOf(printed_->Image(1, 1)), QRectF(border, border, 1440, 2880));
        QCOMPARE(InkOf(printed_->Image(1, 2)), QRectF(border + 1440, border, 1440, 1440));
    }

    void a_folder_that_cannot_be_is_a_printer_error()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        Printer.PrintTo(file.fileName() + u"/nothing/here"_s);
        QCOMPARE(ResumeNext([] { Printer.Print(u"lost"_s); }), failure::printerError);
        QVERIFY(!Printer.HasJob());
    }

    void a_folder_that_takes_no_file_is_a_printer_error()
    {
        const QTemporaryDir closed;
        QCOMPARE(chmod(qPrintable(closed.path()), 0555), 0);
        const OrdinaryUser user;
        QVERIFY2(OrdinaryUser::IsOne(), OrdinaryUser::isNeeded);
        Printer.PrintTo(closed.path());
        QCOMPARE(ResumeNext([] { Printer.Print(u"lost"_s); }), failure::printerError);
        QVERIFY(!Printer.HasJob());
    }

    void a_disk_that_is_full_is_a_printer_error_and_the_next_job_goes_out()
    {
        Printer.Print(u"The letters of this line need more room than there is."_s);
        int failure = 0;
        {
            const FullDisk full(1500);
            failure = ResumeNext([] { Printer.EndDoc(); });
        }
        QCOMPARE(failure, failure::printerError);
        QVERIFY(!Printer.HasJob());
        QVERIFY(printed_->Files().isEmpty()); // no broken file stays
        Printer.Print(u"better"_s);
        Printer.EndDoc();
        QCOMPARE(printed_->Pages(1).first().simplified(), u"better"_s);
    }

    void without_a_printer_and_a_folder_jobs_go_to_the_documents()
    {
        QVERIFY(QPrinterInfo::defaultPrinter().isNull()); // the tests see none, whatever the machine has
        Printer.PrintTo({});
        const QString file = NextJobFile(DocumentsFolder());
        Printer.Print(u"A line"_s);
        Printer.EndDoc();
        QVERIFY(IsWholeJobFile(file));
        QVERIFY(QFile::remove(file));
    }

    void where_a_job_goes_is_logged()
    {
        LoggedMessages log(u"torvik.print"_s);
        Printer.Print(u"A line"_s);
        Printer.EndDoc();
        QCOMPARE(log.Texts(), QStringList(u"torvik.print: a job goes to the file "_s + printed_->FileOf(1)));
    }

    void a_job_takes_its_file_name_only_when_it_is_whole()
    {
        Printer.Print(u"A line"_s);
        QCOMPARE(printed_->Files(), QStringList(u"job-1.pdf.part"_s));
        Printer.EndDoc();
        QCOMPARE(printed_->Files(), QStringList(u"job-1.pdf"_s));
    }

    void what_a_program_that_broke_off_left_is_written_over()
    {
        QFile left(printed_->FileOf(1) + u".part"_s);
        QVERIFY(left.open(QIODevice::WriteOnly));
        left.write("%PDF-1.4 cut off");
        left.close();
        Printer.Print(u"whole"_s);
        Printer.EndDoc();
        QCOMPARE(printed_->Files(), QStringList(u"job-1.pdf"_s));
        QCOMPARE(printed_->Pages(1).first().simplified(), u"whole"_s);
    }

    void a_name_that_is_taken_meanwhile_is_a_printer_error_and_the_file_stays()
    {
        Printer.Print(u"late"_s);
        QFile taken(printed_->FileOf(1));
        QVERIFY(taken.open(QIODevice::WriteOnly));
        taken.write("kept");
        taken.close();
        QCOMPARE(ResumeNext([] { Printer.EndDoc(); }), failure::printerError);
        QVERIFY(taken.open(QIODevice::ReadOnly));
        QCOMPARE(taken.readAll(), QByteArray("kept"));
        QCOMPARE(printed_->Files(), QStringList(u"job-1.pdf"_s));
    }

    void a_picture_stands_at_its_place_in_its_natural_size_data()
    {
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<int>("dotsPerInch");
        QTest::newRow("JPEG") << QByteArray("JPG") << 0;
        QTest::newRow("BMP") << QByteArray("BMP") << 0;
        QTest::newRow("PNG") << QByteArray("PNG") << 0;
        QTest::newRow("a density of the file's own does not count") << QByteArray("JPG") << 300;
    }
    void a_picture_stands_at_its_place_in_its_natural_size()
    {
        QFETCH(QByteArray, format);
        QFETCH(int, dotsPerInch);
        Printer.PaintPicture(RedPicture({192, 96}, format.constData(), dotsPerInch), 1460, 3000);
        QVERIFY(Printer.HasJob());
        Printer.EndDoc();
        const QRectF ink = InkOf(printed_->Image(1, 1));
        QVERIFY(Near(ink, QRectF(border + 1460, border + 3000, 192 * 15, 96 * 15)));
    }

    void a_picture_larger_than_the_page_runs_off_it()
    {
        Printer.PaintPicture(RedPicture({2000, 2000}), 1460, 3000);
        Printer.EndDoc();
        QCOMPARE(printed_->Pages(1).size(), 1);
        const QSizeF paper = printed_->Paper(1);
        const QRectF ink = InkOf(printed_->Image(1, 1));
        QVERIFY(
            Near(ink, QRectF(QPointF(border + 1460, border + 3000), QPointF(paper.width(), paper.height()))));
    }

    void no_picture_paints_nothing()
    {
        Printer.PaintPicture(Picture(), 0, 0);
        Printer.EndDoc();
        QCOMPARE(printed_->Pages(1).size(), 1);
        QVERIFY(InkOf(printed_->Image(1, 1)).isNull());
    }

    void a_picture_leaves_the_lines_where_they_are()
    {
        Printer.Print(u"H"_s);
        Printer.PaintPicture(RedPicture({10, 10}), 5000, 9000);
        Printer.Print(u"H"_s);
        Printer.EndDoc();
        const auto isBlack = [](const QColor& colour) { return colour.red() < 100; };
        QVERIFY(InkOf(printed_->Image(1, 1), isBlack).bottom() < border + 600);
    }

    void what_was_set_up_holds_for_all_later_jobs()
    {
        Printer.SetUp(PrinterSetup{{}, QPageSize(QPageSize::A5), QPageLayout::Landscape});
        for (int job = 1; job <= 2; ++job) {
            Printer.Print(u"A line"_s);
            Printer.EndDoc();
            const QSizeF paper = printed_->Paper(job);
            QVERIFY(qAbs(paper.width() - 210 / 25.4 * 1440) <= 2 * pixel);
            QVERIFY(qAbs(paper.height() - 148 / 25.4 * 1440) <= 2 * pixel);
        }
    }

    void a_job_that_is_open_keeps_its_paper()
    {
        Printer.Print(u"first page"_s);
        const double width = Printer.Width();
        Printer.SetUp(PrinterSetup{{}, QPageSize(QPageSize::A5), QPageLayout::Landscape});
        Printer.NewPage();
        QCOMPARE(Printer.Width(), width);
        Printer.EndDoc();
        QCOMPARE(printed_->Pages(1).size(), 2);
        QCOMPARE(printed_->Image(1, 2).size(), printed_->Image(1, 1).size());
    }

    void files_can_always_be_chosen_and_have_papers()
    {
        const QList<PrinterOption> choices = Printer.Choices();
        QCOMPARE(choices.size(), 1); // the folder that the program was told takes every job
        QCOMPARE(choices.first().name, QString());
        QCOMPARE(choices.first().title, u"PDF files in "_s + printed_->Path());
        QVERIFY(choices.first().papers.contains(QPageSize(QPageSize::A4)));
        QVERIFY(choices.first().papers.contains(QPageSize(QPageSize::Letter)));
        Printer.PrintTo({});
        QCOMPARE(Printer.Choices().size(), QPrinterInfo::availablePrinterNames().size() + 1);
        QCOMPARE(Printer.Choices().last().title, u"PDF files in "_s + DocumentsFolder());
    }

    void a_folder_that_was_told_goes_before_a_printer_that_was_chosen()
    {
        Printer.SetUp(PrinterSetup{u"Gone"_s, QPageSize(QPageSize::A4)});
        Printer.Print(u"A line"_s);
        Printer.EndDoc();
        QCOMPARE(printed_->Pages(1).first().simplified(), u"A line"_s);
    }

    void a_chosen_printer_that_is_gone_is_a_printer_error()
    {
        Printer.PrintTo({});
        Printer.SetUp(PrinterSetup{u"Gone"_s, QPageSize(QPageSize::A4)});
        QCOMPARE(ResumeNext([] { Printer.Print(u"lost"_s); }), failure::printerError);
        QVERIFY(!Printer.HasJob());
    }

private:
    static Picture RedPicture(const QSize& size, const char* format = "PNG", int dotsPerInch = 0)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(QColor(220, 20, 20));
        if (dotsPerInch > 0) {
            image.setDotsPerMeterX(qRound(dotsPerInch / 0.0254));
            image.setDotsPerMeterY(qRound(dotsPerInch / 0.0254));
        }
        const QTemporaryDir folder;
        if (!image.save(folder.filePath(u"picture"_s), format, 90))
            qFatal("cannot write a picture of the test");
        return Picture::Load(u"C:"_s + folder.filePath(u"picture"_s).replace(u'/', u'\\'));
    }

    /// Within a millimetre.
    static bool Near(const QRectF& seen, const QRectF& expected)
    {
        constexpr double millimetre = 56.7; // twips
        const bool near = qAbs(seen.left() - expected.left()) < millimetre &&
                          qAbs(seen.top() - expected.top()) < millimetre &&
                          qAbs(seen.right() - expected.right()) < millimetre &&
                          qAbs(seen.bottom() - expected.bottom()) < millimetre;
        if (!near)
            qWarning() << seen << "is not" << expected;
        return near;
    }

    std::unique_ptr<PrintFolder> printed_;
};

TORVIK_TEST(PrinterTest)
#include "printer_test.moc"
