#include "rtf/documents.h"
#include "support/test_class.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPainter>
#include <QTextFrame>
#include <QTextTable>

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

/// The lines between paragraphs that stand within the same borders.
class ParagraphBoxTest : public QObject {
    Q_OBJECT

    static QTextTable* BoxOf(const Reading& read, qsizetype number = 0)
    {
        return qobject_cast<QTextTable*>(read.document->rootFrame()->childFrames().value(number));
    }
    static QTextTableCellFormat FormatOf(const Reading& read, int part)
    {
        return BoxOf(read)->cellAt(part, 0).format().toTableCellFormat();
    }
    static QByteArray Boxed(const QByteArray& between, const QByteArray& paragraphs)
    {
        return "\\pard\\box\\brdrs\\brdrw30\\brdrcf1" + between + ' ' + paragraphs + "\\pard after\\par";
    }

private Q_SLOTS:
    void a_line_stands_between_paragraphs_of_one_box()
    {
        const Reading read = ReadBody(
            "before\\par " + Boxed("\\brdrbtw\\brdrdash\\brdrw15\\brdrcf3", "one\\par two\\par three\\par"));
        QCOMPARE(read.Text(), u"before\none\ntwo\nthree\nafter"_s);
        QCOMPARE(read.document->rootFrame()->childFrames().size(), 1);
        QCOMPARE(BoxOf(read)->rows(), 3);
        QCOMPARE(read.result.tables, 0);
        for (const int part : {0, 1, 2}) {
            const QTextTableCellFormat format = FormatOf(read, part);
            QCOMPARE(format.topBorder(), part == 0 ? 2.0 : 1.0);
            QCOMPARE(format.topBorderStyle(),
                     part == 0 ? QTextFrameFormat::BorderStyle_Solid : QTextFrameFormat::BorderStyle_Dashed);
            QCOMPARE(format.topBorderBrush().color(), part == 0 ? QColor(255, 0, 0) : QColor(0, 0, 255));
            QCOMPARE(format.bottomBorder(), part == 2 ? 2.0 : 0.0);
            QCOMPARE(format.leftBorder(), 2.0);
            QCOMPARE(format.rightBorder(), 2.0);
        }
    }

