#include "platform/folders/host_name.h"
#include "support/test_class.h"

#include <QSet>

using namespace Qt::StringLiterals;
using namespace torvik;

class HostNameTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void plain_names_are_themselves()
    {
        QCOMPARE(NameFromHost("67A.JPG"), u"67A.JPG"_s);
        QCOMPARE(NameToHost(u"67A.JPG"), std::string("67A.JPG"));
    }

    void utf8_names_come_and_go()
    {
        for (const char* name :
             {"Größe.jpg", "Ёлка.rtf", "日本.bmp", "\xF0\x9F\x9A\x97.jpg", "\xEF\xBF\xBD.jpg"}) {
            QCOMPARE(NameFromHost(name), QString::fromUtf8(name));
            QCOMPARE(NameToHost(QString::fromUtf8(name)), std::string(name));
        }
    }

    void every_pair_of_bytes_comes_back_and_has_a_text_of_its_own()
    {
        QSet<QString> texts;
        int count = 0;
        for (int first = 1; first < 256; ++first) {
            for (int second = 1; second < 256; ++second) {
                const std::string name{static_cast<char>(first), static_cast<char>(second)};
                const QString text = NameFromHost(name);
                QCOMPARE(NameToHost(text), name);
                texts.insert(text);
                ++count;
            }
        }
        QCOMPARE(texts.size(), count);
    }

    void invalid_utf8_comes_back_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("Latin-1") << QByteArray("Gr\xF6\xDF"
                                               "e.jpg");
        QTest::newRow("cut off") << QByteArray("a\xE2\x82");
        QTest::newRow("overlong slash") << QByteArray("\xC0\xAF");
        QTest::newRow("overlong, three") << QByteArray("\xE0\x80\xAF");
        QTest::newRow("overlong, four") << QByteArray("\xF0\x80\x80\xAF");
        QTest::newRow("surrogate") << QByteArray("\xED\xB2\x80");
        QTest::newRow("too high") << QByteArray("\xF4\x90\x80\x80");
        QTest::newRow("lone tail") << QByteArray("\x80\x80");
        QTest::newRow("the escapes themselves") << QByteArray("\xEF\x9C\x80\xEF\x9F\xBF");
        QTest::newRow("backslash") << QByteArray("a\\b");
        QTest::newRow("mixed") << QByteArray("\xC3\xA4\xFF\xC3\xA4");
    }
    void invalid_utf8_comes_back()
    {
        QFETCH(QByteArray, name);
        const QString text = NameFromHost(name.toStdString());
        QVERIFY(!text.contains(u'\\'));
        QVERIFY(!text.contains(QChar::ReplacementCharacter));
        QCOMPARE(NameToHost(text.toUpper().toLower()), NameToHost(text.toLower()));
        QCOMPARE(NameToHost(text), name.toStdString());
    }

    void the_stand_in_for_a_blank_names_the_same_file()
    {
        QString name = u"my data"_s;
        name.replace(u' ', standInBlank);
        QVERIFY(!name.contains(u' '));
        QCOMPARE(NameToHost(name), std::string("my data"));
        QCOMPARE(NameToHost(name.toUpper()), std::string("MY DATA"));
        QCOMPARE(NameFromHost("my data"), u"my data"_s);
        const std::string itself = QString(standInBlank).toStdString();
        QVERIFY(!NameFromHost(itself).contains(standInBlank));
        QCOMPARE(NameToHost(NameFromHost(itself)), itself);
    }

    void a_lone_surrogate_that_stands_for_nothing_does_not_crash()
    {
        QCOMPARE(NameToHost(QString(QChar(0xD800))), std::string("\xEF\xBF\xBD"));
        QCOMPARE(NameToHost(QString(QChar(0xDFFF))), std::string("\xEF\xBF\xBD"));
    }

    void a_path_keeps_its_backslashes()
    {
        QCOMPARE(HostText("/a\\b/\xFF"), u"/a\\b/"_s + QChar(0xF7FF));
        QCOMPARE(NameToHost(HostText("/a\\b/\xFF")), std::string("/a\\b/\xFF"));
    }

    void folding_brings_letter_cases_together_in_any_script()
    {
        QCOMPARE(FoldedName("67a.JpG"), FoldedName("67A.jPg"));
        QCOMPARE(FoldedName("größe"), FoldedName("GRÖßE"));
        QCOMPARE(FoldedName("ёлка"), FoldedName("ЁЛКА"));
        QCOMPARE(FoldedName("σίσυφος"), FoldedName("ΣΊΣΥΦΟΣ"));
        QVERIFY(FoldedName("a") != FoldedName("b"));
        QVERIFY(FoldedName("a") != FoldedName("ä"));
        QVERIFY(FoldedName("[") != FoldedName("{"));
        QVERIFY(FoldedName("@") != FoldedName("`"));
    }

    void a_name_that_was_turned_to_capitals_folds_to_the_same()
    {
        for (const char* name :
             {"straße.jpg", "ÿ.jpg", "ŉ.jpg", "ﬁn.jpg", "ıi.jpg", "a\xFFz.jpg", "a\\b.jpg"}) {
            const QString capitals = NameFromHost(name).toUpper();
            QVERIFY2(FoldedName(NameToHost(capitals)) == FoldedName(name), name);
        }
    }

    void bytes_that_are_no_text_do_not_fold_together()
    {
        QVERIFY(FoldedName("\xE4") != FoldedName("\xC4"));
        QVERIFY(FoldedName("\xE4") != FoldedName("ä"));
        QVERIFY(FoldedName("a\xE4") != FoldedName("a\xC4"));
    }
};

TORVIK_TEST(HostNameTest)
#include "host_name_test.moc"
