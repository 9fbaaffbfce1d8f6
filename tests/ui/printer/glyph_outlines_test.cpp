#include "support/test_class.h"
#include "ui/printer/glyph_outlines.h"

#include <QtEndian>

using namespace torvik;

namespace {

QByteArray Numbers(std::initializer_list<int> numbers)
{
    QByteArray bytes;
    for (const int number : numbers) {
        const auto swapped = qToBigEndian(static_cast<quint16>(number));
        bytes.append(reinterpret_cast<const char*>(&swapped), sizeof swapped);
    }
    return bytes;
}

QByteArray LongPlaces(std::initializer_list<int> places)
{
    QByteArray bytes;
    for (const int place : places)
        bytes += Numbers({place >> 16, place & 0xFFFF});
    return bytes;
}

/// One contour of a single point, with a program of four bytes before the point.
QByteArray Drawn()
{
    return Numbers({1, 0, 0, 10, 10, 0, 4}) + "PROG" + QByteArray::fromHex("01050600");
}
QByteArray DrawnWithoutProgram()
{
    return Numbers({1, 0, 0, 10, 10, 0, 0}) + QByteArray::fromHex("01050600");
}

constexpr int wide = 0x0001;
constexpr int oneScale = 0x0008;
constexpr int more = 0x0020;
constexpr int twoScales = 0x0040;
constexpr int matrix = 0x0080;
constexpr int program = 0x0100;

QByteArray Composed(const QByteArray& parts)
{
    return Numbers({-1, 0, 0, 10, 10}) + parts;
}

} // namespace

/// Outlines of a TrueType font without their programs, and what a damaged one gives.
class GlyphOutlinesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_drawn_outline_loses_its_program_and_keeps_its_points()
    {
        const auto outlines = OutlinesWithoutPrograms(Drawn(), LongPlaces({0, 22}), true);
        QVERIFY(outlines);
        QCOMPARE(outlines->glyf.left(18), DrawnWithoutProgram());
        QCOMPARE(outlines->glyf.size(), 20);
        QCOMPARE(outlines->loca, LongPlaces({0, 20}));
    }

    void short_places_count_in_pairs_of_bytes()
    {
        const auto outlines = OutlinesWithoutPrograms(Drawn(), Numbers({0, 11}), false);
        QVERIFY(outlines);
        QCOMPARE(outlines->glyf.left(18), DrawnWithoutProgram());
        QCOMPARE(outlines->loca, LongPlaces({0, 20}));
    }

    void a_glyph_without_an_outline_stays_without()
    {
        const auto outlines = OutlinesWithoutPrograms(Drawn(), LongPlaces({0, 0, 22, 22}), true);
        QVERIFY(outlines);
        QCOMPARE(outlines->loca, LongPlaces({0, 0, 20, 20}));
    }

    void a_composed_outline_keeps_its_parts_and_loses_its_program_data()
    {
        QTest::addColumn<int>("flags");
        QTest::addColumn<int>("numbers");
        QTest::newRow("narrow numbers") << 0 << 1;
        QTest::newRow("wide numbers") << wide << 2;
        QTest::newRow("one scale") << (wide | oneScale) << 3;
        QTest::newRow("two scales") << (wide | twoScales) << 4;
        QTest::newRow("a matrix") << (wide | matrix) << 6;
    }
    void a_composed_outline_keeps_its_parts_and_loses_its_program()
    {
        QFETCH(int, flags);
        QFETCH(int, numbers);
        const QByteArray placed(2 * numbers, '\x11');
        const QByteArray first = Numbers({flags | more | program, 5}) + placed;
        const QByteArray glyph =
            Composed(first + Numbers({flags | program, 6}) + placed + Numbers({4}) + "PROG");
        const int length = static_cast<int>(glyph.size());
        const auto outlines = OutlinesWithoutPrograms(glyph, LongPlaces({0, length}), true);
        QVERIFY(outlines);
        const QByteArray expected =
            Composed(Numbers({flags | more, 5}) + placed + Numbers({flags, 6}) + placed);
        QCOMPARE(outlines->glyf.left(expected.size()), expected);
        QVERIFY(outlines->glyf.size() < expected.size() + 4);
    }

    void tables_that_do_not_fit_together_give_nothing_data()
    {
        QTest::addColumn<QByteArray>("glyf");
        QTest::addColumn<QByteArray>("loca");
        QTest::newRow("a place behind the end") << Drawn() << LongPlaces({0, 23});
        QTest::newRow("a place far behind the end") << Drawn() << LongPlaces({0, -1});
        QTest::newRow("places that go back") << Drawn() << LongPlaces({20, 10});
        QTest::newRow("a head that is cut off") << Drawn().left(8) << LongPlaces({0, 8});
        QTest::newRow("contours that are cut off") << Drawn().left(12) << LongPlaces({0, 12});
        QTest::newRow("a program that is cut off") << Drawn().left(16) << LongPlaces({0, 16});
        const QByteArray endless = Composed(Numbers({more, 5, 0}));
        QTest::newRow("parts without a last") << endless << LongPlaces({0, 16});
        const QByteArray cut = Composed(Numbers({wide | matrix, 5, 0, 0}));
        QTest::newRow("a part that is cut off") << cut << LongPlaces({0, 18});
    }
    void tables_that_do_not_fit_together_give_nothing()
    {
        QFETCH(QByteArray, glyf);
        QFETCH(QByteArray, loca);
        QVERIFY(!OutlinesWithoutPrograms(glyf, loca, true));
    }
};

TORVIK_APPLESS_TEST(GlyphOutlinesTest)
#include "glyph_outlines_test.moc"
