#include "support/test_class.h"
#include "ui/look/look.h"
#include "ui/look/message_icons.h"

#include <QImage>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

const QList<QStyle::StandardPixmap> kinds{QStyle::SP_MessageBoxCritical, QStyle::SP_MessageBoxWarning,
                                          QStyle::SP_MessageBoxQuestion, QStyle::SP_MessageBoxInformation};

QImage Drawn(QStyle::StandardPixmap kind, double factor)
{
    return MessageIcon(kind).pixmap(QSize(32, 32), factor).toImage().convertToFormat(QImage::Format_ARGB32);
}

/// A colour by its place on the square of 32 by 32.
QColor ColourAt(QStyle::StandardPixmap kind, int x, int y)
{
    return Drawn(kind, 4).pixelColor(4 * x, 4 * y);
}

} // namespace

/// The pictures in message boxes.
class MessageIconsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ApplyLook(); }

    void each_has_the_size_of_the_devices_pixels_and_is_no_enlargement()
    {
        for (const auto kind : kinds) {
            for (const double factor : {1.0, 1.25, 2.5, 3.0}) {
                const QImage drawn = Drawn(kind, factor);
                QCOMPARE(drawn.size(), QSize(32, 32) * factor);
                QCOMPARE(drawn.devicePixelRatio(), factor);
            }
            const QImage large = Drawn(kind, 3);
            QImage plain = large;
            plain.setDevicePixelRatio(1);
            QVERIFY(plain != plain.scaled(32, 32).scaled(96, 96));
        }
    }

    void each_has_its_colour()
    {
        QVERIFY(ColourAt(QStyle::SP_MessageBoxCritical, 5, 16).red() > 150);
        QVERIFY(ColourAt(QStyle::SP_MessageBoxCritical, 5, 16).blue() < 60);
        QCOMPARE(ColourAt(QStyle::SP_MessageBoxCritical, 16, 16), QColor(Qt::white));
        QVERIFY(ColourAt(QStyle::SP_MessageBoxWarning, 7, 26).green() > 180);
        QVERIFY(ColourAt(QStyle::SP_MessageBoxWarning, 7, 26).blue() < 60);
        for (const auto kind : {QStyle::SP_MessageBoxQuestion, QStyle::SP_MessageBoxInformation}) {
            QCOMPARE(ColourAt(kind, 5, 13), QColor(Qt::white));
            QVERIFY(Drawn(kind, 1) != Drawn(QStyle::SP_MessageBoxWarning, 1));
        }
        QVERIFY(Drawn(QStyle::SP_MessageBoxQuestion, 1) != Drawn(QStyle::SP_MessageBoxInformation, 1));
    }

    void nothing_stands_outside_the_figure()
    {
        for (const auto kind : kinds)
            for (const QPoint& corner : {QPoint(0, 0), QPoint(127, 0)})
                QCOMPARE(Drawn(kind, 4).pixelColor(corner).alpha(), 0);
    }

    void other_pictures_are_left_to_qt() { QVERIFY(MessageIcon(QStyle::SP_DirIcon).isNull()); }
};

TORVIK_TEST(MessageIconsTest)
#include "message_icons_test.moc"
