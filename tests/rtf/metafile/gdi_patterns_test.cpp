#include "rtf/metafile/metafile_maker.h"
#include "support/test_class.h"

using namespace torvik::rtf;

// Brushes that repeat a bitmap, which all four records describe in ways of their own.
class GdiPatternsTest : public QObject {
    Q_OBJECT

    /// Two by two pixels: in the upper line the second colour is the right one, in the lower line the left
    /// one.
    static QByteArray Checks(const QByteArray& palette)
    {
        return Dib(2, 2, 1, palette, QByteArray::fromHex("8000000040000000"));
    }
    static QByteArray CyanAndYellow() { return Checks(QByteArray::fromHex("ffff000000ffff00")); }
    /// The text is green and the background is blue.
    static QByteArray WmfColors()
    {
        return WmfRecord(0x0209, Bytes().U32(inGreen).Data()) + WmfRecord(0x0201, Bytes().U32(inBlue).Data());
    }
    static QByteArray EmfColors() { return EmfLongs(24, {inGreen}) + EmfLongs(25, {inBlue}); }

    static QImage FilledByWmf(const QByteArray& brush)
    {
        return DrawnWmf(WmfColors() + WmfPen(5, 0, 0) + brush + WmfSelect(0) + WmfSelect(1) +
                        WmfRectangle(10, 20, 50, 40));
    }
    static QImage FilledByEmf(quint32 type, const QByteArray& bitmap)
    {
        const qint64 header = bitmap.size() - 8;
        const QByteArray brush =
            EmfRecord(type, Bytes().Longs({1, 0, 32, header, 32 + header, 8}).Raw(bitmap).Data());
        return DrawnEmf(EmfColors() + EmfSelect(stockNullPen) + brush + EmfSelect(1) +
                        EmfRectangle(10, 20, 50, 40));
    }
    static QByteArray WmfDibBrush(int kind, const QByteArray& bitmap)
    {
        return WmfRecord(0x0142, Bytes().Words({kind, 0}).Raw(bitmap).Data());
    }
    /// The bitmap of a device: its lines come from the top, and its pixels behind a pointer and 18 bytes.
    static QByteArray WmfOldBrush(int bits, const QByteArray& pixels)
    {
        return WmfRecord(0x01f9, Bytes()
                                     .Words({0, 2, 2, bits == 1 ? 2 : 6})
                                     .U8(1)
                                     .U8(bits)
                                     .Raw(QByteArray(22, '\x7f'))
                                     .Raw(pixels)
                                     .Data());
    }
    /// Both colours lie like the fields of a chessboard, all over and nowhere else.
    static void CompareChecks(const QImage& image, const QColor& first, const QColor& second)
    {
        QCOMPARE(InkOf(image), QRect(10, 20, 40, 20));
        QCOMPARE(NotPainted(image, {{10, 20}, {12, 20}, {11, 21}, {48, 38}, {49, 39}}, first), QString());
        QCOMPARE(NotPainted(image, {{11, 20}, {10, 21}, {12, 21}, {48, 39}, {49, 38}}, second), QString());
    }

private Q_SLOTS:
    void a_bitmap_of_its_own_colours_is_repeated_in_them()
    {
        CompareChecks(FilledByWmf(WmfDibBrush(5, CyanAndYellow())), Qt::cyan, Qt::yellow);
        CompareChecks(FilledByEmf(94, CyanAndYellow()), Qt::cyan, Qt::yellow);
    }

    void a_bitmap_of_two_colours_takes_those_of_text_and_background()
    {
        CompareChecks(FilledByWmf(WmfDibBrush(3, CyanAndYellow())), Qt::green, Qt::blue);
        CompareChecks(FilledByEmf(93, CyanAndYellow()), Qt::green, Qt::blue);
        CompareChecks(FilledByWmf(WmfOldBrush(1, QByteArray::fromHex("40008000"))), Qt::green, Qt::blue);
    }

    void a_bitmap_of_a_device_may_have_colours()
    {
        const QByteArray pixels = QByteArray::fromHex("ffff0000ffff"
                                                      "00ffffffff00");
        CompareChecks(FilledByWmf(WmfOldBrush(24, pixels)), Qt::cyan, Qt::yellow);
    }

    void a_pattern_of_many_colours_keeps_them_whatever_it_says()
    {
        const QImage image = FilledByWmf(WmfDibBrush(3, FourColors()));
        QCOMPARE(CornersOf(image, {10, 20, 2, 2}), fourCorners);
        QCOMPARE(CornersOf(image, {48, 38, 2, 2}), fourCorners);
    }

    void patterns_without_end_leave_out_the_rest()
    {
        // A few bytes that are many pixels each time. What was drawn before stays.
        const QByteArray large = Dib(500, 500, 8, {}, QByteArray(4, '\0'), 1);
        const QImage older = DrawnWmf(WmfFilled(inRed) + WmfRectangle(10, 10, 20, 20) +
                                      WmfDibBrush(5, large).repeated(5000) + WmfRectangle(60, 60, 80, 80));
        const QByteArray brush = EmfRecord(
            94, Bytes().Longs({2, 0, 32, large.size() - 4, 32 + large.size() - 4, 4}).Raw(large).Data());
        const QImage newer = DrawnEmf(EmfFilled(inRed) + EmfRectangle(10, 10, 20, 20) + brush.repeated(5000) +
                                      EmfRectangle(60, 60, 80, 80));
        // Nor may it be painted with for ever.
        const QByteArray used = EmfFilled(inRed) + EmfRectangle(10, 10, 20, 20) + brush + EmfSelect(2) +
                                EmfRectangle(30, 30, 31, 31).repeated(5000) + EmfRectangle(60, 60, 80, 80);
        for (const QImage& image : {older, newer, DrawnEmf(used)}) {
            QCOMPARE(NotPainted(image, {{15, 15}}, Qt::red), QString());
            QCOMPARE(NotBare(image, {{70, 70}}), QString());
        }
    }

    void without_its_bitmap_a_pattern_is_gray()
    {
        for (const QByteArray& brush : {WmfDibBrush(3, {}), WmfDibBrush(5, CyanAndYellow().chopped(2)),
                                        WmfOldBrush(4, QByteArray(8, 'x')), WmfOldBrush(1, {}),
                                        WmfDibBrush(5, Dib(30000, 30000, 8, {}, QByteArray(4, '\0'), 1))})
            QCOMPARE(ExtentOf(FilledByWmf(brush), Qt::gray), QRect(10, 20, 40, 20));
        for (const quint32 type : {93U, 94U})
            QCOMPARE(ExtentOf(FilledByEmf(type, QByteArray(60, 'x')), Qt::gray), QRect(10, 20, 40, 20));
    }
};

TORVIK_TEST(GdiPatternsTest)
#include "gdi_patterns_test.moc"
