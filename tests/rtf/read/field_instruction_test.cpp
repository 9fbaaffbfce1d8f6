#include "rtf/read/field_instruction.h"
#include "support/test_class.h"

using namespace torvik::rtf;

class FieldInstructionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_link_gives_its_address()
    {
        QCOMPARE(ReadInstruction(QStringLiteral(" HYPERLINK \"http://www.torvik.example/a b\" \\o \"tip\""))
                     .target,
                 QStringLiteral("http://www.torvik.example/a%20b"));
        QCOMPARE(ReadInstruction(QStringLiteral("hyperlink mailto:club@torvik.example")).target,
                 QStringLiteral("mailto:club@torvik.example"));
    }

    void other_addresses_are_not_followed()
    {
        for (const char* address : {"file:///etc/passwd", "javascript:alert(1)", "ftp://a.example/",
                                    "C:\\\\x.exe", "notes.rtf", "http:", "data:text/html,x"})
            QVERIFY2(ReadInstruction(QStringLiteral("HYPERLINK \"%1\"").arg(QLatin1StringView(address)))
                         .target.isEmpty(),
                     address);
    }

    void a_link_inside_the_document_names_its_bookmark()
    {
        QCOMPARE(ReadInstruction(QStringLiteral("HYPERLINK \\l \"wheels\"")).target,
                 QStringLiteral("#wheels"));
    }

    void a_place_on_a_page_belongs_to_its_address()
    {
        QCOMPARE(ReadInstruction(QStringLiteral("HYPERLINK \"http://www.torvik.example/67\" \\l \"wheels\""))
                     .target,
                 QStringLiteral("http://www.torvik.example/67#wheels"));
        QVERIFY(ReadInstruction(QStringLiteral("HYPERLINK \"notes.rtf\" \\l \"wheels\"")).target.isEmpty());
    }

    void a_symbol_gives_character_and_font()
    {
        const FieldInstruction read = ReadInstruction(QStringLiteral("SYMBOL 183 \\f \"Symbol\" \\s 10"));
        QCOMPARE(read.symbol, U'\u00b7');
        QCOMPARE(read.symbolFont, QStringLiteral("Symbol"));
        QVERIFY(ReadInstruction(QStringLiteral("SYMBOL 55296")).symbol == 0);
    }

    void other_fields_ask_for_nothing()
    {
        QVERIFY(ReadInstruction(QStringLiteral("PAGE \\* MERGEFORMAT")).target.isEmpty());
        QVERIFY(ReadInstruction(QString()).target.isEmpty());
    }
};

TORVIK_GUILESS_TEST(FieldInstructionTest)
#include "field_instruction_test.moc"
