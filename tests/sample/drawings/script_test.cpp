#include "sample/drawings/script.h"
#include "support/test_class.h"

#include <stdexcept>

using namespace torvik::sample;
using namespace Qt::StringLiterals;

class ScriptTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_table_gives_its_numbers_and_words()
    {
        Script figures("figures");
        figures.Run();
        const Value& first = figures.Get("years").At(0);
        QCOMPARE(first.At(0).Whole(), 1967);
        QCOMPARE(first.At(1).Whole(), 2490);
        QCOMPARE(figures.Get("engines").At(0).At(1).Text(), u"Linden Six"_s);
    }

    void values_are_computed_in_the_order_in_which_they_stand()
    {
        Script letters("letters");
        letters.Run();
        // "falling" is written as {1, -0.35}, and used in the row of the letter o.
        QCOMPARE(letters.Get("falling").Point(), QPointF(1, -0.35));
        for (const Value& letter : letters.Get("letters").Items()) {
            if (letter.At(0).Text() == u"o")
                QCOMPARE(letter.At(5).Point(), QPointF(1, -0.35));
        }
    }

    void a_word_that_was_not_taught_is_refused_with_the_drawing_and_its_line()
    {
        Script board("board_face");
        try {
            board.Run();
            QFAIL("The drawing was obeyed.");
        } catch (const std::runtime_error& failure) {
            const QString told = QString::fromUtf8(failure.what());
            QVERIFY2(told.startsWith(u"Drawing \"board_face\""), failure.what());
            QVERIFY2(told.endsWith(u"An unknown word: rgb"), failure.what());
        }
    }

    void a_choice_reads_only_the_part_that_holds()
    {
        // Without a marque and with a late year every "else if" of the emblems is asked in turn.
        Script emblems("emblems");
        int added = 0;
        TeachShapes(emblems);
        for (const char* shape : {"shield", "wings"})
            emblems.Teach(shape, [](const Arguments&) { return QPainterPath(); });
        for (const char* coat : {"chrome", "gold", "enamel", "matte", "rays"})
            emblems.Teach(coat, [](const Arguments&) { return Value(); });
        emblems.Teach("add", [&added](const Arguments&) {
            ++added;
            return Value();
        });
        emblems.Set(u"marque"_s, u"Vollandry"_s);
        emblems.Set(u"year"_s, 2000);
        emblems.Run();
        QCOMPARE(added, 4); // body, field, bars and the winged T; the plate belongs to 1999
    }

    void what_is_not_there_is_refused()
    {
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, Script("no_such_drawing"));
        Script figures("figures");
        figures.Run();
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, figures.Get("prices"));
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, figures.Get("years").Number());
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, figures.Get("years").At(35));
    }
};

TORVIK_TEST(ScriptTest)
#include "script_test.moc"
