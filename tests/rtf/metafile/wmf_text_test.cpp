#include "rtf/metafile/drawing_rows.h"
#include "rtf/metafile/metafile_maker.h"
#include "support/test_class.h"

using namespace torvik::rtf;

class WmfTextTest : public QObject {
    Q_OBJECT

    static constexpr int opaque = 2;
    static constexpr int clipped = 4;

    static QByteArray Even(const QByteArray& text) { return text.size() % 2 == 0 ? text : text + '\0'; }
    static QByteArray Text(int x, int y, const QByteArray& text)
    {
        return WmfRecord(0x0521,
                         Bytes().U16(static_cast<int>(text.size())).Raw(Even(text)).Words({y, x}).Data());
    }
    /// Text with options; the box is written only with them.
    static QByteArray TextWith(int options, const QRect& box, int x, int y, const QByteArray& text,
                               std::initializer_list<int> widths = {})
    {
        Bytes bytes;
        bytes.Words({y, x, static_cast<int>(text.size()), options});
        if ((options & (opaque | clipped)) != 0)
            bytes.Words({box.left(), box.top(), box.left() + box.width(), box.top() + box.height()});
        return WmfRecord(0x0a32, bytes.Raw(Even(text)).Words(widths).Data());
    }
    static QByteArray Align(int how) { return WmfWords(0x012e, {how}); }
    /// Red letters on nothing, in a font.
    static QByteArray Red(const FontLook& look = {})
    {
        return WmfWords(0x0102, {1}) + WmfRecord(0x0209, Bytes().U32(inRed).Data()) + WmfFont(look) +
               WmfSelect(0);
    }
    static QRect Ink(const QByteArray& records, const FontLook& look = {})
    {
        return InkOf(DrawnWmf(Red(look) + records));
    }

private Q_SLOTS:
    void text_has_its_colour_and_place()
    {
        const QImage image = DrawnWmf(Red() + Text(20, 30, "I"));
        // The place is the upper left of the line, which is a little taller than its letters.
        const QRect ink = InkOf(image);
        QVERIFY2(ink.left() >= 20 && ink.left() < 28, qPrintable(QString::number(ink.left())));
        QVERIFY2(ink.top() > 32 && ink.top() < 45, qPrintable(QString::number(ink.top())));
        QVERIFY2(ink.height() > 25 && ink.height() < 33, qPrintable(QString::number(ink.height())));
        QVERIFY(!ExtentOf(image, Qt::red).isEmpty());
    }

    void an_odd_number_of_letters_is_filled_up()
    {
        QCOMPARE(Ink(Text(20, 30, "III")).topLeft(), Ink(Text(20, 30, "I")).topLeft());
        QVERIFY(Ink(Text(20, 30, "III")).width() > 2 * Ink(Text(20, 30, "I")).width());
    }

    void text_stands_beside_its_place_as_it_is_aligned()
    {
        const QRect left = Ink(Align(0) + Text(50, 50, "HH"));
        const QRect right = Ink(Align(2) + Text(50, 50, "HH"));
        const QRect middle = Ink(Align(6) + Text(50, 50, "HH"));
        QVERIFY(left.left() >= 50 && right.right() <= 50);
        QVERIFY(qAbs(middle.center().x() - 50) <= 1);
        QCOMPARE(right.size(), left.size());
        // Letters without a tail stand on the base line, and above the lower edge.
        QCOMPARE(Ink(Align(24) + Text(10, 50, "H")).bottom(), 49);
        const int tail = 49 - Ink(Align(8) + Text(10, 50, "H")).bottom();
        QVERIFY2(tail > 4 && tail < 12, qPrintable(QString::number(tail)));
        QVERIFY(Ink(Align(0) + Text(10, 50, "H")).top() > 50);
    }

    void the_position_moves_with_text_that_says_so()
    {
        const QByteArray start = Align(1) + WmfWords(0x0214, {30, 10});
        // Where the record itself places the text does not count then.
        QCOMPARE(Ink(start + Text(70, 70, "H")), Ink(Text(10, 30, "H")));
        const QRect both = Ink(start + Text(70, 70, "I") + Text(70, 70, "I"));
        QVERIFY(both.width() > 2 * Ink(Text(10, 30, "I")).width());
        QCOMPARE(both.height(), Ink(Text(10, 30, "I")).height());
    }

