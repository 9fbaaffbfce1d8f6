#include "check/run_check.h"
#include "check/whole_disc.h"
#include "platform/system/environment.h"
#include "support/discs/image_drive.h"
#include "support/discs/image_maker.h"
#include "support/test_class.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// Takes the place of one of the process's streams while it lives.
class HeldStream {
public:
    HeldStream(std::FILE* stream, int instead) : stream_(stream), before_(dup(fileno(stream)))
    {
        std::fflush(stream_);
        dup2(instead, fileno(stream_));
        close(instead);
    }
    ~HeldStream()
    {
        std::fflush(stream_);
        dup2(before_, fileno(stream_));
        close(before_);
    }
    HeldStream(const HeldStream&) = delete;
    HeldStream& operator=(const HeldStream&) = delete;

private:
    std::FILE* stream_;
    int before_;
};

/// The reading end of what a stream writes to, and what came through it.
class Listener {
public:
    explicit Listener(bool isTerminal)
    {
        if (isTerminal) {
            ours_ = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
            grantpt(ours_);
            unlockpt(ours_);
            theirs_ = open(ptsname(ours_), O_RDWR | O_NOCTTY | O_CLOEXEC);
        } else {
            int ends[2] = {-1, -1};
            if (pipe2(ends, O_CLOEXEC) != 0)
                qFatal("there is no pipe");
            ours_ = ends[0];
            theirs_ = ends[1];
        }
        thread_ = std::thread([this] {
            char piece[4096];
            ssize_t got = 0;
            while ((got = read(ours_, piece, sizeof piece)) > 0)
                heard_.append(piece, got);
        });
    }
    ~Listener() { close(ours_); }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    int Theirs() const { return theirs_; }
    /// Once nobody can write any more. A terminal ends its lines by two characters.
    QByteArray Heard()
    {
        thread_.join();
        return heard_.replace("\r\n", "\n");
    }

private:
    int ours_ = -1;
    int theirs_ = -1;
    QByteArray heard_;
    std::thread thread_;
};

struct Run {
    int code = -1;
    QByteArray output;
    QByteArray errors;
};

enum class To { Pipe, Terminal };

Run RunIt(const QString& disc, bool asJson = false, To output = To::Pipe, To errors = To::Pipe)
{
    Listener toOutput(output == To::Terminal);
    Listener toErrors(errors == To::Terminal);
    Run run;
    {
        const HeldStream heldOutput(stdout, toOutput.Theirs());
        const HeldStream heldErrors(stderr, toErrors.Theirs());
        run.code = RunCheck(disc, asJson);
    }
    run.output = toOutput.Heard();
    run.errors = toErrors.Heard();
    return run;
}

} // namespace

