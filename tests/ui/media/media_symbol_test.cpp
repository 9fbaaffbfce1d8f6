#include "support/test_class.h"
#include "ui/look/look.h"
#include "ui/media/media_symbol.h"
#include "ui/pixels.h"

#include <QImage>
#include <QPainter>

using namespace torvik;

namespace {

constexpr QSize pixels{36, 24};

QImage Drawn(MediaButton button, bool enabled = true, double factor = 1)
{
    QImage image((QSizeF(pixels) * factor).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(factor);
    image.fill(look::face);
    QPainter painter(&image);
    DrawMediaSymbol(painter, QRectF(QPointF(), pixels), button, enabled);
    painter.end();
    image.setDevicePixelRatio(1);
    return image;
}

/// The columns of the middle row that are dark, as pairs of the first and the one after the last.
QList<std::pair<int, int>> DarkRuns(const QImage& image, int y)
{
    QList<std::pair<int, int>> runs;
    for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, y) != look::text)
            continue;
        if (runs.isEmpty() || runs.last().second != x)
            runs.append({x, x});
        runs.last().second = x + 1;
    }
    return runs;
}

} // namespace

/// The symbols of a video recorder's buttons.
class MediaSymbolTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void no_two_symbols_are_alike()
    {
        for (int one = 0; one < mediaButtonCount; ++one)
            for (int other = one + 1; other < mediaButtonCount; ++other)
                QVERIFY(Drawn(static_cast<MediaButton>(one)) != Drawn(static_cast<MediaButton>(other)));
    }

    void a_symbol_stands_in_the_middle()
    {
        for (const MediaButton button : {MediaButton::Pause, MediaButton::Stop}) {
            const auto runs = DarkRuns(Drawn(button), pixels.height() / 2);
            QVERIFY(std::abs(runs.first().first - (pixels.width() - runs.last().second)) <= 1);
        }
    }

    void backward_is_forward_seen_in_a_mirror()
    {
        for (const auto& [one, other] : {std::pair{MediaButton::Prev, MediaButton::Next},
                                         std::pair{MediaButton::Back, MediaButton::Step}}) {
            const int y = pixels.height() / 2;
            const int dark = PixelsOf(Drawn(one), look::text);
            QVERIFY(std::abs(dark - PixelsOf(Drawn(other), look::text)) <= dark / 5);
            QVERIFY(!DarkRuns(Drawn(one), y).isEmpty());
        }
        const int upper = pixels.height() / 2 - 5;
        QVERIFY(DarkRuns(Drawn(MediaButton::Prev), upper).first().first <
                DarkRuns(Drawn(MediaButton::Next), upper).last().first);
    }

    void pause_is_two_bars_with_sharp_sides_at_every_scale_factor_data()
    {
        QTest::addColumn<double>("factor");
        for (const double factor : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0})
            QTest::addRow("%g", factor) << factor;
    }

    void pause_is_two_bars_with_sharp_sides_at_every_scale_factor()
    {
        QFETCH(const double, factor);
        const QImage image = Drawn(MediaButton::Pause, true, factor);
        const auto runs = DarkRuns(image, image.height() / 2);
        QCOMPARE(runs.size(), 2);
        // Nothing between the dark of the bars and the face: no blurred side.
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, image.height() / 2);
            QVERIFY(colour == look::text || colour == look::face);
        }
        QVERIFY(std::abs((runs[0].second - runs[0].first) - (runs[1].second - runs[1].first)) <= 1);
    }

    void a_disabled_symbol_is_etched_into_the_face()
    {
        for (int index = 0; index < mediaButtonCount; ++index) {
            const QImage image = Drawn(static_cast<MediaButton>(index), false);
            QCOMPARE(PixelsOf(image, look::text), 0);
            QVERIFY(PixelsOf(image, look::shadow) > 10);
            int lighter = 0;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    lighter += image.pixelColor(x, y).lightness() > look::face.lightness() ? 1 : 0;
            QVERIFY(lighter > 3);
        }
    }

    void a_symbol_stays_inside_a_button_of_any_shape()
    {
        for (const QSize size : {QSize(8, 30), QSize(60, 6), QSize(2, 2), QSize(0, 0)})
            for (int index = 0; index < mediaButtonCount; ++index) {
                QImage image(80, 40, QImage::Format_RGB32);
                image.fill(look::face);
                QPainter painter(&image);
                const QRect area(QPoint(10, 5), size);
                DrawMediaSymbol(painter, area, static_cast<MediaButton>(index), true);
                painter.fillRect(area, look::face);
                painter.end();
                QCOMPARE(PixelsOf(image, look::face), image.width() * image.height());
            }
    }
};

TORVIK_TEST(MediaSymbolTest)
#include "media_symbol_test.moc"
