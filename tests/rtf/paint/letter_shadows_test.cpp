#include "rtf/documents.h"
#include "support/test_class.h"

#include <QElapsedTimer>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cstdlib>

using namespace torvik::rtf;

/// Shadows of letters, painted alone, beside the letters, painted alone.
class LetterShadowsTest : public QObject {
    Q_OBJECT

    static constexpr QSize page{480, 160};

    template <typename Paint>
    static QImage Painted(Paint paint)
    {
        QImage image(page, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        paint(painter);
        return image;
    }
    static void Lay(const Reading& read)
    {
        read.document->setDocumentMargin(0);
        read.document->setTextWidth(page.width());
        (void)read.document->size(); // lays it out
    }
    static QImage Shadows(const Reading& read, const QRectF& clip = QRectF(QPointF(), QSizeF(page)))
    {
        Lay(read);
        return Painted([&](QPainter& painter) {
            constexpr double ownSize = 1;
            LetterShadows(*read.document).Paint(painter, clip, ownSize);
        });
    }
    static QImage Letters(const Reading& read)
    {
        Lay(read);
        return Painted([&](QPainter& painter) { read.document->drawContents(&painter); });
    }
    /// The smallest rectangle around all ink.
    static QRect InkOf(const QImage& image)
    {
        QRect ink;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qGray(image.pixel(x, y)) < 230)
                    ink |= QRect(x, y, 1, 1);
            }
        }
        return ink;
    }
    static int MostApart(const QRect& a, const QRect& b)
    {
        return std::max({std::abs(a.left() - b.left()), std::abs(a.top() - b.top()),
                         std::abs(a.right() - b.right()), std::abs(a.bottom() - b.bottom())});
    }

private Q_SLOTS:
    void a_shadow_has_the_shape_of_its_letters_a_little_aside_data()
    {
        QTest::addColumn<QByteArray>("word");
        QTest::addColumn<int>("aside");
        QTest::newRow("shadowed letters") << QByteArray("\\shad") << 4;
        QTest::newRow("embossed letters") << QByteArray("\\cf1\\embo") << 4;
        QTest::newRow("engraved letters") << QByteArray("\\cf1\\impr") << -4;
    }
    void a_shadow_has_the_shape_of_its_letters_a_little_aside()
    {
        QFETCH(QByteArray, word);
        QFETCH(int, aside);
        // 80 pixels high, in the second paragraph and indented.
        const Reading read = ReadBody("x\\par\\li900\\fs120" + word + " Hxg\\par");
        const Reading letters = ReadBody("\\~\\par\\li900\\fs120 Hxg\\par");
        const QRect shadow = InkOf(Shadows(read));
        const QRect expected = InkOf(Letters(letters)).translated(aside, aside);
        QVERIFY(shadow.height() > 40);
        QVERIFY2(MostApart(shadow, expected) <= 1, qPrintable(QString::number(MostApart(shadow, expected))));
    }

    void small_letters_cast_a_shadow_of_a_pixel()
    {
        const Reading read = ReadBody("\\fs24\\shad H\\par");
        const QRect shadow = InkOf(Shadows(read));
        const QRect letter = InkOf(Letters(read));
        QVERIFY(!shadow.isEmpty());
        QVERIFY(MostApart(shadow, letter.translated(1, 1)) <= 1);
    }

    void a_shadow_is_paler_than_black_letters()
    {
        const QImage image = Shadows(ReadBody("\\fs120\\shad H\\par"));
        int darkest = 255;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                darkest = std::min(darkest, qGray(image.pixel(x, y)));
        }
        QCOMPARE(darkest, qGray(QColor(Qt::gray).rgb()));
    }

    void the_letters_that_are_told_alone_cast_one()
    {
        const QRect shadow = InkOf(Shadows(ReadBody("\\fs60 plain {\\shad shadow} plain\\par")));
        const QRect letters = InkOf(Letters(ReadBody("\\fs60 plain {\\shad shadow} plain\\par")));
        QVERIFY(shadow.left() > letters.left() + 50);
        QVERIFY(shadow.right() < letters.right() - 50);
    }

    void a_document_without_such_letters_has_no_shadows()
    {
        QVERIFY(LetterShadows(*ReadBody("plain {\\outl outlined}\\par").document).IsEmpty());
        QVERIFY(!LetterShadows(*ReadBody("plain\\par{\\shad shadow}\\par").document).IsEmpty());
    }

    void what_is_not_seen_of_a_text_is_left_out_data()
    {
        QTest::addColumn<QByteArray>("parting");
        QTest::newRow("paragraphs") << QByteArray("\\par ");
        QTest::newRow("lines of one paragraph") << QByteArray("\\line ");
    }
    void what_is_not_seen_of_a_text_is_left_out()
    {
        QFETCH(QByteArray, parting);
        const Reading read = ReadBody("\\fs40\\shad HHH" + parting + "HHH" + parting + "HHH\\par");
        const QRect whole = InkOf(Shadows(read));
        const double line = read.document->size().height() / 3;
        const QRect seen = InkOf(Shadows(read, QRectF(0, line * 1.4, page.width(), line * 0.2)));
        QVERIFY(!seen.isEmpty());
        QVERIFY(seen.top() >= whole.top() + line - 1);
        QVERIFY(seen.bottom() <= whole.bottom() - line + 1);
    }

    void a_very_long_paragraph_is_painted_soon_wherever_it_is_scrolled()
    {
        const Reading read = ReadBody("\\shad " + QByteArray("many words ").repeated(12000) + "\\par");
        Lay(read);
        constexpr int paints = 400; // of the whole paragraph, a quarter of a minute
        QElapsedTimer timer;
        timer.start();
        for (int number = 1; number <= paints; ++number) {
            const double top = read.document->size().height() * number / (paints + 1);
            QImage image(page, QImage::Format_RGB32);
            QPainter painter(&image);
            painter.translate(0, -top);
            LetterShadows(*read.document).Paint(painter, QRectF(QPointF(0, top), QSizeF(page)), 1);
        }
        QVERIFY2(timer.elapsed() < 10'000, qPrintable(QString::number(timer.elapsed())));
    }
};

TORVIK_TEST(LetterShadowsTest)
#include "letter_shadows_test.moc"
