// Finding words in all that a disc holds: what the index costs against the bare reading of the same articles,
// how it grows with the disc, how soon and how fast it answers, and what a person would do without it, where
// unrtf is installed.
//
// Usage: search_bench [DISC]    DISC is build/disc unless given

#include "bind_handlers.h"
#include "browsing.h"
#include "measure.h"
#include "platform/files/files.h"
#include "rtf/rtf_reader.h"
#include "search/disc_index.h"
#include "ui/application.h"
#include "ui/forms/form_window.h"
#include "windows/find_window.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSemaphore>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

using namespace torvik;

constexpr double mostSeconds = 1;
constexpr double mostOfBareReading = 1.5;
constexpr double mostMebibytes = 25;
constexpr double mostOfQuery = 5;          // milliseconds
constexpr double mostToFirstResults = 150; // milliseconds
constexpr double mostOfTenfold = 1.25;     // of ten times the time of one disc
constexpr double leastOfPeer = 20;         // times as long as ours
constexpr int rounds = 5;

const QString typed[] = {
    u"t"_s,        u"torvik"_s,         u"the"_s,         u"scoop"_s,     u"engi"_s,
    u"red hood"_s, u"\"model year\""_s, u"car -engine"_s, u"submarine"_s, u"1969 color*"_s};

template <typename Work>
double ProcessorSeconds(Work&& work)
{
    const std::clock_t before = std::clock();
    work();
    return static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
}

double MebibytesInUse()
{
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const double pages = file.readAll().split(' ').value(1).toDouble();
    return pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1024 * 1024);
}

bool ReportLimit(const char* name, const char* unit, double figure, double limit)
{
    const bool isOk = figure <= limit;
    std::printf("%s: %.3f %s, limit %.3f %s, %s\n", name, figure, unit, limit, unit, isOk ? "ok" : "over");
    return isOk;
}

/// An index that can be waited for.
class Index {
public:
    explicit Index(const QList<IndexedText>& texts) : index_(texts, [this] { news_.release(); }) {}

    void WaitForEnd()
    {
        while (!index_.Progress().isDone)
            news_.acquire();
    }

    qsizetype Find(const QString& words)
    {
        index_.TakeAnswer();
        index_.Ask(words);
        for (;;) {
            if (const auto answer = index_.TakeAnswer(); answer && answer->question == words)
                return answer->count;
            news_.acquire();
        }
    }

private:
    QSemaphore news_;
    DiscIndex index_;
};

QList<IndexedText> Documents(int times)
{
    QList<IndexedText> texts;
    const QStringList names = FilesMatching(u"E:\\RichText\\*.rtf"_s);
    for (int time = 0; time < times; ++time) {
        for (const QString& name : names)
            texts.append({name, FileToRead(u"E:\\RichText\\"_s + name)});
    }
    return texts;
}

double IndexingSeconds(int times)
{
    const QList<IndexedText> texts = Documents(times);
    return ProcessorSeconds([&] { Index(texts).WaitForEnd(); });
}

/// The slowest of the questions, each by the median of its rounds, in milliseconds.
double SlowestQuery(Index& index)
{
    double slowest = 0;
    for (const QString& words : typed) {
        std::vector<double> times;
        times.reserve(rounds);
        for (int round = 0; round < rounds; ++round)
            times.push_back(bench::Milliseconds([&] { index.Find(words); }));
        slowest = std::max(slowest, bench::Median(times));
    }
    return slowest;
}

/// From Ctrl+F and the first letter to the first rows of the list, the rest of 80 ms among it.
double MillisecondsToFirstResults()
{
    return bench::Milliseconds([] {
        Form1->KeyDown.Fire(key::letterF, held::ctrl);
        frmFind->txtFind.SetText(u"s"_s);
        while (frmFind->lstFound.ListCount() == 0)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        frmFind->Window().repaint();
    });
}

/// What a person would do: turn each document into text and look through it. Milliseconds; 0 where there is
/// no such tool.
double PeerMilliseconds(const QString& disc)
{
    if (QStandardPaths::findExecutable(u"unrtf"_s).isEmpty())
        return 0;
    const QString command =
        u"for file in \"$0\"/*.rtf; do unrtf --text \"$file\" 2>/dev/null; done | grep -ic scoop"_s;
    const QTemporaryDir scratch; // unrtf writes the pictures of a document where it stands
    return bench::Milliseconds([&] {
        QProcess shell;
        shell.setWorkingDirectory(scratch.path());
        shell.start(u"sh"_s, {u"-c"_s, command, QDir(disc).filePath(u"RichText"_s)});
        shell.waitForFinished(-1);
    });
}

bool ComparePeer(const QString& disc, double query)
{
    const double cold = bench::Milliseconds([] {
        Index index(Documents(1));
        index.WaitForEnd();
        index.Find(u"scoop"_s);
    });
    const double peer = PeerMilliseconds(disc);
    if (peer == 0) {
        std::printf("unrtf and grep: not measured, unrtf is not installed\n");
        return true;
    }
    std::printf("unrtf and grep: %.0f ms, %.0f times a query, %.1f times the index and a query\n", peer,
                peer / query, peer / cold);
    return peer >= leastOfPeer * query;
}

} // namespace

int main(int argc, char** argv)
{
    const bench::Home home;
    Application application(argc, argv);
    const QString disc = QDir(argc > 1 ? QString::fromLocal8Bit(argv[1]) : u"build/disc"_s).absolutePath();
    BindHandlers();
    bench::StartBrowsing(disc, home.Folder());
    Clock::Run();

    const double before = MebibytesInUse();
    const double first = MillisecondsToFirstResults();
    while (frmFind->ProgressGuage.Visible())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const double memory = MebibytesInUse() - before;
    FormHandleBase::DiscardAll();

    qsizetype letters = 0;
    std::vector<double> bare;
    std::vector<double> once;
    std::vector<double> tenfold;
    for (std::vector<double>* times : {&bare, &once, &tenfold})
        times->reserve(rounds);
    for (int round = 0; round < rounds; ++round) {
        bare.push_back(ProcessorSeconds([&] {
            for (const IndexedText& text : Documents(1))
                letters += rtf::PlainText(text.read()).size();
        }));
    }
    for (int round = 0; round < rounds; ++round)
        once.push_back(IndexingSeconds(1));
    for (int round = 0; round < 3; ++round)
        tenfold.push_back(IndexingSeconds(10));

    const double bareSeconds = bench::Median(bare);
    const double seconds = bench::Median(once);
    Index index(Documents(1));
    index.WaitForEnd();
    const double query = SlowestQuery(index);
    std::printf("%d documents, %d letters\n", static_cast<int>(Documents(1).size()),
                static_cast<int>(letters / rounds));
    bool isOk = bench::Report("the index of a disc, processor time", "s", seconds, bareSeconds,
                              std::max(mostOfBareReading, mostSeconds / bareSeconds));
    isOk &=
        bench::Report("of ten times the documents", "s", bench::Median(tenfold), 10 * seconds, mostOfTenfold);
    isOk &= ReportLimit("memory of the form and its index", "MiB", memory, mostMebibytes);
    isOk &= ReportLimit("first results after the first key, with its rest of 80 ms", "ms", first,
                        mostToFirstResults);
    isOk &= ReportLimit("the slowest question", "ms", query, mostOfQuery);
    isOk &= ComparePeer(disc, query);
    return isOk ? 0 : 1;
}
