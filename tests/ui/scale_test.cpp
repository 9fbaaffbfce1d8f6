#include "support/test_class.h"
#include "ui/scale.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// How large everything is drawn.
class ScaleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void numbers_from_1_to_8_are_scales_and_two_words_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("is");
        for (const char* good : {"1", "1.25", "2.5", "8", "fit", "auto"})
            QTest::newRow(good) << QString::fromLatin1(good) << true;
        for (const char* bad : {"", "0", "0.99", "8.01", "-2", "two", "nan", "inf", "1,5", "Fit", "2x"})
            QTest::newRow(bad) << QString::fromLatin1(bad) << false;
    }
    void numbers_from_1_to_8_are_scales_and_two_words()
    {
        QFETCH(QString, text);
        QFETCH(bool, is);
        QCOMPARE(IsScale(text), is);
    }

    void a_number_is_taken_whatever_the_desktop_does()
    {
        QCOMPARE(ScaleFactor(u"1.5"_s, 1, {800, 600}), 1.5);
        QCOMPARE(ScaleFactor(u"1"_s, 2, {3840, 2160}), 1.0);
    }

    void fit_is_the_largest_quarter_step()
    {
        QCOMPARE(ScaleFactor(u"fit"_s, 1, {1920, 1050}), 1.75);
        QCOMPARE(ScaleFactor(u"fit"_s, 1, {3840, 2160}), 3.5);
        QCOMPARE(ScaleFactor(u"fit"_s, 2, {1280, 1024}), 1.5);
        QCOMPARE(ScaleFactor(u"fit"_s, 1, {640, 480}), 1.0);
        QCOMPARE(ScaleFactor(u"fit"_s, 1, {16000, 16000}), 8.0);
    }

    void otherwise_it_is_the_desktops_factor_or_the_largest_whole_number()
    {
        for (const QString& text : {u"auto"_s, QString(), u"rubbish"_s}) {
            QCOMPARE(ScaleFactor(text, 1.25, {3840, 2160}), 1.25);
            QCOMPARE(ScaleFactor(text, 1, {3840, 2160}), 3.0);
            QCOMPARE(ScaleFactor(text, 1, {1920, 1080}), 1.0);
            QCOMPARE(ScaleFactor(text, 1, {1600, 1200}), 2.0);
            QCOMPARE(ScaleFactor(text, 1, {1600, 1199}), 1.0);
            QCOMPARE(ScaleFactor(text, 1, {640, 480}), 1.0);
            QCOMPARE(ScaleFactor(text, 1, {}), 1.0);
        }
    }
};

TORVIK_APPLESS_TEST(ScaleTest)
#include "scale_test.moc"
