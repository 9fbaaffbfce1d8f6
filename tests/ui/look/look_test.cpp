#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/look/look.h"

#include <QPainter>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

double Luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other)
{
    const double lighter = std::max(Luminance(one), Luminance(other));
    const double darker = std::min(Luminance(one), Luminance(other));
    return (lighter + 0.05) / (darker + 0.05);
}

/// Draws on a device of a scale factor and gives the pixels back.
QImage Drawn(double factor, const QSize& pixels, const std::function<void(QPainter&)>& draw)
{
    QImage image((QSizeF(pixels) * factor).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(factor);
    image.fill(look::face);
    QPainter painter(&image);
    draw(painter);
    painter.end();
    image.setDevicePixelRatio(1);
    return image;
}

/// The colours of one column from the top down, each told once with the number of its pixels.
QList<std::pair<QColor, int>> Column(const QImage& image, int x)
{
    QList<std::pair<QColor, int>> runs;
    for (int y = 0; y < image.height(); ++y) {
        const QColor colour = image.pixelColor(x, y);
        if (runs.isEmpty() || runs.last().first != colour)
            runs.append({colour, 0});
        ++runs.last().second;
    }
    return runs;
}

} // namespace

/// The palette, and lines that are sharp at any scale factor.
class LookTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ApplyLook(); }

    void every_text_stands_out_from_its_ground()
    {
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            const QPalette palette = QApplication::palette();
            for (const auto& [text, ground] : {std::pair{QPalette::WindowText, QPalette::Window},
                                               std::pair{QPalette::Text, QPalette::Base},
                                               std::pair{QPalette::ButtonText, QPalette::Button},
                                               std::pair{QPalette::ToolTipText, QPalette::ToolTipBase},
                                               std::pair{QPalette::HighlightedText, QPalette::Highlight},
                                               std::pair{QPalette::Link, QPalette::Base},
                                               std::pair{QPalette::Text, QPalette::AlternateBase}})
                QVERIFY(Contrast(palette.color(group, text), palette.color(group, ground)) >= 4.5);
        }
        QVERIFY(Contrast(look::faded, look::face) >= 4.5);
        QVERIFY(Contrast(look::accentText, look::accent) >= 4.5);
        QVERIFY(Contrast(look::accent, look::face) >= 4.5);
        QVERIFY(Contrast(look::text, look::mark) >= 4.5);
        QVERIFY(Contrast(look::text, look::presentMark) >= 4.5);
    }

    void a_bevel_has_whole_lines_at_every_scale_factor_data()
    {
        QTest::addColumn<double>("factor");
        QTest::addColumn<int>("line"); // pixels of the device
        QTest::newRow("1") << 1.0 << 1;
        QTest::newRow("1.25") << 1.25 << 1;
        QTest::newRow("1.5") << 1.5 << 1;
        QTest::newRow("1.75") << 1.75 << 2;
        QTest::newRow("2") << 2.0 << 2;
        QTest::newRow("3") << 3.0 << 3;
    }

    void a_bevel_has_whole_lines_at_every_scale_factor()
    {
        QFETCH(const double, factor);
        QFETCH(const int, line);
        for (const double at : {0.0, 1.0, 2.0, 3.0}) {
            const QImage image = Drawn(factor, {60, 40}, [&](QPainter& painter) {
                DrawBevel(painter, QRectF(at, at, 50, 30), Bevel::Raised, 2);
            });
            QList<std::pair<QColor, int>> runs = Column(image, image.width() / 2);
            if (runs.first().first == look::face)
                runs.removeFirst();
            QCOMPARE(runs.at(0), std::pair(look::light, line));
            QCOMPARE(runs.at(1), std::pair(look::halfLight, line));
            QCOMPARE(runs.at(2).first, look::face);
            QCOMPARE(runs.at(3), std::pair(look::shadow, line));
            QCOMPARE(runs.at(4), std::pair(look::darkShadow, line));
        }
    }

    void each_bevel_has_its_lines()
    {
        const auto lines = [](Bevel bevel) {
            return Column(Drawn(1, {20, 20},
                                [&](QPainter& painter) {
                                    DrawBevel(painter, {0, 0, 20, 20}, bevel, 2);
                                }),
                          10);
        };
        QCOMPARE(lines(Bevel::None).size(), 1);
        QCOMPARE(lines(Bevel::Sunken).at(0).first, look::shadow);
        QCOMPARE(lines(Bevel::Sunken).at(1).first, look::darkShadow);
        QCOMPARE(lines(Bevel::Sunken).last().first, look::light);
        QCOMPARE(lines(Bevel::Frame).at(0).first, look::shadow);
        QCOMPARE(lines(Bevel::Frame).at(1).first, look::light);
        QCOMPARE(lines(Bevel::Frame).last().first, look::light);
    }

    void edges_snap_to_the_nearest_pixel_of_the_device()
    {
        Drawn(1.5, {60, 40}, [](QPainter& painter) {
            const QRectF snapped = Snapped(painter, {1, 3, 10, 7});
            QCOMPARE(qRound(snapped.left() * 1.5), 2); // 1.5
            QCOMPARE(snapped.left() * 1.5, 2.0);
            QVERIFY(std::abs(snapped.right() * 1.5 - 17.0) < 1e-9); // 16.5
            QVERIFY(std::abs(ThinLine(painter) * 1.5 - 1.0) < 1e-9);
        });
        Drawn(1, {60, 40}, [](QPainter& painter) {
            painter.translate(0.5, 0.25);
            QCOMPARE(Snapped(painter, {0, 0, 10, 10}), QRectF(0.5, -0.25, 10, 10));
        });
    }

    void an_outline_goes_all_around()
    {
        const QImage image = Drawn(1, {10, 10}, [](QPainter& painter) {
            DrawOutline(painter, {0, 0, 10, 10}, look::text);
        });
        for (const QPoint& corner : {QPoint(0, 0), QPoint(9, 0), QPoint(0, 9), QPoint(9, 9), QPoint(5, 0)})
            QCOMPARE(image.pixelColor(corner), look::text);
        QCOMPARE(image.pixelColor(1, 1), look::face);
    }

    void the_focus_is_dotted()
    {
        const QImage image = Drawn(1, {40, 20}, [](QPainter& painter) {
            DrawFocus(painter, {0, 0, 40, 20});
        });
        int dark = 0;
        for (int x = 0; x < 40; ++x)
            dark += image.pixelColor(x, 0) == look::text ? 1 : 0;
        QVERIFY(dark >= 15 && dark <= 25);
        QCOMPARE(image.pixelColor(20, 10), look::face);
    }

    void a_caption_that_would_not_fit_is_drawn_smaller()
    {
        const auto inkWidth = [](int width) {
            const QImage image = Drawn(1, {200, 20}, [&](QPainter& painter) {
                painter.setFont(QApplication::font());
                DrawCaption(painter, QRectF(0, 0, width, 20), u"Advertisement"_s, Qt::AlignLeft, true);
            });
            int last = 0;
            for (int x = 0; x < image.width(); ++x)
                for (int y = 0; y < image.height(); ++y)
                    last = image.pixelColor(x, y) == look::face ? last : x;
            return last;
        };
        QVERIFY(inkWidth(68) < inkWidth(200));
    }

    void the_painters_font_and_pen_stay_as_they_were()
    {
        Drawn(1, {50, 20}, [](QPainter& painter) {
            const QFont font = painter.font();
            const QPen pen = painter.pen();
            DrawCaption(painter, {0, 0, 10, 20}, u"Advertisement"_s, Qt::AlignCenter, false);
            DrawArrow(painter, {0, 0, 10, 10}, 90, true);
            QCOMPARE(painter.font(), font);
            QCOMPARE(painter.pen(), pen);
            QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
        });
    }

    void several_lines_are_drawn_below_each_other()
    {
        const auto inkHeight = [](const QString& caption) {
            const QImage image = Drawn(1, {100, 60}, [&](QPainter& painter) {
                DrawCaption(painter, {0, 0, 100, 60}, caption, Qt::AlignTop | Qt::AlignLeft, true);
            });
            int last = 0;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    last = image.pixelColor(x, y) == look::face ? last : y;
            return last;
        };
        QVERIFY(inkHeight(u"H\nH"_s) > inkHeight(u"H"_s) + 8);
    }
};

TORVIK_TEST(LookTest)
#include "look_test.moc"
