#include "rtf/fields/field_instruction.h"
#include "support/test_class.h"

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

class FieldInstructionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_link_gives_its_address()
    {
        QCOMPARE(ReadInstruction(u" HYPERLINK \"http://www.torvik.example/a b\" \\o \"tip\""_s).target,
                 u"http://www.torvik.example/a%20b"_s);
        QCOMPARE(ReadInstruction(u"hyperlink mailto:club@torvik.example"_s).target,
                 u"mailto:club@torvik.example"_s);
    }

    void other_addresses_are_not_followed()
    {
        for (const char* address : {"file:///etc/passwd", "javascript:alert(1)", "ftp://a.example/",
                                    "C:\\\\x.exe", "notes.rtf", "http:", "data:text/html,x"})
            QVERIFY2(ReadInstruction(u"HYPERLINK \"%1\""_s.arg(QLatin1StringView(address))).target.isEmpty(),
                     address);
    }

    void a_link_inside_the_document_names_its_bookmark()
    {
        QCOMPARE(ReadInstruction(u"HYPERLINK \\l \"wheels\""_s).target, u"#wheels"_s);
    }

    void a_place_on_a_page_belongs_to_its_address()
    {
        QCOMPARE(ReadInstruction(u"HYPERLINK \"http://www.torvik.example/67\" \\l \"wheels\""_s).target,
                 u"http://www.torvik.example/67#wheels"_s);
        QVERIFY(ReadInstruction(u"HYPERLINK \"notes.rtf\" \\l \"wheels\""_s).target.isEmpty());
    }

    void a_symbol_gives_character_and_font()
    {
        const FieldInstruction read = ReadInstruction(u"SYMBOL 183 \\f \"Symbol\" \\s 10"_s);
        QCOMPARE(read.symbol, U'\u00b7');
        QCOMPARE(read.symbolFont, u"Symbol"_s);
        QVERIFY(ReadInstruction(u"SYMBOL 55296"_s).symbol == 0);
    }

    void other_fields_ask_for_nothing()
    {
        QVERIFY(ReadInstruction(u"PAGE \\* MERGEFORMAT"_s).target.isEmpty());
        QVERIFY(ReadInstruction(QString()).target.isEmpty());
    }
};

TORVIK_GUILESS_TEST(FieldInstructionTest)
#include "field_instruction_test.moc"