/// The check as it is called from the command line: what it prints, where to, and how it ends.
class RunCheckTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        SetVolumeLister([] { return QList<QString>(); });
        qunsetenv("NO_COLOR");
    }
    void cleanupTestCase() { SetVolumeLister({}); }

    void a_whole_disc_ends_with_0_and_findings_with_1()
    {
        WholeDisc whole;
        const Run good = RunIt(whole.disc.Folder());
        QCOMPARE(good.code, 0);
        QVERIFY(good.output.endsWith("\nthe disc is whole, 1 remark\n"));
        QVERIFY(good.output.contains(whole.disc.Folder().toUtf8()));
        QCOMPARE(good.errors, QByteArray());
        whole.disc.Remove(u"wav/taxi.wav"_s);
        const Run bad = RunIt(whole.disc.Folder());
        QCOMPARE(bad.code, 1);
        QVERIFY(
            bad.output.startsWith("missing  wav\\taxi.wav      is missing  [Sound Effects > Taxi Horns]\n"));
    }

    void what_is_no_disc_ends_with_2_and_says_why()
    {
        const QTemporaryDir empty;
        const ImageDrive drive;
        QVERIFY(drive.Write(u"text.iso"_s, "no image"));
        SetDriveOptions({});
        for (const QString& disc :
             {empty.path(), empty.filePath(u"missing"_s), drive.PathOf(u"text.iso"_s), u"Q:"_s}) {
            const Run run = RunIt(disc);
            QCOMPARE(run.code, 2);
            QCOMPARE(run.output, QByteArray());
            QCOMPARE(
                QString::fromUtf8(run.errors),
                u"torvik2001: there is no disc in %1: it has no photos in the folder Torviks.\n"_s.arg(disc));
            SetDriveOptions({});
        }
        QCOMPARE(RunIt({}).code, 2);
        QCOMPARE(RunIt({}).errors, QByteArray("torvik2001: there is no disc on any drive.\n"));
        QCOMPARE(RunIt(empty.path(), true).code, 2);
        QCOMPARE(RunIt(empty.path(), true).output, QByteArray());
    }

    void a_letter_or_nothing_names_a_drive()
    {
        const WholeDisc whole; // in drive E:
        QCOMPARE(RunIt(u"e:"_s).code, 0);
        QCOMPARE(RunIt(u"E:"_s).code, 0);
        QCOMPARE(RunIt({}).code, 0);
        QCOMPARE(RunIt(u"F:"_s).code, 2);
    }

    void for_programs_nothing_but_the_report_is_printed()
    {
        WholeDisc whole;
        whole.disc.Remove(u"wav/taxi.wav"_s);
        for (const To to : {To::Pipe, To::Terminal}) {
            const Run run = RunIt(whole.disc.Folder(), true, to, to);
            QCOMPARE(run.code, 1);
            QCOMPARE(run.errors, QByteArray());
            QJsonParseError error;
            const QJsonObject report = QJsonDocument::fromJson(run.output, &error).object();
            QCOMPARE(error.error, QJsonParseError::NoError);
            QCOMPARE(report[u"disc"_s].toString(), whole.disc.Folder());
            QCOMPARE(report[u"counts"_s][u"missing"_s].toInt(), 1);
        }
    }

    void a_terminal_gets_colours_and_a_bar_that_is_gone_at_the_end()
    {
        WholeDisc whole;
        whole.disc.Remove(u"wav/taxi.wav"_s);
        const Run run = RunIt(whole.disc.Folder(), false, To::Terminal, To::Terminal);
        QVERIFY(run.output.startsWith("\x1b[31mmissing\x1b[0m  wav\\taxi.wav"));
        QVERIFY2(run.errors.startsWith("\r["), run.errors.constData());
        QVERIFY(run.errors.contains(" of "));
        QVERIFY(run.errors.endsWith("\r\x1b[K"));
        QVERIFY(!run.errors.contains('\n'));
    }

    void no_color_takes_the_colours_and_leaves_the_bar()
    {
        WholeDisc whole;
        whole.disc.Remove(u"wav/taxi.wav"_s);
        const HeldVariable plain("NO_COLOR", "1");
        const Run run = RunIt(whole.disc.Folder(), false, To::Terminal, To::Terminal);
        QVERIFY(run.output.startsWith("missing  wav\\taxi.wav"));
        QVERIFY(!run.output.contains('\x1b'));
        QVERIFY(run.errors.contains(" of "));
    }

    void a_report_that_goes_into_a_file_has_no_colours_while_the_terminal_has_the_bar()
    {
        WholeDisc whole;
        whole.disc.Remove(u"wav/taxi.wav"_s);
        const Run run = RunIt(whole.disc.Folder(), false, To::Pipe, To::Terminal);
        QVERIFY(!run.output.contains('\x1b'));
        QVERIFY(run.errors.contains(" of "));
    }

    void an_image_that_was_cut_in_half_names_what_it_lost()
    {
        ImageMaker maker;
        const int photos = maker.AddFolder("TORVIKS");
        maker.AddFile("67TOR001.JPG;1", TestDisc::Jpeg(Qt::red, {64, 48}), photos);
        maker.AddFile("67TOR002.JPG;1", TestDisc::Jpeg(Qt::red, {640, 480}), photos);
        maker.AddFile("67TOR003.JPG;1", TestDisc::Jpeg(Qt::red, {64, 48}), photos);
        const ImageDrive drive;
        QVERIFY(drive.Write(u"half.iso"_s, maker.Iso().chopped(3 * ImageMaker::block)));
        const Run run = RunIt(drive.PathOf(u"half.iso"_s));
        QCOMPARE(run.code, 1);
        QStringList unreadable;
        for (const QByteArray& line : run.output.split('\n')) {
            if (line.startsWith("unreadable"))
                unreadable.append(QString::fromUtf8(line).simplified());
        }
        const QString told = u"unreadable TORVIKS\\%1 cannot be read to its end: Device I/O error [1967]"_s;
        QCOMPARE(unreadable, (QStringList{told.arg(u"67TOR002.JPG"_s), told.arg(u"67TOR003.JPG"_s)}));
    }
};

TORVIK_TEST(RunCheckTest)
#include "run_check_test.moc"
