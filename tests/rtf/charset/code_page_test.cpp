#include "rtf/charset/code_page.h"
#include "support/test_class.h"

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

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
        QTest::newRow("Central European") << 1250 << QByteArray("\xb3\xf3\xbf") << u"łóż"_s;
        QTest::newRow("Cyrillic") << 1251 << QByteArray("\xcf\xf0\xe8") << u"При"_s;
        QTest::newRow("Western") << 1252 << QByteArray("caf\xe9 \x80\x97") << u"café €—"_s;
        QTest::newRow("Greek") << 1253 << QByteArray("\xc1\xe2\xe3") << u"Αβγ"_s;
        QTest::newRow("Turkish") << 1254 << QByteArray("\xdd\xfe\xf0") << u"İşğ"_s;
        QTest::newRow("Hebrew") << 1255 << QByteArray("\xf9\xec") << u"של"_s;
        QTest::newRow("Arabic") << 1256 << QByteArray("\xd3\xc7") << u"سا"_s;
        QTest::newRow("Baltic") << 1257 << QByteArray("\xe0\xf0") << u"ąš"_s;
        QTest::newRow("Vietnamese") << 1258 << QByteArray("\xf5\xd0") << u"ơĐ"_s;
        QTest::newRow("PC") << 437 << QByteArray("\x82\xc9\xe1") << u"é╔ß"_s;
        QTest::newRow("PC, western") << 850 << QByteArray("\x9b\xd2") << u"øÊ"_s;
        QTest::newRow("Macintosh") << 10000 << QByteArray("\x8e\x8a\xa5") << u"éä•"_s;
        QTest::newRow("Thai") << 874 << QByteArray("\xa1\xd2") << u"กา"_s;
        QTest::newRow("Japanese") << 932 << QByteArray("\x93\xfa\x96\x7b\xb1") << u"日本ｱ"_s;
        QTest::newRow("Chinese, simplified") << 936 << QByteArray("\xd6\xd0\xb9\xfa") << u"中国"_s;
        QTest::newRow("Korean") << 949 << QByteArray("\xc7\xd1\xb1\xdb") << u"한글"_s;
        QTest::newRow("Chinese, traditional") << 950 << QByteArray("\xa4\xa4\xb0\xea") << u"中國"_s;
        QTest::newRow("Unicode") << 65001 << QByteArray("\xe2\x82\xac") << u"€"_s;
    }
    void every_page_shows_its_own_letters()
    {
        QFETCH(int, page);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        QCOMPARE(Decode(page, bytes), text);
    }

    void an_unknown_page_is_the_western_one() { QCOMPARE(Decode(4711, "\xe9"), u"é"_s); }

    void half_a_character_becomes_the_replacement() { QCOMPARE(Decode(932, "a\x93"), u"a\ufffd"_s); }

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
