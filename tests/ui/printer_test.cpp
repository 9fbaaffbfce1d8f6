#include "platform/failure.h"
#include "platform/print_jobs.h"
#include "support/print_folder.h"
#include "ui/printer.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QPrinterInfo>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

using namespace torvik;

namespace {

constexpr double border = 360; // twips that a job in a file leaves around its page
constexpr double pixel = PrintFolder::twipsPerPixel;

/// While it lives no file of this process grows beyond a size, as on a disk that is full.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes)
    {
        earlierHandler_ = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &earlier_);
        rlimit limit = earlier_;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &earlier_);
        std::signal(SIGXFSZ, earlierHandler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit earlier_{};
    void (*earlierHandler_)(int) = nullptr;
};

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
        Printer.Print(QStringLiteral("A line"));
        QVERIFY(Printer.HasJob());
        Printer.EndDoc();
        QVERIFY(!Printer.HasJob());
        QCOMPARE(printed_->Files(), QStringList(QStringLiteral("job-1.pdf")));
        QCOMPARE(printed_->Pages(1).first().simplified(), QStringLiteral("A line"));
    }

    void an_end_without_a_job_does_nothing()
    {
        Printer.EndDoc();
        QVERIFY(printed_->Files().isEmpty());
    }

    void jobs_are_numbered_in_turn()
    {
        for (const QString& text : {QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")}) {
            Printer.Print(text);
            Printer.EndDoc();
        }
        QCOMPARE(printed_->Files(), QStringList({QStringLiteral("job-1.pdf"), QStringLiteral("job-2.pdf"),
                                                 QStringLiteral("job-3.pdf")}));
        QCOMPARE(printed_->Pages(2).first().simplified(), QStringLiteral("two"));
    }

    void a_file_that_is_there_is_never_written_over()
    {
        QFile earlier(printed_->FileOf(1));
        QVERIFY(earlier.open(QIODevice::WriteOnly));
        earlier.write("kept");
        earlier.close();
        QVERIFY(QFile::link(QStringLiteral("nowhere"), printed_->FileOf(2)));
        Printer.Print(QStringLiteral("new"));
        Printer.EndDoc();
        QVERIFY(earlier.open(QIODevice::ReadOnly));
        QCOMPARE(earlier.readAll(), QByteArray("kept"));
        QCOMPARE(printed_->Pages(3).first().simplified(), QStringLiteral("new"));
    }

    void a_folder_that_is_missing_is_made()
    {
        Printer.PrintTo(printed_->Path() + QStringLiteral("/deep/er"));
        Printer.Print(QStringLiteral("A line"));
        Printer.EndDoc();
        QVERIFY(QFile::exists(printed_->Path() + QStringLiteral("/deep/er/job-1.pdf")));
    }

    void lines_stand_below_each_other_from_the_corner_of_the_printable_area()
    {
        Printer.Print(QStringLiteral("H"));
        Printer.Print(QStringLiteral("    "));
        Printer.Print(QStringLiteral("H"));
        Printer.EndDoc();
        const QRectF ink = InkOf(printed_->Image(1, 1));
        QVERIFY(ink.left() >= border - pixel && ink.left() < border + 60);
        QVERIFY(ink.top() >= border - pixel && ink.top() < border + 120);
        QVERIFY2(ink.height() > 2 * 200 && ink.height() < 3 * 260, qPrintable(QString::number(ink.height())));
    }

    void a_new_page_begins_at_the_top_again()
    {
        Printer.Print(QStringLiteral("first"));
        Printer.Print(QStringLiteral("second"));
        Printer.NewPage();
        Printer.Print(QStringLiteral("first"));
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
        Printer.PrintTo(QStringLiteral("/proc/nothing/here"));
        QCOMPARE(ResumeNext([] { Printer.Print(QStringLiteral("lost")); }), failure::printerError);
        QVERIFY(!Printer.HasJob());
    }

    void a_folder_that_takes_no_file_is_a_printer_error()
    {
        Printer.PrintTo(QStringLiteral("/proc"));
        QCOMPARE(ResumeNext([] { Printer.Print(QStringLiteral("lost")); }), failure::printerError);
        QVERIFY(!Printer.HasJob());
    }

    void a_disk_that_is_full_is_a_printer_error_and_the_next_job_goes_out()
    {
        Printer.Print(QStringLiteral("The letters of this line need more room than there is."));
        int failure = 0;
        {
            const FullDisk full(1500);
            failure = ResumeNext([] { Printer.EndDoc(); });
        }
        QCOMPARE(failure, failure::printerError);
        QVERIFY(!Printer.HasJob());
        QVERIFY(printed_->Files().isEmpty()); // no broken file stays
        Printer.Print(QStringLiteral("better"));
        Printer.EndDoc();
        QCOMPARE(printed_->Pages(1).first().simplified(), QStringLiteral("better"));
    }

    void without_a_printer_and_a_folder_jobs_go_to_the_documents()
    {
        if (!QPrinterInfo::defaultPrinter().isNull())
            QSKIP("this machine has a printer");
        Printer.PrintTo({});
        const QString file = NextJobFile(DocumentsFolder());
        Printer.Print(QStringLiteral("A line"));
        Printer.EndDoc();
        QVERIFY(IsWholeJobFile(file));
        QVERIFY(QFile::remove(file));
    }

private:
    std::unique_ptr<PrintFolder> printed_;
};

QTEST_MAIN(PrinterTest)
#include "printer_test.moc"
