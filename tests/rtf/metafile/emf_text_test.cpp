#include "rtf/metafile/drawing_rows.h"
#include "rtf/metafile/metafile_maker.h"
#include "support/test_class.h"

using namespace torvik::rtf;

class EmfTextTest : public QObject {
    Q_OBJECT

    static constexpr int opaque = 2;
    static constexpr int clipped = 4;
    static constexpr int stepsDown = 0x2000;
    static constexpr quint32 narrow = 83;
    static constexpr quint32 wide = 84;

    struct Text {
        int x = 10;
        int y = 10;
        QByteArray letters = {};
        int options = 0;
        QRect box = {};
        QList<qint64> widths = {};
    };
    static QByteArray Wide(const QByteArray& letters)
    {
        Bytes bytes;
        for (const char letter : letters)
            bytes.U16(static_cast<uchar>(letter));
        return bytes.Data();
    }
    /// The parts that do not change stand in front: bounds, mode, and the scale, which is for another mode.
    static QByteArray Record(quint32 type, const Text& text)
    {
        constexpr qint64 textAt = 76;
        QByteArray letters = type == wide ? Wide(text.letters) : text.letters;
        letters.append(QByteArray((4 - letters.size() % 4) % 4, '\0'));
        Bytes bytes;
        bytes.Longs({0, 0, 0, 0, 1, 0, 0, text.x, text.y, text.letters.size(), textAt, text.options,
                     text.box.left(), text.box.top(), text.box.left() + text.box.width(),
                     text.box.top() + text.box.height(),
                     text.widths.isEmpty() ? 0 : textAt + letters.size()});
        bytes.Raw(letters);
        for (const qint64 width : text.widths)
            bytes.U32(width);
        return EmfRecord(type, bytes.Data());
    }
    static QByteArray Align(int how) { return EmfLongs(22, {how}); }
    /// Red letters on nothing, in a font.
    static QByteArray Red(const FontLook& look = {})
    {
        return EmfLongs(18, {1}) + EmfLongs(24, {inRed}) + EmfFont(1, look) + EmfSelect(1);
    }
    static QRect Ink(const QByteArray& records, const FontLook& look = {})
    {
        return InkOf(DrawnEmf(Red(look) + records));
    }
    static void BothForms()
    {
        QTest::addColumn<quint32>("type");
        QTest::newRow("letters of a byte") << narrow;
        QTest::newRow("letters of two bytes") << wide;
    }

private Q_SLOTS:
    void text_has_its_colour_and_place_data() { BothForms(); }
    void text_has_its_colour_and_place()
    {
        QFETCH(const quint32, type);
        const QImage image = DrawnEmf(Red() + Record(type, {.x = 20, .y = 30, .letters = "I"}));
        const QRect ink = InkOf(image);
        QVERIFY2(ink.left() >= 20 && ink.left() < 28, qPrintable(QString::number(ink.left())));
        QVERIFY2(ink.top() > 32 && ink.top() < 45, qPrintable(QString::number(ink.top())));
        QVERIFY2(ink.height() > 25 && ink.height() < 33, qPrintable(QString::number(ink.height())));
        QVERIFY(!ExtentOf(image, Qt::red).isEmpty());
    }

    void text_stands_beside_its_place_as_it_is_aligned_data() { BothForms(); }
    void text_stands_beside_its_place_as_it_is_aligned()
    {
        QFETCH(const quint32, type);
        const QByteArray text = Record(type, {.x = 50, .y = 50, .letters = "HH"});
        QVERIFY(Ink(Align(0) + text).left() >= 50);
        QVERIFY(Ink(Align(2) + text).right() <= 50);
        QVERIFY(qAbs(Ink(Align(6) + text).center().x() - 50) <= 1);
        QCOMPARE(Ink(Align(24) + text).bottom(), 49);
        // With the position it stands where the pen was moved.
        QCOMPARE(Ink(EmfLongs(27, {20, 30}) + Align(1) + text),
                 Ink(Record(type, {.x = 20, .y = 30, .letters = "HH"})));
    }

