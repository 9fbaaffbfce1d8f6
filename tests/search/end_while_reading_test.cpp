#include "search/disc_index.h"
#include "support/test_class.h"

#include <QGuiApplication>
#include <QProcess>
#include <QSemaphore>
#include <QThread>

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

/// A program that ends as soon as its index has an article in hand.
int RunProgram(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    const auto isRead = std::make_shared<QSemaphore>();
    const DiscIndex index({{u"Endless"_s,
                            [isRead, article = EndlessArticle()] {
                                isRead->release();
                                return article;
                            }}},
                          [] {});
    isRead->acquire();
    constexpr unsigned long untilItIsTakenApart = 200; // milliseconds; the end is no harder before
    QThread::msleep(untilItIsTakenApart);
    return 0;
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
