#include "saver/frames.h"
#include "support/discs/picture_bytes.h"
#include "support/failure_of.h"
#include "support/test_class.h"
#include "ui/pictures/picture.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// The smallest rectangle that holds all that is not black.
QRect LitArea(const QImage& frame)
{
    QRect area;
    for (int y = 0; y < frame.height(); ++y) {
        for (int x = 0; x < frame.width(); ++x) {
            if (qGray(frame.pixel(x, y)) > 12)
                area |= QRect(x, y, 1, 1);
        }
    }
    return area;
}

} // namespace

/// What fills a window.
class FramesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_photo_is_as_large_as_fits_in_the_middle_of_black_data()
    {
        QTest::addColumn<QSize>("photo");
        QTest::addColumn<QSize>("window");
        QTest::addColumn<QRect>("lit");
        QTest::newRow("wide window") << QSize(40, 40) << QSize(200, 100) << QRect(50, 0, 100, 100);
        QTest::newRow("tall window") << QSize(40, 20) << QSize(100, 200) << QRect(0, 75, 100, 50);
        QTest::newRow("large photo") << QSize(800, 400) << QSize(100, 100) << QRect(0, 25, 100, 50);
        QTest::newRow("same shape") << QSize(30, 20) << QSize(300, 200) << QRect(0, 0, 300, 200);
    }

    void a_photo_is_as_large_as_fits_in_the_middle_of_black()
    {
        QFETCH(QSize, photo);
        QFETCH(QSize, window);
        QImage white(photo, QImage::Format_RGB32);
        white.fill(Qt::white);
        const QString path = folder_.Add(u"white.jpg"_s, Encoded(white, "jpg"));
        const QImage frame = PhotoFrame(Picture::Load(path), window);
        QCOMPARE(frame.size(), window);
        QTEST(LitArea(frame), "lit");
    }

    void a_photo_stands_upright_by_its_orientation_tag()
    {
        // Turned a quarter to the right: what is stored lower left shows upper left.
        const QByteArray lying = WithOrientation(Encoded(FourCorners({80, 40}), "jpg"), 6);
        const QString path = folder_.Add(u"lying.jpg"_s, lying);
        const QImage frame = PhotoFrame(Picture::Load(path), {100, 100});
        QVERIFY(Alike(frame.pixelColor(30, 10), Qt::blue));
        QVERIFY(Alike(frame.pixelColor(70, 10), Qt::red));
        QVERIFY(Alike(frame.pixelColor(70, 90), Qt::green));
        QVERIFY(Alike(frame.pixelColor(10, 50), Qt::black));
    }

    void a_damaged_photo_is_refused()
    {
        QByteArray damaged = Encoded(FourCorners({200, 200}), "jpg");
        damaged.truncate(damaged.size() / 2);
        const QString path = folder_.Add(u"damaged.jpg"_s, damaged);
        QCOMPARE(FailureOf([&] { PhotoFrame(Picture::Load(path), {50, 50}); }), failure::invalidPicture);
    }

    void the_card_shows_title_and_words_and_lies_inside_the_window_at_each_turn()
    {
        QRect before;
        for (int turn = 0; turn < 6; ++turn) {
            const QImage frame = CardFrame({640, 480}, turn);
            QCOMPARE(frame.size(), QSize(640, 480));
            const QRect lit = LitArea(frame);
            QVERIFY2(lit.width() >= 300 && lit.height() >= 240, qPrintable(QString::number(turn)));
            QVERIFY(frame.rect().adjusted(10, 10, -10, -10).contains(lit));
            QVERIFY(lit.topLeft() != before.topLeft());
            before = lit;
        }
    }

    void the_first_card_stands_in_the_middle()
    {
        const QRect lit = LitArea(CardFrame({800, 600}, 0));
        QVERIFY(std::abs(lit.center().x() - 400) <= 4);
        QVERIFY(std::abs(lit.center().y() - 300) <= 25);
    }

    void the_words_stand_below_the_title()
    {
        const QImage frame = CardFrame({800, 600}, 0);
        const QRect lit = LitArea(frame);
        const int title = 400 * 2 / 3; // the artwork is half as wide again as high
        const QRect words(lit.left(), lit.top() + title + 10, lit.width(), lit.height() - title - 10);
        QVERIFY(words.height() > 30);
        QVERIFY(LitArea(frame.copy(words)).width() > 150);
    }

    void a_window_without_room_is_no_trouble()
    {
        const QString path = folder_.Add(u"four.jpg"_s, Encoded(FourCorners({80, 40}), "jpg"));
        for (const QSize& tiny : {QSize(1, 1), QSize(3, 2), QSize(1, 400)}) {
            QCOMPARE(CardFrame(tiny, 3).size(), tiny);
            QCOMPARE(PhotoFrame(Picture::Load(path), tiny).size(), tiny);
        }
    }

private:
    PictureFolder folder_;
};

TORVIK_TEST(FramesTest)
#include "frames_test.moc"