    void a_positive_height_is_that_of_the_line()
    {
        FontLook line;
        line.height = 40;
        QVERIFY(Ink(Text(10, 10, "H"), line).height() < Ink(Text(10, 10, "H")).height());
        FontLook small;
        small.height = -20;
        const int large = Ink(Text(10, 10, "H")).height();
        QVERIFY(qAbs(Ink(Text(10, 10, "H"), small).height() - large / 2) <= 1);
    }

    void text_is_turned_against_the_clock()
    {
        FontLook upright;
        upright.height = -20;
        upright.escapement = 900;
        const QRect ink = Ink(Align(24) + Text(50, 80, "HHHH"), upright);
        QVERIFY2(ink.bottom() <= 80 && ink.height() > 2 * ink.width(),
                 qPrintable(QString::number(ink.height())));
        QVERIFY(ink.right() <= 50);
    }

    void fonts_are_bold_slanted_and_have_lines()
    {
        FontLook bold;
        bold.weight = 700;
        const QImage plain = DrawnWmf(Red() + Text(10, 10, "HI"));
        const auto painted = [](const QImage& image) {
            int count = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x)
                    count += image.pixelColor(x, y) == QColor(Qt::red) ? 1 : 0;
            }
            return count;
        };
        QVERIFY(painted(DrawnWmf(Red(bold) + Text(10, 10, "HI"))) > painted(plain) * 5 / 4);
        FontLook slanted;
        slanted.italic = true;
        QVERIFY(DrawnWmf(Red(slanted) + Text(10, 10, "HI")) != plain);
        FontLook underlined;
        underlined.underline = true;
        const QByteArray onLine = Align(24) + Text(10, 60, "HI");
        QVERIFY(Ink(onLine, underlined).bottom() > Ink(onLine).bottom());
        FontLook struck;
        struck.strike = true;
        const QImage line = DrawnWmf(Red(struck) + Align(24) + Text(10, 60, "I I"));
        const QRect ink = InkOf(line);
        int longest = 0;
        for (int y = ink.top(); y <= ink.bottom(); ++y)
            longest = qMax(longest, ExtentOf(line.copy(0, y, 100, 1), Qt::red).width());
        QVERIFY(longest >= ink.width() - 2);
        QCOMPARE(NotBare(line, {{30, 62}}), QString());
    }

    void letters_follow_the_character_set_of_the_font_data()
    {
        AddLetterColumns();
        QTest::newRow("western") << 0 << QByteArray("Arial") << QByteArray("\xc4") << ushort(0x00c4);
        QTest::newRow("unknown, which is western")
            << 99 << QByteArray("Arial") << QByteArray("\x80") << ushort(0x20ac);
        QTest::newRow("Cyrillic") << 204 << QByteArray("Arial") << QByteArray("\xc6") << ushort(0x0416);
        QTest::newRow("Greek") << 161 << QByteArray("Arial") << QByteArray("\xd8") << ushort(0x03a8);
        QTest::newRow("symbols of an older drawing, which does not say so")
            << 0 << QByteArray("Symbol") << QByteArray("W") << ushort(0x03a9);
        QTest::newRow("ornaments") << 0 << QByteArray("Wingdings") << QByteArray("n") << ushort(0x25a0);
        QTest::newRow("symbols") << 2 << QByteArray("Symbol") << QByteArray("W") << ushort(0x03a9);
        QTest::newRow("symbols beyond the letters")
            << 2 << QByteArray("Symbol") << QByteArray("\xa5") << ushort(0x221e);
    }
    void letters_follow_the_character_set_of_the_font()
    {
        const auto [charset, face, bytes, letter] = PresentLetter();
        FontLook look;
        look.charset = charset;
        look.face = face;
        const QImage written = DrawnWmf(Red(look) + Text(10, 10, bytes));
        // An enhanced metafile names the same letter by its own number.
        look.charset = 0;
        if (face != "Arial")
            look.face.clear();
        Bytes wide;
        wide.Longs({0, 0, 0, 0, 1, 0, 0, 10, 10, 1, 76, 0, 0, 0, 0, 0, 0}).Words({letter, 0});
        const QImage same = DrawnEmf(EmfLongs(18, {1}) + EmfLongs(24, {inRed}) + EmfFont(1, look) +
                                     EmfSelect(1) + EmfRecord(84, wide.Data()));
        QVERIFY(!InkOf(same).isEmpty());
        QCOMPARE(written, same);
        QVERIFY(written != DrawnWmf(Red() + Text(10, 10, "?")));
    }

    void letters_stand_as_far_apart_as_told()
    {
        const QRect single = Ink(TextWith(0, {}, 10, 10, "I"));
        QCOMPARE(Ink(Text(10, 10, "I")), single);
        QCOMPARE(Ink(TextWith(0, {}, 10, 10, "II", {50, 10})), single | single.translated(50, 0));
        // Aligned to the right, all of it ends at the place.
        QCOMPARE(Ink(Align(2) + TextWith(0, {}, 70, 10, "II", {50, 10})), single | single.translated(50, 0));
        // Too few widths are none.
        QCOMPARE(Ink(TextWith(0, {}, 10, 10, "III", {50, 10})), Ink(Text(10, 10, "III")));
    }

    void widths_of_bytes_are_not_taken_for_those_of_pairs()
    {
        FontLook japanese;
        japanese.charset = 128;
        const QByteArray pairs = "\x81\xa1\x81\xa1"; // two black squares
        QCOMPARE(Ink(TextWith(0, {}, 10, 10, pairs, {0, 0, 0, 0}), japanese),
                 Ink(Text(10, 10, pairs), japanese));
        QVERIFY(!Ink(Text(10, 10, pairs), japanese).isEmpty());
    }

    void the_background_of_text_is_filled_where_it_is_opaque()
    {
        const QByteArray green = WmfRecord(0x0201, Bytes().U32(inGreen).Data()) + WmfWords(0x0102, {2});
        const QImage image = DrawnWmf(Red() + green + TextWith(0, {}, 10, 20, "I", {60}));
        QCOMPARE(ExtentOf(image, Qt::green).left(), 10);
        QCOMPARE(ExtentOf(image, Qt::green).width(), 60);
        QCOMPARE(ExtentOf(image, Qt::green).top(), 20);
        QVERIFY(ExtentOf(image, Qt::green).height() >= 40);
        QVERIFY(!ExtentOf(image, Qt::red).isEmpty());
    }

    void a_box_is_filled_or_cuts_the_text()
    {
        const QByteArray green = WmfRecord(0x0201, Bytes().U32(inGreen).Data());
        const QRect box(5, 30, 60, 20);
        const QImage filled = DrawnWmf(Red() + green + TextWith(opaque, box, 10, 10, "HHHH"));
        QCOMPARE(ExtentOf(filled, Qt::green), box);
        QVERIFY(InkOf(filled).right() > 80);
        const QImage alone = DrawnWmf(Red() + green + TextWith(opaque, box, 10, 10, ""));
        QCOMPARE(InkOf(alone), box);
        const QByteArray after = Text(70, 0, "H");
        const QImage cut = DrawnWmf(Red() + TextWith(clipped, box, 10, 10, "HHHH"));
        QCOMPARE(InkOf(cut) & box, InkOf(cut));
        QCOMPARE(InkOf(cut).right(), box.right());
        // What follows is not cut.
        QCOMPARE(Ink(TextWith(clipped, box, 10, 10, "HHHH") + after).right(), Ink(after).right());
        QCOMPARE(Ink(TextWith(clipped, box, 10, 10, "HHHH") + after).top(), Ink(after).top());
        QCOMPARE(
            ExtentOf(DrawnWmf(Red() + green + TextWith(opaque | clipped, box, 10, 10, "HHHH")), Qt::green),
            box);
    }

    void text_that_ends_early_leaves_the_rest_alone()
    {
        const QByteArray square = WmfPen(5, 0, 0) + WmfSelect(1) + WmfRectangle(90, 90, 100, 100);
        for (const QByteArray& record :
             {WmfWords(0x0521, {9999, 0x4848}), WmfWords(0x0521, {-1}), WmfWords(0x0521, {}),
              WmfWords(0x0a32, {10, 10, 9999, 0, 0x4848}), WmfWords(0x0a32, {10, 10, 2, opaque | clipped}),
              WmfWords(0x0a32, {10, 10, -1, -1, 0, 0, 5, 5, 0x4848}), WmfWords(0x0a32, {})}) {
            const QImage image = DrawnWmf(Red() + record + square);
            QCOMPARE(image.pixelColor(95, 95), QColor(Qt::white));
        }
    }
};

TORVIK_TEST(WmfTextTest)
#include "wmf_text_test.moc"
