#include "rtf/read/tokenizer.h"
#include "support/test_class.h"

using namespace torvik::rtf;

class TokenizerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_word_takes_its_number_and_one_blank()
    {
        Tokenizer tokens("\\fs24  x");
        const Token word = tokens.Next();
        QVERIFY(word.kind == TokenKind::Word);
        QVERIFY(word.text == "fs");
        QVERIFY(word.hasValue);
        QCOMPARE(word.value, 24);
        const Token text = tokens.Next();
        QVERIFY(text.kind == TokenKind::Text);
        QVERIFY(text.text == " x");
        QVERIFY(tokens.Next().kind == TokenKind::End);
        QVERIFY(tokens.Next().kind == TokenKind::End);
    }

    void a_number_may_be_negative()
    {
        Tokenizer tokens("\\fi-720\\b");
        QCOMPARE(tokens.Next().value, -720);
        QVERIFY(!tokens.Next().hasValue);
    }

    void a_minus_without_digits_is_text()
    {
        Tokenizer tokens("\\li-x");
        QVERIFY(!tokens.Next().hasValue);
        QVERIFY(tokens.Next().text == "-x");
    }

    void a_number_beyond_all_bounds_stays_in_bounds()
    {
        QCOMPARE(Tokenizer("\\li99999999999999999999").Next().value, 2147483647);
        QCOMPARE(Tokenizer("\\li-99999999999999999999").Next().value, -2147483647);
    }

    void line_ends_between_words_mean_nothing()
    {
        Tokenizer tokens("a\r\nb");
        QVERIFY(tokens.Next().text == "a");
        QVERIFY(tokens.Next().text == "b");
    }

    void an_escaped_line_end_is_one_symbol()
    {
        Tokenizer tokens("\\\r\nb");
        QCOMPARE(tokens.Next().symbol, '\n');
        QVERIFY(tokens.Next().text == "b");
    }

    void bytes_that_nobody_prints_are_passed_over()
    {
        Tokenizer tokens({"a\x01\r\nb\0\x1b\\par\x1a", 12});
        QVERIFY(tokens.Next().text == "a");
        QVERIFY(tokens.Next().text == "b");
        QVERIFY(tokens.Next().text == "par");
        QVERIFY(tokens.Next().kind == TokenKind::End);
    }

    void hexadecimal_bytes_are_read_and_broken_ones_are_marked()
    {
        Tokenizer tokens("\\'e9\\'4zx\\'");
        const Token good = tokens.Next();
        QVERIFY(good.kind == TokenKind::Hex && good.hasValue);
        QCOMPARE(good.value, 0xe9);
        QVERIFY(!tokens.Next().hasValue);
        QVERIFY(tokens.Next().text == "x");
        QVERIFY(!tokens.Next().hasValue);
    }

    void raw_bytes_are_passed_whatever_they_are()
    {
        Tokenizer tokens("\\bin4 {}\\}x");
        const Token binary = tokens.Next();
        QVERIFY(binary.kind == TokenKind::Binary);
        QVERIFY(binary.text == "{}\\}");
        QVERIFY(tokens.Next().text == "x");
    }

    void more_raw_bytes_than_there_are_end_with_the_file()
    {
        Tokenizer tokens("\\bin2000000000 abc");
        QVERIFY(tokens.Next().text == "abc");
        QVERIFY(tokens.Next().kind == TokenKind::End);
    }

    void a_negative_count_of_raw_bytes_is_none()
    {
        Tokenizer tokens("\\bin-5 abc");
        QVERIFY(tokens.Next().text.empty());
        QVERIFY(tokens.Next().text == "abc");
    }

    void a_skipped_group_ends_at_its_own_brace()
    {
        Tokenizer tokens("a{b\\}}\\bin1 }c}d");
        QVERIFY(tokens.SkipGroup());
        QVERIFY(tokens.Next().text == "d");
    }

    void skipping_past_the_end_is_told()
    {
        Tokenizer tokens("a{b}");
        QVERIFY(!tokens.SkipGroup());
    }

    void a_lone_backslash_at_the_end_is_the_end() { QVERIFY(Tokenizer("\\").Next().kind == TokenKind::End); }
};

TORVIK_GUILESS_TEST(TokenizerTest)
#include "tokenizer_test.moc"
