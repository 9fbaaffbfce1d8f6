// How fast a rich-text article becomes a document, against two baselines measured in the same run: Qt
// reading the same content from its own markup, and a converter of rich text to markup where one is
// installed.

#include "rtf/rtf_reader.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextDocument>

#include <algorithm>
#include <cstdio>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mebibyte = 1024LL * 1024;
constexpr int pictures = 10;
constexpr int repeats = 7;
constexpr double limitAgainstMarkup = 0.6;
constexpr double limitAgainstConverter = 1.0 / 5;
constexpr double limitOfGrowth = 1.5;

constexpr const char* head =
    R"({\rtf1\ansi\ansicpg1252\deff0{\fonttbl{\f0\froman\fcharset0 Times New Roman;}{\f1\fswiss\fcharset0 Arial;})"
    R"({\f2\fnil\fcharset2 Symbol;}}{\colortbl ;\red192\green0\blue0;\red0\green64\blue160;}\viewkind4\uc1)"
    "\r\n";

/// One paragraph after the other, each of another make.
QByteArray ParagraphNumber(int number)
{
    const QByteArray n = QByteArray::number(number);
    switch (number % 6) {
    case 0:
        return "\\pard\\sb240\\sa120\\qc\\f1\\fs28\\b\\cf2 Chapter " + n +
               ": the engine and its makers\\cf0\\b0\\par\r\n";
    case 1:
        return "\\pard\\qj\\f0\\fs22 The \\b second\\b0  series of " + n +
               " left the works with a \\i longer\\i0  bonnet, a \\ul wider\\ulnone  track and \\cf1 "
               "red\\cf0  seats; "
               "the caf\\'e9 racer among them, at \\u8364?" +
               n +
               ", sold best of all. Nobody at the works had asked for it, and yet everybody wanted "
               "one.\\par\r\n";
    case 2:
        return "{\\pntext\\f2\\'B7\\tab}\\pard{\\*\\pn\\pnlvlblt\\pnf2{\\pntxtb\\'B7}}\\fi-360\\li720 "
               "Wheel " +
               n + " of \\b alloy\\b0\\par\r\n{\\pntext\\f2\\'B7\\tab}Wheel of steel\\par\r\n";
    case 3:
        return "\\pard\\tx2880\\tqr\\tx7200 Bore\\tab 4.0 in\\tab " + n + "\\par\r\n";
    case 4:
        return "\\pard{\\f1\\fs18\\super note }{\\scaps small capitals} and H{\\sub 2}O, struck {\\strike "
               "out} and "
               "{\\highlight1 marked}, all in one paragraph of ordinary length.\\par\r\n";
    case 5:
        if (number % 30 == 5)
            return "\\trowd\\trgaph108\\clbrdrb\\brdrs\\brdrw10\\cellx3000\\cellx6000\\pard\\intbl "
                   "Paint\\cell Code " +
                   n + "\\cell\\row\\pard\\par\r\n";
        [[fallthrough]];
    default:
        return "\\pard Plain words fill most of any article, line after line, so they are what has to be "
               "quick: this "
               "is paragraph " +
               n + " of it, and there will be more of the same kind.\\par\r\n";
    }
}

QByteArray Picture(int seed)
{
    QImage image(96, 64, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb((x * seed) & 255, (y * 3) & 255, (x + y) & 255));
    }
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "png");
    return "\\pard{\\pict\\pngblip\\picw96\\pich64\\picwgoal1440\\pichgoal960 " + png.toHex() + "}\\par\r\n";
}

QByteArray Article(qsizetype bytes)
{
    QByteArray article = head;
    int number = 0;
    int pictures = 0;
    while (article.size() < bytes) {
        article += ParagraphNumber(number++);
        // As many in each mebibyte.
        if (article.size() < bytes && article.size() > mebibyte * (pictures + 1) / (pictures + 1))
            article += Picture(++pictures);
    }
    return article + "}\r\n";
}

/// The shortest of several runs, milliseconds: what disturbs a run only makes it longer.
double Milliseconds(int repeats, const std::function<void()>& work)
{
    double best = 1e18;
    for (int i = 0; i < repeats; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        best = std::min(best, double(timer.nsecsElapsed()) / 1e6);
    }
    return best;
}

bool Report(const char* what, double figure, double baseline, double limit)
{
    const double ratio = figure / baseline;
    const bool isGood = ratio <= limit;
    std::printf("%-44s %9.2f ms  baseline %9.2f ms  ratio %.3f  limit %.3f  %s\n", what, figure, baseline,
                ratio, limit, isGood ? "ok" : "TOO SLOW");
    return isGood;
}

double ReadTime(const QByteArray& article, int repeats)
{
    return Milliseconds(repeats, [&] {
        QTextDocument document;
        torvik::rtf::ReadRichText(article, document);
    });
}

bool CompareWithConverter(const QByteArray& article, double reading)
{
    const QString converter = QStandardPaths::findExecutable(u"unrtf"_s);
    if (converter.isEmpty()) {
        std::printf("%-44s not measured: unrtf is not installed\n", "reading against a converter");
        return true;
    }
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"article.rtf"_s));
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(article);
    file.close();
    const double converting = Milliseconds(3, [&] {
        QProcess process;
        process.setWorkingDirectory(folder.path());
        process.setStandardOutputFile(folder.filePath(u"article.html"_s));
        process.start(converter, {u"--html"_s, file.fileName()});
        process.waitForFinished(-1);
    });
    return Report("reading against unrtf converting", reading, converting, limitAgainstConverter);
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QByteArray article = Article(mebibyte);
    QTextDocument read;
    const torvik::rtf::ReadResult result = torvik::rtf::ReadRichText(article, read);
    std::printf("article of %lld bytes: %d paragraphs, %d tables, %d pictures\n", qlonglong(article.size()),
                result.paragraphs, result.tables, result.pictures);
    const QString markup = read.toHtml();

    const double reading = ReadTime(article, repeats);
    const double fromMarkup = Milliseconds(repeats, [&] {
        QTextDocument document;
        document.setHtml(markup);
    });
    bool isGood = result.pictures == pictures;
    isGood = Report("reading against setHtml of the same content", reading, fromMarkup, limitAgainstMarkup) &&
             isGood;
    isGood = CompareWithConverter(article, reading) && isGood;

    const QByteArray large = Article(50 * mebibyte);
    const double growth = ReadTime(large, 1);
    isGood = Report("50 MiB against 50 times 1 MiB", growth, reading * 50, limitOfGrowth) && isGood;
    return isGood ? 0 : 1;
}