    void letters_stand_as_far_apart_as_told_data() { BothForms(); }
    void letters_stand_as_far_apart_as_told()
    {
        QFETCH(const quint32, type);
        const QRect single = Ink(Record(type, {.letters = "I"}));
        QCOMPARE(Ink(Record(type, {.letters = "II", .widths = {50, 10}})), single | single.translated(50, 0));
        // Here every width is followed by a step down: the letters stand at 0, 20 and 60.
        const QImage three = DrawnEmf(
            Red() + Record(type, {.letters = "III", .options = stepsDown, .widths = {20, 0, 40, 0, 10, 0}}));
        QCOMPARE(InkOf(three), single | single.translated(60, 0));
        QVERIFY(!InkOf(three.copy(30, 0, 10, 100)).isEmpty());
        QVERIFY(InkOf(three.copy(45, 0, 20, 100)).isEmpty());
        QCOMPARE(Ink(Record(type, {.letters = "III", .widths = {50, 10}})),
                 Ink(Record(type, {.letters = "III"})));
    }

    void a_box_is_filled_or_cuts_the_text_data() { BothForms(); }
    void a_box_is_filled_or_cuts_the_text()
    {
        QFETCH(const quint32, type);
        const QByteArray green = EmfLongs(25, {inGreen});
        const QRect box(5, 30, 60, 20);
        const QImage filled =
            DrawnEmf(Red() + green + Record(type, {.letters = "HHHH", .options = opaque, .box = box}));
        QCOMPARE(ExtentOf(filled, Qt::green), box);
        QVERIFY(InkOf(filled).right() > 80);
        const QImage alone = DrawnEmf(Red() + green + Record(type, {.options = opaque, .box = box}));
        QCOMPARE(InkOf(alone), box);
        const QByteArray cut = Record(type, {.letters = "HHHH", .options = clipped, .box = box});
        QCOMPARE(Ink(cut) & box, Ink(cut));
        QCOMPARE(Ink(cut).right(), box.right());
        const QByteArray after = Record(type, {.x = 70, .y = 0, .letters = "H"});
        QCOMPARE(Ink(cut + after).topRight(), Ink(after).topRight());
    }

    void the_clip_that_holds_cuts_the_box_too()
    {
        const QByteArray cut = Record(wide, {.letters = "HHHH", .options = clipped, .box = {5, 30, 60, 20}});
        const QByteArray clip = EmfLongs(30, {0, 0, 40, 40});
        QCOMPARE(Ink(clip + cut).bottom(), 39);
        QVERIFY(Ink(clip + cut).right() < 40 && Ink(cut).right() > 40);
        QCOMPARE(Ink(clip + cut + EmfSelect(stockNullPen) + EmfRectangle(0, 0, 100, 100)),
                 QRect(0, 0, 40, 40));
    }

    void bytes_follow_the_character_set_of_the_font_data()
    {
        AddLetterColumns();
        QTest::newRow("western") << 0 << QByteArray("Arial") << QByteArray("\xc4") << ushort(0x00c4);
        QTest::newRow("Cyrillic") << 204 << QByteArray("Arial") << QByteArray("\xc6") << ushort(0x0416);
        QTest::newRow("symbols") << 2 << QByteArray("Symbol") << QByteArray("\xae") << ushort(0x2192);
        QTest::newRow("symbols where western has a dash")
            << 2 << QByteArray("Wingdings") << QByteArray("\x9f") << ushort(0x2022);
    }
    void bytes_follow_the_character_set_of_the_font()
    {
        const auto [charset, face, bytes, letter] = PresentLetter();
        FontLook look;
        look.charset = charset;
        look.face = face;
        const QImage written = DrawnEmf(Red(look) + Record(narrow, {.letters = bytes}));
        FontLook other;
        other.face = face == "Arial" ? face : QByteArray();
        QByteArray record = Record(wide, {.letters = "?"});
        record.replace(76, 2, Bytes().U16(letter).Data());
        const QImage same = DrawnEmf(Red(other) + record);
        QVERIFY(!InkOf(same).isEmpty());
        QCOMPARE(written, same);
        // Letters of two bytes name the place in the table, or the place in the range kept for it.
        if (charset == 2) {
            for (const int place : {0, 0xf000}) {
                record.replace(76, 2, Bytes().U16(place + static_cast<uchar>(bytes.at(0))).Data());
                QCOMPARE(DrawnEmf(Red(look) + record), same);
            }
        }
    }

