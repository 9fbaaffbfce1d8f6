#include "saver/fade.h"
#include "support/test_class.h"

#include <QPainter>

using namespace torvik;

namespace {

QImage Plain(const QColor& colour, const QSize& size = {8, 8})
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

QColor Painted(const Fade& fade)
{
    QImage canvas = Plain(Qt::magenta, {16, 16});
    QPainter painter(&canvas);
    fade.Paint(painter, canvas.rect());
    painter.end();
    // The whole area is one colour, corners too.
    if (canvas.pixelColor(0, 0) != canvas.pixelColor(15, 15))
        return {};
    return canvas.pixelColor(8, 8);
}

bool Near(const QColor& one, const QColor& other)
{
    return std::abs(one.red() - other.red()) <= 2 && std::abs(one.green() - other.green()) <= 2 &&
           std::abs(one.blue() - other.blue()) <= 2;
}

} // namespace

/// One frame gives way to the next.
class FadeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void before_the_first_frame_all_is_black() { QCOMPARE(Painted(Fade()), QColor(Qt::black)); }

    void the_first_frame_comes_out_of_black()
    {
        Fade fade;
        fade.To(Plain(Qt::white));
        QCOMPARE(Painted(fade), QColor(Qt::black));
        fade.SetProgress(0.5);
        QVERIFY(Near(Painted(fade), QColor(128, 128, 128)));
        fade.SetProgress(1);
        QCOMPARE(Painted(fade), QColor(Qt::white));
    }

    void two_frames_mix_without_a_dip_to_black()
    {
        Fade fade;
        fade.To(Plain(QColor(200, 0, 100)));
        fade.To(Plain(QColor(0, 200, 100)));
        QVERIFY(Near(Painted(fade), QColor(200, 0, 100)));
        fade.SetProgress(0.25);
        QVERIFY(Near(Painted(fade), QColor(150, 50, 100)));
        fade.SetProgress(0.5);
        QVERIFY(Near(Painted(fade), QColor(100, 100, 100)));
        fade.SetProgress(1);
        QVERIFY(Near(Painted(fade), QColor(0, 200, 100)));
    }

    void a_frame_can_be_put_in_place_of_another_at_once()
    {
        Fade fade;
        fade.To(Plain(Qt::red));
        fade.Replace(Plain(Qt::green, {4, 4}));
        QCOMPARE(Painted(fade), QColor(Qt::green));
        QCOMPARE(fade.Frame().size(), QSize(4, 4));
    }
};

TORVIK_TEST(FadeTest)
#include "fade_test.moc"
