#include "rtf/documents.h"
#include "support/test_class.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QTextList>
#include <QTextTable>
#include <QUrl>

#include <cmath>

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

class ShapesTest : public QObject {
    Q_OBJECT

    static QByteArray Shape(const QByteArray& properties, const QByteArray& text)
    {
        return "{\\shp{\\*\\shpinst\\shpleft300\\shptop0\\shpright3300\\shpbottom1500" + properties +
               (text.isEmpty() ? QByteArray() : "{\\shptxt " + text + "}") + "}{\\shprslt older form\\par}}";
    }
    static QByteArray Property(const QByteArray& name, const QByteArray& value)
    {
        return "{\\sp{\\sn " + name + "}{\\sv " + value + "}}";
    }
    static QList<QTextTable*> BoxesOf(const Reading& read)
    {
        QList<QTextTable*> boxes;
        for (QTextFrame* frame : read.document->rootFrame()->childFrames()) {
            if (auto* table = qobject_cast<QTextTable*>(frame))
                boxes.append(table);
        }
        return boxes;
    }
    static QString TextOf(const QTextTable* box)
    {
        QTextCursor cursor = box->firstCursorPosition();
        cursor.setPosition(box->lastPosition(), QTextCursor::KeepAnchor);
        return cursor.selectedText().replace(QChar(QChar::ParagraphSeparator), u'/');
    }
    static QImage PictureOf(const Reading& read, int number)
    {
        return read.document->resource(QTextDocument::ImageResource, QUrl(u"rtf-picture:%1"_s.arg(number)))
            .value<QImage>();
    }
    /// The size at which the document's only picture is shown, pixels.
    static QSizeF OnlyPictureSize(const Reading& read)
    {
        for (QTextBlock block = read.document->begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextImageFormat format = part.fragment().charFormat().toImageFormat();
                if (format.isValid())
                    return {format.width(), format.height()};
            }
        }
        return {};
    }

    /// How often an outline's upper edge is interrupted.
    static int GapsOnTop(const QImage& image)
    {
        int gaps = 0;
        for (int x = 1; x < image.width(); ++x)
            gaps += image.pixelColor(x, 0).alpha() == 0 && image.pixelColor(x - 1, 0).alpha() != 0 ? 1 : 0;
        return gaps;
    }

