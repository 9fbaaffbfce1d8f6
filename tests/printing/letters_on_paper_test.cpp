#include "printing/rich_text_printing.h"
#include "support/print_folder.h"
#include "support/program.h"
#include "support/test_class.h"
#include "windows/article_window.h"

#include <QImage>
#include <QPainter>
#include <QTextDocument>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace torvik;

/// Letters on paper beside the same letters on the screen.
class LettersOnPaperTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        printed_ = std::make_unique<PrintFolder>();
    }
    void cleanup()
    {
        printed_.reset();
        program_.reset();
    }

    void letters_are_as_wide_on_paper_as_on_the_screen_data()
    {
        QTest::addColumn<QByteArray>("format");
        QTest::newRow("plain") << QByteArray();
        QTest::newRow("bold") << QByteArray("\\b");
        QTest::newRow("stretched") << QByteArray("\\charscalex150");
        QTest::newRow("narrowed") << QByteArray("\\charscalex75");
        QTest::newRow("small capitals") << QByteArray("\\scaps");
        QTest::newRow("bold stretched small capitals") << QByteArray("\\b\\scaps\\charscalex150");
        QTest::newRow("apart") << QByteArray("\\expndtw100");
        QTest::newRow("close") << QByteArray("\\expndtw-20");
    }
    void letters_are_as_wide_on_paper_as_on_the_screen()
    {
        QFETCH(QByteArray, format);
        Print("\\fs40" + format + " Hamburgers in HASTE");
        const double onScreen = WidthOnScreen();
        const double onPaper = InkOf(printed_->Image(1, 1)).width();
        QVERIFY2(std::abs(onPaper / onScreen - 1) < 0.02, qPrintable(QString::number(onPaper / onScreen)));
    }

    void the_space_told_between_letters_is_the_space_on_paper()
    {
        constexpr double space = 100; // twips
        constexpr int spaces = 18;    // between the letters
        Print("\\fs40 Hamburgers in HASTE");
        Print("\\fs40\\expndtw100 Hamburgers in HASTE");
        const double widening = InkOf(printed_->Image(2, 1)).width() - InkOf(printed_->Image(1, 1)).width();
        // Qt takes whole multiples of the screen's resolution: 6 for 6.25.
        QVERIFY2(std::abs(widening / (space * spaces) - 1) < 0.05, qPrintable(QString::number(widening)));
    }

    void stretched_letters_are_as_much_wider_as_told_data()
    {
        QTest::addColumn<int>("percent");
        QTest::newRow("one and a half") << 150;
        QTest::newRow("three quarters") << 75;
    }
    void stretched_letters_are_as_much_wider_as_told()
    {
        QFETCH(int, percent);
        Print("\\fs40 Hamburgers in HASTE");
        Print("\\fs40\\charscalex" + QByteArray::number(percent) + " Hamburgers in HASTE");
        const QRectF plain = InkOf(printed_->Image(1, 1));
        const QRectF stretched = InkOf(printed_->Image(2, 1));
        const double ratio = stretched.width() / plain.width();
        QVERIFY2(std::abs(ratio * 100 / percent - 1) < 0.02, qPrintable(QString::number(ratio)));
        QCOMPARE(stretched.height(), plain.height());
    }

    void a_double_underline_is_two_lines_with_paper_between()
    {
        Print("\\fs144\\uldb nnn");
        const QImage paper = printed_->Image(1, 1);
        const QRectF ink = InkOf(paper);
        int lines = 0;
        bool wasLine = false;
        for (int y = 0; y < paper.height(); ++y) {
            const bool isLine = IsLine(paper, ink, y);
            lines += isLine && !wasLine ? 1 : 0;
            wasLine = isLine;
        }
        QCOMPARE(lines, 2);
    }

    void a_shadow_is_painted_beside_its_letters_and_is_no_second_text()
    {
        Print("\\fs144 nnn");
        Print("\\fs144\\shad nnn");
        QCOMPARE(printed_->Pages(2), printed_->Pages(1));
        const QRectF plain = InkOf(printed_->Image(1, 1));
        const QRectF shadowed = InkOf(printed_->Image(2, 1));
        QCOMPARE(shadowed.topLeft(), plain.topLeft());
        constexpr double aside = 72; // twips, a twentieth of the letters' size
        QVERIFY2(std::abs(shadowed.width() - plain.width() - aside) <= PrintFolder::twipsPerPixel,
                 qPrintable(QString::number(shadowed.width() - plain.width())));
        QVERIFY(std::abs(shadowed.height() - plain.height() - aside) <= PrintFolder::twipsPerPixel);
    }

private:
    void Print(const QByteArray& rtf)
    {
        program_->disc.AddFile(u"RichText/text.rtf"_s,
                               "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0" + rtf + "\\par}");
        txtForm->rtbText.SetFileName(u"G:\\RichText\\text.rtf"_s);
        constexpr int margin = 1440;
        PrintRichText(txtForm->rtbText, margin, margin, margin, margin);
    }

    /// Of the ink, in twips.
    static double WidthOnScreen()
    {
        constexpr double twips = 15;
        const std::unique_ptr<QTextDocument> text(txtForm->rtbText.Document().clone());
        text->setLayoutEnabled(true);
        QImage screen(1000, 200, QImage::Format_RGB32);
        screen.fill(Qt::white);
        QPainter painter(&screen);
        text->drawContents(&painter);
        return InkOf(screen).width() / PrintFolder::twipsPerPixel * twips;
    }

    /// Whether a row of pixels is dark from one end of the ink to the other.
    static bool IsLine(const QImage& paper, const QRectF& ink, int y)
    {
        const int left = static_cast<int>(ink.left() / PrintFolder::twipsPerPixel);
        const int right = static_cast<int>(ink.right() / PrintFolder::twipsPerPixel);
        for (int x = left; x < right; ++x) {
            if (qGray(paper.pixel(x, y)) > 200)
                return false;
        }
        return true;
    }

    std::unique_ptr<Program> program_;
    std::unique_ptr<PrintFolder> printed_;
};

TORVIK_TEST(LettersOnPaperTest)
#include "letters_on_paper_test.moc"
