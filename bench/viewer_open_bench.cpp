// What it costs to open the viewer on an ordinary article of 20 KiB, against the same viewer on an article of
// one word: as processor time until it is painted, and until its last line is laid out, which the program
// does in steps after that.

#include "bind_handlers.h"
#include "measure.h"
#include "platform/paths/drives.h"
#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "ui/forms/form_window.h"
#include "windows/article_window.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTextDocument>

#include <ctime>

using namespace Qt::StringLiterals;

namespace {

constexpr int articleBytes = 20 * 1024;
constexpr int rounds = 9;
constexpr double most = 9; // milliseconds

QByteArray Article(int bytes)
{
    QByteArray article =
        R"({\rtf1\ansi{\fonttbl{\f0\froman Times New Roman;}{\f1\fswiss Arial;}}{\colortbl ;\red142\green27\blue31;})";
    for (int number = 1; article.size() < bytes; ++number) {
        const QByteArray n = QByteArray::number(number);
        article += "\\pard\\sb200\\sa80\\f1\\fs28\\b\\cf1 Chapter " + n +
                   "\\cf0\\b0\\par\\pard\\sa120\\f0\\fs22 The " + "works built \\b " + n +
                   ",000\\b0  cars, \\i most\\i0  of them red, and sold all but two of " +
                   "them before the snow came. What became of the two is told further down.\\par\r\n" +
                   "\\trowd\\cellx3000\\cellx6000\\pard\\intbl Bore\\cell 4.0 in\\cell\\row\\pard\r\n";
    }
    return article + "}";
}

void Write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(content);
}

/// Processor milliseconds from the first touch of the viewer.
struct OpeningTimes {
    double painted = 0;
    double whole = 0; ///< with every line laid out
};

OpeningTimes TimesOf(const QString& document)
{
    using namespace torvik;
    std::vector<double> painted;
    std::vector<double> whole;
    for (int round = 0; round < rounds; ++round) {
        const std::clock_t before = std::clock();
        const auto passed = [before] {
            return 1000.0 * static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
        };
        txtForm->rtbText.SetFileName(document);
        txtForm->Show();
        QCoreApplication::processEvents();
        txtForm->Window().repaint();
        painted.push_back(passed());
        txtForm->rtbText.Document().pageCount(); // known when all is laid out
        whole.push_back(passed());
        txtForm.Unload();
        QCoreApplication::processEvents();
        // Only a running loop deletes by itself; else the texts of earlier rounds would go on being laid out
        // here.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return {bench::Median(painted), bench::Median(whole)};
}

} // namespace

int main(int argc, char** argv)
{
    using namespace torvik;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir disc;
    Write(disc.filePath(u"article.rtf"_s), Article(articleBytes));
    Write(disc.filePath(u"word.rtf"_s), "{\\rtf1 word}");
    const QApplication application(argc, argv);
    BindHandlers();
    SetProgramFolder(disc.path());
    SetDriveOptions({{u'E', disc.path()}});

    const OpeningTimes empty = TimesOf(u"E:\\word.rtf"_s);
    const OpeningTimes article = TimesOf(u"E:\\article.rtf"_s);
    const bool isSeenInTime =
        bench::Report("opening the viewer", "ms", article.painted, empty.painted, most / empty.painted);
    const bool isWholeInTime =
        bench::Report("opening it to the last line", "ms", article.whole, empty.whole, most / empty.whole);
    FormHandleBase::DiscardAll();
    return isSeenInTime && isWholeInTime ? 0 : 1;
}