    void widths_of_bytes_are_not_taken_for_those_of_pairs()
    {
        FontLook japanese;
        japanese.charset = 128;
        const QByteArray pairs = "\x81\xa1\x81\xa1";
        QCOMPARE(Ink(Record(narrow, {.letters = pairs, .widths = {0, 0, 0, 0}}), japanese),
                 Ink(Record(narrow, {.letters = pairs}), japanese));
    }

    void fonts_have_their_weight_slant_lines_and_turn()
    {
        const QByteArray text = Align(24) + Record(wide, {.x = 10, .y = 60, .letters = "HI"});
        const QImage plain = DrawnEmf(Red() + text);
        FontLook look;
        look.weight = 700;
        QVERIFY(ExtentOf(DrawnEmf(Red(look) + text), Qt::red) != ExtentOf(plain, Qt::red));
        look = {};
        look.italic = true;
        QVERIFY(DrawnEmf(Red(look) + text) != plain);
        look = {};
        look.underline = true;
        QVERIFY(InkOf(DrawnEmf(Red(look) + text)).bottom() > InkOf(plain).bottom());
        look = {};
        look.strike = true;
        const QImage struck = DrawnEmf(Red(look) + text);
        QVERIFY(struck != plain);
        QCOMPARE(InkOf(struck).bottom(), InkOf(plain).bottom());
        look = {};
        look.height = -20;
        look.escapement = 2700;
        const QRect down =
            InkOf(DrawnEmf(Red(look) + Align(24) + Record(wide, {.x = 50, .y = 20, .letters = "HHHH"})));
        QVERIFY(down.top() >= 20 && down.left() >= 49 && down.height() > 2 * down.width());
    }

    void the_font_that_need_not_be_made_is_small()
    {
        const QByteArray text = Record(wide, {.letters = "H"});
        const QRect small = Ink(EmfSelect(stockObject + 13) + text);
        QVERIFY(!small.isEmpty() && small.height() < Ink(text).height() / 2);
    }

    void lying_texts_leave_the_rest_alone_data()
    {
        QTest::addColumn<int>("at");
        QTest::addColumn<qint64>("value");
        QTest::newRow("more letters than bytes") << 44 << 0x7fffffffLL;
        QTest::newRow("letters beyond the end") << 48 << 5000LL;
        QTest::newRow("letters at the end of all numbers") << 48 << 0xffffffffLL;
        QTest::newRow("widths beyond the end") << 72 << 5000LL;
        QTest::newRow("widths at the end of all numbers") << 72 << 0xffffffffLL;
        QTest::newRow("all options") << 52 << 0xffffffffLL;
        QTest::newRow("no letters") << 44 << 0LL;
    }
    void lying_texts_leave_the_rest_alone()
    {
        QFETCH(const int, at);
        QFETCH(const qint64, value);
        for (const quint32 type : {narrow, wide}) {
            QByteArray record = Record(type, {.letters = "HH", .widths = {20, 20}});
            record.replace(at, 4, Bytes().U32(value).Data());
            const QImage image =
                DrawnEmf(Red() + record + EmfSelect(stockNullPen) + EmfRectangle(90, 90, 100, 100));
            QCOMPARE(image.pixelColor(95, 95), QColor(Qt::white));
            for (qsizetype length = 8; length < record.size(); length += 4) {
                const QByteArray cut = EmfRecord(type, record.mid(8, length - 8));
                QCOMPARE(DrawnEmf(Red() + cut + EmfSelect(stockNullPen) + EmfRectangle(90, 90, 100, 100))
                             .pixelColor(95, 95),
                         QColor(Qt::white));
            }
        }
    }
};

TORVIK_TEST(EmfTextTest)
#include "emf_text_test.moc"