private Q_SLOTS:
    void text_of_a_shape_at_the_start_of_a_paragraph_is_a_box_before_it()
    {
        const Reading read = ReadBody("one\\par " + Shape({}, "\\pard in \\b the\\b0  box\\par last\\par") +
                                      "two goes on\\par three\\par");
        QCOMPARE(read.Text(), u"one\nin the box\nlast\ntwo goes on\nthree"_s);
        QCOMPARE(BoxesOf(read).size(), 1);
        QCOMPARE(TextOf(BoxesOf(read).first()), u"in the box/last"_s);
        QCOMPARE(BoxesOf(read).first()->format().columnWidthConstraints().first().rawValue(), 200.0);
        QCOMPARE(BoxesOf(read).first()->format().leftMargin(), 20.0);
        QCOMPARE(read.result.tables, 0);
    }

    void text_of_a_shape_within_a_paragraph_is_a_box_after_it()
    {
        const Reading read = ReadBody("one " + Shape({}, "\\pard box\\par") + "goes on\\par two\\par");
        QCOMPARE(read.Text(), u"one goes on\nbox\ntwo"_s);
    }

    void what_ends_the_document_behind_a_page_break_begins_the_page_data()
    {
        QTest::addColumn<QByteArray>("end");
        QTest::addColumn<bool>("begins");
        QTest::newRow("after a break") << QByteArray("\\page ") << true;
        QTest::newRow("in a paragraph that begins a page") << QByteArray("\\pagebb ") << true;
        QTest::newRow("without a break") << QByteArray() << false;
    }
    void what_ends_the_document_behind_a_page_break_begins_the_page()
    {
        QFETCH(QByteArray, end);
        QFETCH(bool, begins);
        const auto policy = begins ? QTextFormat::PageBreak_AlwaysBefore : QTextFormat::PageBreak_Auto;
        const Reading box = ReadBody("one\\par " + end + Shape({}, "\\pard box\\par"));
        QCOMPARE(box.Text(), u"one\nbox\n"_s);
        QCOMPARE(BoxesOf(box).first()->format().pageBreakPolicy(), policy);
        const Reading drawing = ReadBody("one\\par " + end + Shape(Property("shapeType", "1"), {}));
        QCOMPARE(drawing.document->blockCount(), 2);
        QCOMPARE(drawing.document->lastBlock().blockFormat().pageBreakPolicy(), policy);
    }

    void a_box_is_at_least_as_high_as_told()
    {
        // 1500 twips; the text of the second one needs more.
        const Reading read = ReadBody(Shape({}, "\\pard one line\\par") + "\\par " +
                                      Shape({}, "\\pard " + QByteArray("line\\par ").repeated(20)) + "\\par");
        const auto paddingBelow = [&](qsizetype number) {
            return BoxesOf(read).at(number)->cellAt(0, 0).format().toTableCellFormat().bottomPadding();
        };
        const QTextBlock line = read.Block(u"one line"_s);
        const QTextTableCellFormat format = BoxesOf(read).first()->cellAt(0, 0).format().toTableCellFormat();
        const double height = format.topPadding() + format.topBorder() +
                              read.document->documentLayout()->blockBoundingRect(line).height() +
                              paddingBelow(0);
        QVERIFY2(std::abs(height - 100) < 1, qPrintable(QString::number(height)));
        QVERIFY(paddingBelow(1) < 10);
    }

    void line_and_fill_of_a_box_are_as_told()
    {
        const Reading read =
            ReadBody(Shape(Property("fillColor", "65535") + Property("lineColor", "16711680") +
                               Property("lineWidth", "28575") + Property("dxTextLeft", "190500"),
                           "boxed\\par"));
        const QTextTableCellFormat format = BoxesOf(read).first()->cellAt(0, 0).format().toTableCellFormat();
        QCOMPARE(format.background().color(), QColor(255, 255, 0));
        QCOMPARE(format.topBorder(), 3.0);
        QCOMPARE(format.leftBorderBrush().color(), QColor(0, 0, 255));
        QCOMPARE(format.leftPadding(), 20.0);
        const Reading bare = ReadBody(Shape(Property("fLine", "0") + Property("fFilled", "0"), "bare\\par"));
        const QTextTableCellFormat none = BoxesOf(bare).first()->cellAt(0, 0).format().toTableCellFormat();
        QCOMPARE(none.topBorder(), 0.0);
        QCOMPARE(none.background().style(), Qt::NoBrush);
    }

    void the_line_around_a_box_is_dashed_or_dotted_as_told_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QTextFrameFormat::BorderStyle>("style");
        const auto newer = [](const QByteArray& dashing) -> QByteArray {
            return Shape(Property("lineDashing", dashing), "\\pard boxed\\par") + "\\par";
        };
        const auto older = [](const QByteArray& word) -> QByteArray {
            return "{\\*\\do\\dptxbx{\\dptxbxtext\\pard boxed\\par}\\dpx0\\dpy0\\dpxsize1500\\dpysize750" +
                   word + "}\\par";
        };
        QTest::newRow("solid") << newer("0") << QTextFrameFormat::BorderStyle_Solid;
        QTest::newRow("dashes") << newer("1") << QTextFrameFormat::BorderStyle_Dashed;
        QTest::newRow("dots") << newer("2") << QTextFrameFormat::BorderStyle_Dotted;
        QTest::newRow("dashes and dots") << newer("3") << QTextFrameFormat::BorderStyle_DotDash;
        QTest::newRow("no known line") << newer("99") << QTextFrameFormat::BorderStyle_Solid;
        QTest::newRow("solid, older") << older("\\dplinesolid") << QTextFrameFormat::BorderStyle_Solid;
        QTest::newRow("dashes, older") << older("\\dplinedash") << QTextFrameFormat::BorderStyle_Dashed;
        QTest::newRow("dots, older") << older("\\dplinedot") << QTextFrameFormat::BorderStyle_Dotted;
        QTest::newRow("dashes and dots, older")
            << older("\\dplinedado") << QTextFrameFormat::BorderStyle_DotDash;
    }
    void the_line_around_a_box_is_dashed_or_dotted_as_told()
    {
        QFETCH(QByteArray, body);
        QFETCH(QTextFrameFormat::BorderStyle, style);
        const Reading read = ReadBody(body);
        const QTextTableCellFormat format = BoxesOf(read).first()->cellAt(0, 0).format().toTableCellFormat();
        for (const QTextFrameFormat::BorderStyle side :
             {format.topBorderStyle(), format.leftBorderStyle(), format.bottomBorderStyle(),
              format.rightBorderStyle()})
            QCOMPARE(side, style);
    }

    void boxes_of_the_older_generation()
    {
        const Reading read = ReadBody(
            "a{\\*\\do\\dobxcolumn\\dobypara\\dptxbx\\dptxbxmar75{\\dptxbxtext\\pard old box\\par}"
            "\\dpx150\\dpy0\\dpxsize1500\\dpysize750\\dpfillbgcr0\\dpfillbgcg128\\dpfillbgcb0\\dpfillpat1"
            "\\dplinew30\\dplinecor255\\dplinecog0\\dplinecob0}b\\par");
        QCOMPARE(read.Text(), u"ab\nold box\n"_s);
        const QTextTable* box = BoxesOf(read).first();
        const QTextTableCellFormat format = box->cellAt(0, 0).format().toTableCellFormat();
        QCOMPARE(box->format().columnWidthConstraints().first().rawValue(), 100.0);
        QCOMPARE(format.background().color(), QColor(0, 128, 0));
        QCOMPARE(format.topBorder(), 2.0);
        QCOMPARE(format.topBorderBrush().color(), QColor(255, 0, 0));
        QCOMPARE(format.topPadding(), 5.0);
    }

    void a_box_of_the_older_generation_may_have_no_line_and_no_ground()
    {
        const Reading read =
            ReadBody("{\\*\\do\\dptxbx{\\dptxbxtext\\pard old\\par}\\dpx0\\dpy0\\dpxsize1500\\dpysize750"
                     "\\dpfillbgcr255\\dpfillbgcg0\\dpfillbgcb0\\dpfillpat0\\dplinew30\\dplinehollow}b\\par");
        const QTextTableCellFormat format = BoxesOf(read).first()->cellAt(0, 0).format().toTableCellFormat();
        QCOMPARE(format.topBorder(), 0.0);
        QCOMPARE(format.background().style(), Qt::NoBrush);
    }

    void text_is_never_lost_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::newRow("a shape in a cell")
            << "\\trowd\\cellx5000\\intbl cell" + Shape({}, "words\\par") + "\\cell\\row\\pard after\\par";
        QTest::newRow("a shape in a shape")
            << "x" + Shape({}, "outer" + Shape({}, "words\\par") + "\\par") + "\\par";
        QTest::newRow("a table in a shape")
            << Shape({}, "\\trowd\\cellx900\\intbl words\\cell\\row\\pard\\par") + "\\par";
        QTest::newRow("a shape in a group") << QByteArray(
            "{\\shpgrp{\\*\\shpinst\\shpleft0\\shptop0\\shpright900\\shpbottom900{\\shp{\\*\\shpinst"
            "{\\sp{\\sn relLeft}{\\sv 0}}{\\shptxt words\\par}}}}}\\par");
        QTest::newRow("a shape in a group of a group") << QByteArray(
            "{\\shpgrp{\\*\\shpinst\\shpleft0\\shptop0\\shpright900\\shpbottom900{\\shpgrp{\\*\\shpinst"
            "{\\sp{\\sn relLeft}{\\sv 0}}{\\shp{\\*\\shpinst{\\sp{\\sn relLeft}{\\sv 0}}{\\shptxt "
            "words\\par}}}}}}}\\par");
        QTest::newRow("an older shape in a cell") << QByteArray(
            "\\trowd\\cellx5000\\intbl cell{\\*\\do\\dobxcolumn\\dobypara\\dptxbx{\\dptxbxtext words\\par}"
            "\\dpx0\\dpy0\\dpxsize900\\dpysize900}\\cell\\row\\pard after\\par");
        QTest::newRow("a shape in a cell of a nested table")
            << "\\trowd\\cellx6000\\pard\\intbl outer\\par\\pard\\intbl\\itap2 in" + Shape({}, "words\\par") +
                   "\\nestcell{\\*\\nesttableprops\\trowd\\cellx1500\\nestrow}{\\nonesttables\\par}"
                   "\\pard\\intbl\\itap1 below\\cell\\row\\pard after\\par";
        QTest::newRow("a shape in a note") << "x{\\footnote note" + Shape({}, "words\\par") + "}\\par";
        QTest::newRow("a note in a shape") << Shape({}, "y{\\footnote words}\\par") + "\\par";
        QTest::newRow("text of a shape on its own") << QByteArray("{\\shptxt words\\par}x\\par");
        QTest::newRow("text of an older shape on its own") << QByteArray("{\\dptxbxtext words\\par}x\\par");
        QTest::newRow("text before its properties")
            << QByteArray("{\\shp{\\*\\shpinst{\\shptxt words}{\\sp{\\sn fLine}{\\sv 0}}}}\\par");
        QTest::newRow("a group of older shapes") << QByteArray(
            "{\\*\\do\\dpgroup\\dpcount2\\dpx0\\dpy0\\dpxsize900\\dpysize900\\dpline\\dpptx0\\dppty0\\dpptx9"
            "\\dppty9\\dpx0\\dpy0\\dpxsize9\\dpysize9\\dptxbx{\\dptxbxtext words\\par}\\dpx0\\dpy0\\dpxsize9"
            "\\dpysize9\\dpendgroup}x\\par");
        QTest::newRow("letters drawn as a picture")
            << Shape(Property("shapeType", "136") + Property("gtextUNICODE", "words"), {}) + "\\par";
        QTest::newRow("a form for older readers alone")
            << QByteArray("{\\shp{\\shprslt{\\*\\do\\dptxbx{\\dptxbxtext words\\par}\\dpx0\\dpy0}}}\\par");
        QTest::newRow("no paragraph after the shape") << "x\\par" + Shape({}, "words");
        QTest::newRow("deeper than boxes are nested")
            << Shape({}, "{\\shptxt a").repeated(1) +
                   QByteArray("{\\shp{\\*\\shpinst{\\shptxt b").repeated(30) + "words" +
                   QByteArray("}}}").repeated(30);
        QTest::newRow("the file ends inside") << QByteArray("x\\par{\\shp{\\*\\shpinst{\\shptxt words");
    }
    void text_is_never_lost()
    {
        QFETCH(QByteArray, body);
        const QString text = ReadBody(body).Text();
        QCOMPARE(text.count(u"words"_s), 1);
        QVERIFY(!text.contains(u"older form"_s));
    }

    void a_frame_is_a_box_of_its_width()
    {
        const Reading read =
            ReadBody("before\\par\\pard\\absw3000\\posx600\\brdrt\\brdrs\\brdrw30\\cbpat4 in\\par frame\\par"
                     "\\pard after\\par");
        QCOMPARE(read.Text(), u"before\nin\nframe\nafter"_s);
        const QTextTable* box = BoxesOf(read).value(0);
        QVERIFY(box != nullptr);
        QCOMPARE(TextOf(box), u"in/frame"_s);
        QCOMPARE(box->format().columnWidthConstraints().first().rawValue(), 200.0);
        QCOMPARE(box->format().leftMargin(), 40.0);
        const QTextTableCellFormat format = box->cellAt(0, 0).format().toTableCellFormat();
        QCOMPARE(format.topBorder(), 2.0);
        QCOMPARE(format.leftBorder(), 0.0);
        QCOMPARE(format.background().color(), QColor(255, 255, 0));
        QCOMPARE(read.result.tables, 0);
    }

    void a_frame_stands_across_the_text_as_told_data()
    {
        QTest::addColumn<QByteArray>("words");
        QTest::addColumn<double>("left");
        for (const char* from : {"", "\\phmrg", "\\phpg", "\\phcol"}) {
            const QByteArray side(from);
            QTest::addRow("in the middle %s", from) << side + "\\posxc\\pvpg\\posyt" << 200.0;
            QTest::addRow("at the right %s", from) << side + "\\posxr\\posyc" << 400.0;
            QTest::addRow("at the outer side %s", from) << "\\posxo" + side << 400.0;
            QTest::addRow("at the left %s", from) << "\\posxl\\posyb" + side << 0.0;
            QTest::addRow("at the inner side %s", from) << side + "\\posxi" << 0.0;
        }
        QTest::newRow("told from the text") << QByteArray("\\phmrg\\posx3000") << 200.0;
        QTest::newRow("told from the page") << QByteArray("\\phpg\\posx3000") << 100.0;
        QTest::newRow("told to the left of the text") << QByteArray("\\posnegx-600") << 0.0;
        QTest::newRow("the last word holds") << QByteArray("\\posxc\\posx1500") << 100.0;
    }
    void a_frame_stands_across_the_text_as_told()
    {
        QFETCH(QByteArray, words);
        QFETCH(double, left);
        const Reading read =
            ReadBody("\\paperw12000\\margl1500\\margr1500\\pard" + words + "\\absw3000 x\\par");
        read.document->setDocumentMargin(0);
        read.document->setTextWidth(600);
        const double place = read.document->documentLayout()->frameBoundingRect(BoxesOf(read).first()).left();
        QVERIFY2(std::abs(place - left) < 1, qPrintable(QString::number(place)));
    }

    void a_frame_without_a_width_is_as_wide_as_its_text_data()
    {
        QTest::addColumn<QByteArray>("place");
        QTest::addColumn<double>("part");
        QTest::newRow("in the middle") << QByteArray("\\posxc") << 0.5;
        QTest::newRow("at the right") << QByteArray("\\posxr") << 1.0;
    }
    void a_frame_without_a_width_is_as_wide_as_its_text()
    {
        QFETCH(QByteArray, place);
        QFETCH(double, part);
        for (const QByteArray& text : {QByteArray("short"), QByteArray("words ").repeated(100)}) {
            const Reading read = ReadBody("\\pard" + place + "\\phpg " + text + "\\par");
            read.document->setDocumentMargin(0);
            read.document->setTextWidth(600);
            const QRectF room = read.document->documentLayout()->frameBoundingRect(BoxesOf(read).first());
            QVERIFY2(text == "short" ? room.width() < 100 : room.width() > 590,
                     qPrintable(QString::number(room.width())));
            QVERIFY(room.right() < 601);
            const double before = (600 - room.width()) * part;
            QVERIFY2(std::abs(room.left() - before) < 1, qPrintable(QString::number(room.left())));
        }
    }

    void the_place_of_a_table_makes_no_boxes_of_its_cells()
    {
        const Reading read =
            ReadBody("\\trowd\\cellx3000\\pard\\intbl\\posx600\\absw2000 cell\\cell\\row\\pard x\\par");
        QCOMPARE(BoxesOf(read).size(), 1);
        QVERIFY(BoxesOf(read).first()->childFrames().isEmpty());
    }

    void a_large_initial_letter_belongs_to_its_word()
    {
        const Reading read = ReadBody("\\pard\\dropcapli3\\dropcapt1\\absw600\\fs90 T\\par\\pard\\fs20 he "
                                      "car\\par\\pard\\dropcapli2 Z\\par");
        QCOMPARE(read.Text(), u"The car\nZ"_s);
        QCOMPARE(read.Format("T").fontPointSize(), 45.0);
    }

    void the_list_around_a_box_goes_on()
    {
        const Reading read = ReadBody("{\\pntext 1.\\tab}" + Shape({}, "{\\pntext 7.\\tab}in\\par") +
                                      "a\\par{\\pntext 2.\\tab}b\\par");
        QCOMPARE(read.Text(), u"\n7.\tin\na\nb"_s);
        const QTextBlock a = read.Block(u"a"_s);
        const QTextBlock b = read.Block(u"b"_s);
        QVERIFY(a.textList() != nullptr);
        QCOMPARE(a.textList(), b.textList());
        QCOMPARE(b.textList()->itemText(b), u"2."_s);
    }

    void lines_and_outlines_are_pictures_of_their_size()
    {
        const Reading read =
            ReadBody(Shape(Property("shapeType", "3") + Property("fillColor", "255"), {}) + "b\\par");
        QCOMPARE(read.document->blockCount(), 2);
        QCOMPARE(OnlyPictureSize(read), QSizeF(201, 101));
        const QImage image = PictureOf(read, 1);
        QCOMPARE(image.pixelColor(image.width() / 2, image.height() / 2), QColor(255, 0, 0));
        QCOMPARE(image.pixelColor(2, 2).alpha(), 0);
        QCOMPARE(read.document->begin().blockFormat().leftMargin(), 292 / 15.0);
    }

    void a_line_of_the_older_generation()
    {
        const Reading read = ReadBody("{\\*\\do\\dobxcolumn\\dobypara\\dpline\\dpptx0\\dppty0\\dpptx1500"
                                      "\\dppty0\\dpx0\\dpy0\\dpxsize1500\\dpysize0\\dplinew30"
                                      "\\dplinecor0\\dplinecog0\\dplinecob255}x\\par");
        QCOMPARE(OnlyPictureSize(read), QSizeF(102, 2));
        QCOMPARE(PictureOf(read, 1).pixelColor(100, 2), QColor(0, 0, 255));
    }

    void outlines_of_the_older_generation_data()
    {
        QTest::addColumn<QByteArray>("outline");
        QTest::addColumn<bool>("fillsItsCorners");
        QTest::newRow("a rectangle") << QByteArray("\\dprect") << true;
        QTest::newRow("an ellipse") << QByteArray("\\dpellipse") << false;
    }
    void outlines_of_the_older_generation()
    {
        QFETCH(QByteArray, outline);
        QFETCH(bool, fillsItsCorners);
        const Reading read =
            ReadBody("{\\*\\do\\dobxcolumn\\dobypara" + outline +
                     "\\dpx0\\dpy0\\dpxsize1500\\dpysize750\\dpfillbgcr255\\dpfillbgcg0\\dpfillbgcb0"
                     "\\dpfillpat1\\dplinew15\\dplinecor0\\dplinecog0\\dplinecob255}x\\par");
        QCOMPARE(OnlyPictureSize(read), QSizeF(101, 51));
        const QImage image = PictureOf(read, 1);
        const int middle = image.width() / 2;
        QCOMPARE(image.pixelColor(middle, image.height() / 2), QColor(255, 0, 0));
        QCOMPARE(image.pixelColor(middle, 0).blue(), 255);
        QCOMPARE(image.pixelColor(4, 4).alpha() == 255, fillsItsCorners);
    }

    void a_dashed_outline_has_gaps_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("hasGaps");
        const auto newer = [](const QByteArray& dashing) -> QByteArray {
            return Shape(Property("shapeType", "1") + Property("fFilled", "0") +
                             Property("lineDashing", dashing),
                         {}) +
                   "x\\par";
        };
        const auto older = [](const QByteArray& word) -> QByteArray {
            return "{\\*\\do\\dprect\\dpx0\\dpy0\\dpxsize3000\\dpysize1500\\dpfillpat0\\dplinew15" + word +
                   "}x\\par";
        };
        QTest::newRow("solid") << newer("0") << false;
        QTest::newRow("dashes") << newer("1") << true;
        QTest::newRow("dots") << newer("2") << true;
        QTest::newRow("solid, older") << older("\\dplinesolid") << false;
        QTest::newRow("dashes, older") << older("\\dplinedash") << true;
        QTest::newRow("dots, older") << older("\\dplinedot") << true;
    }
    void a_dashed_outline_has_gaps()
    {
        QFETCH(QByteArray, body);
        QFETCH(bool, hasGaps);
        const Reading read = ReadBody(body);
        QCOMPARE(OnlyPictureSize(read), QSizeF(201, 101));
        const int gaps = GapsOnTop(PictureOf(read, 1));
        QVERIFY2(hasGaps ? gaps > 10 : gaps == 0, qPrintable(QString::number(gaps)));
    }

    void a_member_of_a_group_is_measured_by_the_group()
    {
        const auto group = [](const QByteArray& right, const QByteArray& bottom) -> QByteArray {
            return "{\\shpgrp{\\*\\shpinst\\shpleft300\\shptop0\\shpright3300\\shpbottom1500" +
                   Property("groupLeft", "0") + Property("groupTop", "0") + Property("groupRight", right) +
                   Property("groupBottom", bottom) + "{\\shp{\\*\\shpinst" + Property("relLeft", "250") +
                   Property("relTop", "0") + Property("relRight", "750") + Property("relBottom", "250") +
                   Property("shapeType", "1") + "}}}}x\\par";
        };
        const Reading read = ReadBody(group("1000", "1000"));
        QCOMPARE(OnlyPictureSize(read), QSizeF(101, 26));
        // A quarter of the group's width from its left edge, less half of the line.
        const double left = read.document->begin().blockFormat().leftMargin();
        QVERIFY2(std::abs(left - 69.5) < 0.1, qPrintable(QString::number(left)));
        QCOMPARE(OnlyPictureSize(ReadBody(group("2000", "500"))), QSizeF(51, 51));
    }

    void a_line_of_the_newer_generation_goes_from_corner_to_corner()
    {
        const Reading read = ReadBody(
            Shape(Property("shapeType", "20") + Property("lineColor", "255") + Property("lineWidth", "28575"),
                  {}) +
            "b\\par");
        QCOMPARE(OnlyPictureSize(read), QSizeF(203, 103));
        const QImage image = PictureOf(read, 1);
        QCOMPARE(image.pixelColor(image.width() / 2, image.height() / 2), QColor(255, 0, 0));
        QCOMPARE(image.pixelColor(image.width() - 4, 4).alpha(), 0);
        QCOMPARE(image.pixelColor(4, image.height() - 4).alpha(), 0);
    }

    void shapes_of_one_paragraph_that_lie_together_are_one_picture()
    {
        const QByteArray two = Shape(Property("shapeType", "1"), {}) +
                               "{\\shp{\\*\\shpinst\\shpleft300\\shptop1500\\shpright3300\\shpbottom3000" +
                               Property("shapeType", "1") + "}}";
        const Reading read = ReadBody(two + "x\\par");
        QCOMPARE(OnlyPictureSize(read), QSizeF(201, 201));
        QCOMPARE(read.document->blockCount(), 2);
    }

    void what_lies_behind_the_text_is_left_out()
    {
        const Reading read =
            ReadBody(Shape("\\shpfblwtxt1" + Property("shapeType", "1") + Property("fillColor", "255"), {}) +
                     "x\\par");
        QVERIFY(OnlyPictureSize(read).isEmpty());
    }

    void hostile_shapes_end_well_data()
    {
        QTest::addColumn<QByteArray>("piece");
        QTest::newRow("shapes") << QByteArray("{\\shp{\\*\\shpinst{\\shptxt a");
        QTest::newRow("groups") << QByteArray("{\\shpgrp{\\*\\shpinst");
        QTest::newRow("drawings") << QByteArray("{\\*\\do\\dptxbx{\\dptxbxtext ");
        QTest::newRow("one text") << QByteArray("{\\shptxt\\shptxt\\dptxbxtext");
        QTest::newRow("words without a shape") << QByteArray("\\dpx1\\dpline\\dpptx1\\shpleft5");
        QTest::newRow("words in a drawing") << QByteArray("{\\*\\do\\dpline\\dpptx1\\dppty2147483647");
        QTest::newRow("sizes beyond all bounds")
            << QByteArray("{\\shp{\\*\\shpinst\\shpleft-2147483647\\shpright2147483647{\\sp{\\sn relRight}"
                          "{\\sv -9223372036854775807}}{\\sp{\\sn lineWidth}{\\sv 999999999999}}}}\\par");
    }
    void hostile_shapes_end_well()
    {
        QFETCH(QByteArray, piece);
        const Reading read = ReadBody("x\\par" + piece.repeated(3000));
        QVERIFY(read.Text().contains(u"x"_s));
        read.document->setTextWidth(500);
    }
};

TORVIK_TEST(ShapesTest)
#include "shapes_test.moc"
