#include "rtf/bounds/budget.h"
#include "rtf/metafile/metafile_maker.h"
#include "rtf/picture/shape_picture.h"
#include "support/test_class.h"

using namespace torvik::rtf;

// A pixel of the page is two of the image.
class ShapePictureTest : public QObject {
    Q_OBJECT

    /// Red, and in the middle of 50 by 50 pixels; half a pixel is left on all sides.
    static DrawnShape Filled(ShapeKind kind)
    {
        DrawnShape shape;
        shape.kind = kind;
        shape.bounds = QRectF(10, 20, 49, 49);
        shape.fill = Qt::red;
        return shape;
    }
    static DrawnShape Outlined(ShapeKind kind, double width = 2)
    {
        DrawnShape shape = Filled(kind);
        shape.bounds = QRectF(10, 20, 50 - width, 50 - width);
        shape.fill = QColor();
        shape.lineColor = Qt::blue;
        shape.lineWidth = width;
        return shape;
    }
    static ShownPicture Draw(const std::vector<DrawnShape>& shapes)
    {
        Budget budget(0);
        return DrawShapes(shapes, budget);
    }
    static QImage ImageOf(const DrawnShape& shape) { return Draw({shape}).image; }

private Q_SLOTS:
    void every_kind_is_filled_in_its_form_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QList<QPoint>>("inside");
        QTest::addColumn<QList<QPoint>>("outside");
        using Points = QList<QPoint>;
        const auto number = [](ShapeKind kind) { return static_cast<int>(kind); };
        QTest::newRow("a rectangle") << number(ShapeKind::Rectangle)
                                     << Points{{1, 1}, {98, 1}, {1, 98}, {98, 98}, {50, 50}}
                                     << Points{{0, 0}};
        QTest::newRow("a rectangle with round corners")
            << number(ShapeKind::RoundRectangle) << Points{{8, 8}, {50, 2}, {2, 50}, {98, 50}, {50, 98}}
            << Points{{2, 2}, {97, 2}, {2, 97}, {97, 97}};
        QTest::newRow("an ellipse") << number(ShapeKind::Ellipse)
                                    << Points{{50, 50}, {50, 2}, {2, 50}, {18, 18}, {81, 81}}
                                    << Points{{12, 12}, {87, 12}, {12, 87}, {87, 87}};
        QTest::newRow("a diamond") << number(ShapeKind::Diamond)
                                   << Points{{50, 50}, {50, 4}, {4, 50}, {28, 28}}
                                   << Points{{22, 22}, {77, 22}, {22, 77}, {77, 77}};
        QTest::newRow("a triangle stands on its side")
            << number(ShapeKind::Triangle) << Points{{50, 6}, {4, 96}, {95, 96}, {50, 98}}
            << Points{{20, 50}, {80, 50}, {4, 4}};
    }
    void every_kind_is_filled_in_its_form()
    {
        QFETCH(const int, kind);
        QFETCH(const QList<QPoint>, inside);
        QFETCH(const QList<QPoint>, outside);
        const QImage image = ImageOf(Filled(static_cast<ShapeKind>(kind)));
        QCOMPARE(image.size(), QSize(100, 100));
        QCOMPARE(NotPainted(image, inside, Qt::red), QString());
        QCOMPARE(NotBare(image, outside), QString());
    }

    void a_line_runs_from_corner_to_corner()
    {
        const QImage image = ImageOf(Outlined(ShapeKind::Line));
        QCOMPARE(NotPainted(image, {{4, 4}, {50, 50}, {95, 95}}, Qt::blue), QString());
        QCOMPARE(NotBare(image, {{80, 20}, {20, 80}, {60, 50}}), QString());
    }

    void a_level_line_has_the_room_of_its_width()
    {
        DrawnShape line = Outlined(ShapeKind::Line, 4);
        line.bounds = QRectF(0, 0, 46, 0);
        const ShownPicture shown = Draw({line});
        QCOMPARE(shown.size, QSizeF(50, 4));
        QCOMPARE(ExtentOf(shown.image, Qt::blue), QRect(4, 0, 92, 8)); // its ends are flat
    }

    void an_arc_is_a_quarter_of_an_ellipse_and_stays_empty()
    {
        DrawnShape arc = Outlined(ShapeKind::Arc);
        arc.fill = Qt::red;
        const QImage image = ImageOf(arc);
        // From above the left corner to the right one, around the lower left.
        QCOMPARE(NotPainted(image, {{4, 2}, {69, 30}, {97, 94}}, Qt::blue), QString());
        QCOMPARE(NotBare(image, {{10, 90}, {50, 50}, {90, 10}}), QString());
    }

    void the_outline_lies_half_inside()
    {
        DrawnShape shape = Outlined(ShapeKind::Rectangle, 10);
        shape.fill = Qt::red;
        const QImage image = ImageOf(shape);
        QCOMPARE(image.size(), QSize(100, 100));
        QCOMPARE(ExtentOf(image, Qt::blue), QRect(0, 0, 100, 100));
        QCOMPARE(ExtentOf(image, Qt::red), QRect(20, 20, 60, 60));
        shape.fill = QColor();
        QCOMPARE(NotBare(ImageOf(shape), {{50, 50}, {22, 22}}), QString());
    }

    void a_thin_outline_has_the_room_of_a_pixel()
    {
        DrawnShape shape = Outlined(ShapeKind::Rectangle, 0.25);
        QCOMPARE(RoomOf(shape), shape.bounds.adjusted(-0.5, -0.5, 0.5, 0.5));
        shape.lineWidth = 6;
        QCOMPARE(RoomOf(shape), shape.bounds.adjusted(-3, -3, 3, 3));
        shape.lineColor = QColor();
        QCOMPARE(RoomOf(shape), shape.bounds.adjusted(-0.5, -0.5, 0.5, 0.5));
    }

    void an_outline_may_be_dashed()
    {
        DrawnShape shape = Outlined(ShapeKind::Line, 4);
        shape.bounds = QRectF(0, 0, 96, 0);
        shape.pen = Qt::DashLine;
        const QImage image = ImageOf(shape);
        QCOMPARE(NotPainted(image, {{8, 4}, {30, 4}}, Qt::blue), QString());
        QCOMPARE(NotBare(image, {{40, 4}, {50, 4}}), QString());
    }

    void corners_are_parts_of_the_bounds()
    {
        DrawnShape shape = Filled(ShapeKind::Polygon);
        shape.corners = {{0, 0}, {1, 0}, {0, 1}};
        QCOMPARE(NotPainted(ImageOf(shape), {{3, 3}, {90, 3}, {3, 90}, {40, 40}}, Qt::red), QString());
        QCOMPARE(NotBare(ImageOf(shape), {{90, 90}, {60, 60}}), QString());
        DrawnShape open = Outlined(ShapeKind::Polyline);
        open.corners = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};
        QCOMPARE(NotPainted(ImageOf(open), {{50, 2}, {97, 50}, {50, 97}}, Qt::blue), QString());
        QCOMPARE(NotBare(ImageOf(open), {{2, 50}, {50, 50}}), QString());
        open.kind = ShapeKind::Polygon;
        QCOMPARE(NotPainted(ImageOf(open), {{2, 50}}, Qt::blue), QString());
    }

    void a_shape_is_turned_over_within_its_bounds_data()
    {
        QTest::addColumn<bool>("across");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QPoint>("corner");
        QTest::newRow("not at all") << false << false << QPoint(5, 5);
        QTest::newRow("left for right") << true << false << QPoint(94, 5);
        QTest::newRow("top for bottom") << false << true << QPoint(5, 94);
        QTest::newRow("both") << true << true << QPoint(94, 94);
    }
    void a_shape_is_turned_over_within_its_bounds()
    {
        QFETCH(const bool, across);
        QFETCH(const bool, down);
        QFETCH(const QPoint, corner);
        DrawnShape shape = Filled(ShapeKind::Polygon);
        shape.corners = {{0, 0}, {1, 0}, {0, 1}};
        shape.flipX = across;
        shape.flipY = down;
        const QImage image = ImageOf(shape);
        QCOMPARE(NotPainted(image, {corner}, Qt::red), QString());
        QCOMPARE(NotBare(image, {{99 - corner.x(), 99 - corner.y()}}), QString());
    }

    void several_shapes_are_one_picture_in_their_order()
    {
        DrawnShape below = Filled(ShapeKind::Rectangle);
        below.bounds = QRectF(0, 0, 29, 29);
        DrawnShape above = below;
        above.bounds = QRectF(20, 10, 29, 29);
        above.fill = Qt::green;
        const ShownPicture shown = Draw({below, above});
        QCOMPARE(shown.size, QSizeF(50, 40));
        QCOMPARE(NotPainted(shown.image, {{5, 5}, {38, 18}}, Qt::red), QString());
        QCOMPARE(NotPainted(shown.image, {{50, 40}, {95, 70}}, Qt::green), QString());
        QCOMPARE(NotBare(shown.image, {{80, 5}, {5, 75}}), QString());
    }

    void nothing_to_draw_is_no_picture()
    {
        QVERIFY(Draw({}).image.isNull());
        QCOMPARE(InkOf(ImageOf(Filled(ShapeKind::None))), QRect());
        DrawnShape bare = Filled(ShapeKind::Rectangle);
        bare.fill = QColor();
        QCOMPARE(InkOf(ImageOf(bare)), QRect());
    }

    void corners_that_are_missing_or_far_out_are_survived()
    {
        for (const ShapeKind kind : {ShapeKind::Polyline, ShapeKind::Polygon}) {
            DrawnShape shape = Filled(kind);
            QCOMPARE(InkOf(ImageOf(shape)), QRect());
            shape.corners = {{-1e300, 0}, {1e300, 1e300}, {0, 1e6}};
            QCOMPARE(ImageOf(shape).size(), QSize(100, 100));
            shape.corners = {{-100, 0}, {100, 0}, {0, 100}};
            // An open line has nothing inside.
            if (kind == ShapeKind::Polygon)
                QCOMPARE(NotPainted(ImageOf(shape), {{50, 50}}, Qt::red), QString());
            else
                QCOMPARE(InkOf(ImageOf(shape)), QRect());
        }
    }

    void a_shape_that_would_cost_too_much_is_left_out()
    {
        Budget budget(0);
        QVERIFY(budget.Take(budget.Left()));
        DrawnShape shape = Filled(ShapeKind::Rectangle);
        shape.bounds = QRectF(0, 0, 1000, 1000);
        QVERIFY(DrawShapes({shape}, budget).image.isNull());
        shape.bounds = QRectF(0, 0, 1e12, 10);
        QVERIFY(Draw({shape}).image.width() < 100'000);
    }
};

TORVIK_TEST(ShapePictureTest)
#include "shape_picture_test.moc"