    void the_line_is_painted_over_the_width_of_the_box()
    {
        constexpr int width = 300;
        const Reading read = ReadBody(Boxed("\\brdrbtw\\brdrs\\brdrw45\\brdrcf3", "one\\par two\\par"));
        read.document->setDocumentMargin(0);
        read.document->setTextWidth(width);
        QImage image(width, int(read.document->size().height()), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        read.document->drawContents(&painter);
        painter.end();
        int rows = 0;
        for (int y = 0; y < image.height(); ++y) {
            int blue = 0;
            for (int x = 0; x < width; ++x)
                blue += image.pixelColor(x, y) == QColor(0, 0, 255) ? 1 : 0;
            rows += blue >= width - 6 ? 1 : 0;
        }
        QCOMPARE(rows, 3);
    }

    void room_beside_the_line_is_as_told()
    {
        const Reading read =
            ReadBody(Boxed("\\brdrbtw\\brdrs\\brdrw15\\brsp60\\sb150\\sa300", "one\\par two\\par"));
        QCOMPARE(FormatOf(read, 0).topPadding(), 4.0);
        QCOMPARE(FormatOf(read, 0).bottomPadding(), 24.0);
        QCOMPARE(FormatOf(read, 1).topPadding(), 14.0);
        QCOMPARE(FormatOf(read, 1).bottomPadding(), 4.0);
        // What is wanted above and below all of it stands outside.
        QCOMPARE(BoxOf(read)->format().topMargin(), 10.0);
        QCOMPARE(BoxOf(read)->format().bottomMargin(), 20.0);
    }

    void paragraphs_without_other_borders_have_the_line_alone()
    {
        const Reading read = ReadBody("\\pard\\brdrbtw\\brdrs\\brdrw15 one\\par two\\par\\pard after\\par");
        QCOMPARE(BoxOf(read)->rows(), 2);
        QCOMPARE(FormatOf(read, 0).topBorder(), 0.0);
        QCOMPARE(FormatOf(read, 1).topBorder(), 1.0);
        QCOMPARE(FormatOf(read, 1).bottomBorder(), 0.0);
    }

    void all_parts_have_the_same_room_at_their_sides()
    {
        const Reading read =
            ReadBody("\\pard\\brdrl\\brdrs\\brdrb\\brdrs\\brdrbtw\\brdrs one\\par two\\par\\pard after\\par");
        QCOMPARE(FormatOf(read, 0).leftPadding(), 0.0);
        QCOMPARE(FormatOf(read, 1).leftPadding(), 0.0);
    }

    void an_empty_paragraph_between_two_lines_keeps_its_height()
    {
        const Reading read =
            ReadBody("\\pard\\brdrb\\brdrs\\brdrbtw\\brdrs one\\par\\par three\\par\\pard after\\par");
        QCOMPARE(BoxOf(read)->rows(), 3);
        const auto topOf = [&](const QString& text) {
            return read.document->documentLayout()->blockBoundingRect(read.Block(text)).top();
        };
        const double line = read.document->documentLayout()->blockBoundingRect(read.Block(u"one"_s)).height();
        QVERIFY(line > 10);
        QVERIFY(topOf(u"three"_s) - topOf(u"one"_s) >= 2 * line);
    }

    void without_the_word_paragraphs_of_a_box_are_not_parted()
    {
        const Reading read = ReadBody(Boxed("", "one\\par two\\par"));
        QCOMPARE(BoxOf(read)->rows(), 1);
        QCOMPARE(BoxOf(ReadBody(Boxed("\\brdrbtw\\brdrnone", "one\\par two\\par")))->rows(), 1);
    }

    void a_paragraph_with_another_line_between_has_a_box_of_its_own()
    {
        const Reading read = ReadBody(
            Boxed("\\brdrbtw\\brdrs", "one\\par\\brdrbtw\\brdrdb two\\par\\brdrbtw\\brdrdb three\\par"));
        QCOMPARE(BoxOf(read, 0)->rows(), 1);
        QCOMPARE(BoxOf(read, 1)->rows(), 2);
    }

    void words_of_a_bar_beside_the_text_change_no_border()
    {
        const Reading read = ReadBody("\\pard\\brdrt\\brdrs\\brdrw15\\brdrbar\\brdrdb\\brdrw60 bar\\par");
        QCOMPARE(FormatOf(read, 0).topBorderStyle(), QTextFrameFormat::BorderStyle_Solid);
        QCOMPARE(FormatOf(read, 0).topBorder(), 1.0);
    }

    void numbers_go_on_from_part_to_part()
    {
        const Reading read = ReadBody("\\pard\\box\\brdrs\\brdrbtw\\brdrs{\\*\\pn\\pnlvlbody\\pndec\\pnstart1"
                                      "{\\pntxta .}}one\\par two\\par\\pard after\\par");
        QCOMPARE(BoxOf(read)->rows(), 2);
        QVERIFY(read.Block(u"one"_s).textList() != nullptr);
        QCOMPARE(read.Block(u"two"_s).textList(), read.Block(u"one"_s).textList());
    }

    void a_box_of_very_many_paragraphs_keeps_them_all()
    {
        constexpr int count = 5000;
        const Reading read = ReadBody(Boxed("\\brdrbtw\\brdrs", QByteArray("x\\par ").repeated(count)));
        QCOMPARE(read.Text().count(u'x'), count);
        QCOMPARE(BoxOf(read)->rows(), 1000);
    }
};

TORVIK_TEST(ParagraphBoxTest)
#include "paragraph_box_test.moc"
