#include "search/disc_index.h"
#include "support/test_class.h"

#include <QGuiApplication>
#include <QProcess>
#include <QSemaphore>

#include <ctime>
#include <pthread.h>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

constexpr const char* programName = "ProgramThatEndsWhileAnArticleIsRead";

/// Takes the reader far longer than anybody waits for the end of a program.
QByteArray EndlessArticle()
{
    constexpr qsizetype groups = 20'000'000;
    return "{\\rtf1 word " + QByteArray("{\\b }").repeated(groups) + "}";
}

/// The processor time of a thread.
double SecondsOf(clockid_t thread)
{
    timespec time{};
    clock_gettime(thread, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

/// A program that ends as soon as its index has an article in hand.
int RunProgram(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    const auto isRead = std::make_shared<QSemaphore>();
    const auto reader = std::make_shared<clockid_t>();
    const DiscIndex index({{u"Endless"_s,
                            [isRead, reader, article = EndlessArticle()] {
                                pthread_getcpuclockid(pthread_self(), reader.get());
                                isRead->release();
                                return article;
                            }}},
                          [] {});
    isRead->acquire();
    const double begin = SecondsOf(*reader);
    constexpr double deepInIt = 0.1;
    return QTest::qWaitFor([&] { return SecondsOf(*reader) > begin + deepInIt; }, 20'000) ? 0 : 1;
}

const TestClass program(programName, RunProgram);

} // namespace

/// What becomes of an index when the program ends.
class EndWhileReadingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_program_ends_well_while_an_article_is_read()
    {
        constexpr int times = 3; // a crash would depend on the moment
        for (int time = 0; time < times; ++time) {
            QProcess process;
            process.setProcessChannelMode(QProcess::ForwardedChannels);
            process.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(programName)});
            QVERIFY2(process.waitForFinished(30'000), "it does not end");
            QCOMPARE(process.exitStatus(), QProcess::NormalExit);
            QCOMPARE(process.exitCode(), 0);
        }
    }
};

TORVIK_TEST(EndWhileReadingTest)
#include "end_while_reading_test.moc"
