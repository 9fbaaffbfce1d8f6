#pragma once

#include "rtf/metafile/metafile_maker.h"

#include <QTest>

namespace torvik::rtf {

// What the tables of both kinds of metafiles have in common: a drawn row of them is looked at in the same
// way.

/// The columns of a table of drawings in red: its records, what it covers, points on it and points beside it.
inline void AddDrawingColumns()
{
    QTest::addColumn<QByteArray>("records");
    QTest::addColumn<QRect>("ink");
    QTest::addColumn<QList<QPoint>>("on");
    QTest::addColumn<QList<QPoint>>("beside");
}
/// Compares the drawing of the present row with what its columns say.
inline void CompareDrawing(const QImage& image)
{
    QFETCH(const QRect, ink);
    QFETCH(const QList<QPoint>, on);
    QFETCH(const QList<QPoint>, beside);
    QCOMPARE(InkOf(image), ink);
    QCOMPARE(NotPainted(image, on, Qt::red), QString());
    QCOMPARE(NotBare(image, beside), QString());
}

/// Bytes in a font of some character set, and the number of the letter that they stand for.
struct LetterRow {
    int charset = 0;
    QByteArray face;
    QByteArray bytes;
    ushort letter = 0;
};
inline void AddLetterColumns()
{
    QTest::addColumn<int>("charset");
    QTest::addColumn<QByteArray>("face");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<ushort>("letter");
}
inline LetterRow PresentLetter()
{
    QFETCH(const int, charset);
    QFETCH(const QByteArray, face);
    QFETCH(const QByteArray, bytes);
    QFETCH(const ushort, letter);
    return {charset, face, bytes, letter};
}

} // namespace torvik::rtf
