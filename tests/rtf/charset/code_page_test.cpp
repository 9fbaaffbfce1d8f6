#include "rtf/charset/code_page.h"
#include "support/test_class.h"

using namespace torvik::rtf;

class CodePageTest : public QObject {
    Q_OBJECT

    static QString Decode(int page, const QByteArray& bytes)
    {
        QString text;
        CodePage::Of(page).Decode({bytes.constData(), static_cast<std::size_t>(bytes.size())}, text);
        return text;
    }

private Q_SLOTS:
    void every_page_shows_its_own_letters_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("Central European") << 1250 << QByteArray("\xb3\xf3\xbf") << QStringLiteral("łóż");
        QTest::newRow("Cyrillic") << 1251 << QByteArray("\xcf\xf0\xe8") << QStringLiteral("При");
        QTest::newRow("Western") << 1252 << QByteArray("caf\xe9 \x80\x97") << QStringLiteral("café €—");
        QTest::newRow("Greek") << 1253 << QByteArray("\xc1\xe2\xe3") << QStringLiteral("Αβγ");
        QTest::newRow("Turkish") << 1254 << QByteArray("\xdd\xfe\xf0") << QStringLiteral("İşğ");
        QTest::newRow("Hebrew") << 1255 << QByteArray("\xf9\xec") << QStringLiteral("של");
        QTest::newRow("Arabic") << 1256 << QByteArray("\xd3\xc7") << QStringLiteral("سا");
        QTest::newRow("Baltic") << 1257 << QByteArray("\xe0\xf0") << QStringLiteral("ąš");
        QTest::newRow("Vietnamese") << 1258 << QByteArray("\xf5\xd0") << QStringLiteral("ơĐ");
        QTest::newRow("PC") << 437 << QByteArray("\x82\xc9\xe1") << QStringLiteral("é╔ß");
        QTest::newRow("PC, western") << 850 << QByteArray("\x9b\xd2") << QStringLiteral("øÊ");
        QTest::newRow("Macintosh") << 10000 << QByteArray("\x8e\x8a\xa5") << QStringLiteral("éä•");
        QTest::newRow("Thai") << 874 << QByteArray("\xa1\xd2") << QStringLiteral("กา");
        QTest::newRow("Japanese") << 932 << QByteArray("\x93\xfa\x96\x7b\xb1") << QStringLiteral("日本ｱ");
        QTest::newRow("Chinese, simplified")
            << 936 << QByteArray("\xd6\xd0\xb9\xfa") << QStringLiteral("中国");
        QTest::newRow("Korean") << 949 << QByteArray("\xc7\xd1\xb1\xdb") << QStringLiteral("한글");
        QTest::newRow("Chinese, traditional")
            << 950 << QByteArray("\xa4\xa4\xb0\xea") << QStringLiteral("中國");
        QTest::newRow("Unicode") << 65001 << QByteArray("\xe2\x82\xac") << QStringLiteral("€");
    }
    void every_page_shows_its_own_letters()
    {
        QFETCH(int, page);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        QCOMPARE(Decode(page, bytes), text);
    }

    void an_unknown_page_is_the_western_one() { QCOMPARE(Decode(4711, "\xe9"), QStringLiteral("é")); }

    void half_a_character_becomes_the_replacement()
    {
        QCOMPARE(Decode(932, "a\x93"), QStringLiteral("a\ufffd"));
    }

    void character_sets_name_their_pages()
    {
        QCOMPARE(CodePage::NumberForCharset(204), 1251);
        QCOMPARE(CodePage::NumberForCharset(128), 932);
        QCOMPARE(CodePage::NumberForCharset(77), 10000);
        QCOMPARE(CodePage::NumberForCharset(1), 0);
    }
};

TORVIK_GUILESS_TEST(CodePageTest)
#include "code_page_test.moc"
