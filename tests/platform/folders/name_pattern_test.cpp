#include "platform/folders/name_pattern.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

class NamePatternTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void patterns_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<bool>("matches");
        struct Row {
            const char* pattern;
            const char* name;
            bool matches;
        };
        const Row rows[] = {
            {"*.jpg", "67A.jpg", true},
            {"*.jpg", "67A.JPG", true},
            {"*.JPG", "67a.jpg", true},
            {"*.jpg", ".jpg", true},
            {"*.jpg", "67A.jpeg", false},
            {"*.jpg", "67A.jpg.bak", false},
            {"*.jpg", "67Ajpg", false},
            {"*.jpg", "a.jpg.jpg", true},
            {"67*", "67", true},
            {"67*", "68A.JPG", false},
            {"??A.jpg", "67A.jpg", true},
            {"??A.jpg", "7A.jpg", false},
            {"?", "", false},
            {"*", "", true},
            {"", "", true},
            {"", "a", false},
            {"a*b*c", "aXXbYYc", true},
            {"a*b*c", "aXXcYYb", false},
            {"*a*", "bbabb", true},
            {"**", "x", true},
            {"*?*", "", false},
            {"67A.JPG", "67a.jpg", true},
            {"67A.JPG", "67a.jp", false},
            {"*.*", "README", true},
            {"*.*", "a.b", true},
            {"gr?n.jpg", "Grün.jpg", true},
            {"GRÜN.*", "grün.jpg", true},
            {"*ЁЛ*", "моя ёлка.jpg", true},
            {"?.jpg", "\xF0\x9F\x9A\x97.jpg", true},
            {"?.jpg", "\xFF.jpg", true},
            {"??.jpg", "\xFF.jpg", false},
            {"[a]*", "[a]b", true},
            {"[a]*", "ab", false},
            {"a?b", "a\\b", true},
        };
        for (const Row& row : rows)
            QTest::addRow("'%s' on '%s'", row.pattern, row.name)
                << QString::fromUtf8(row.pattern) << QByteArray(row.name) << row.matches;
    }
    void patterns()
    {
        QFETCH(QString, pattern);
        QFETCH(QByteArray, name);
        QFETCH(bool, matches);
        QCOMPARE(NamePattern(pattern).Matches(name.toStdString()), matches);
    }

    void many_stars_do_not_slow_a_match()
    {
        const QString pattern = u"*a"_s.repeated(120) + u"*b"_s;
        QVERIFY(!NamePattern(pattern).Matches(std::string(255, 'a')));
    }

    void wildcards_are_told()
    {
        QVERIFY(NamePattern::HasWildcards(u"*.jpg"));
        QVERIFY(NamePattern::HasWildcards(u"67?.jpg"));
        QVERIFY(!NamePattern::HasWildcards(u"67A.jpg"));
        QVERIFY(!NamePattern::HasWildcards(u""));
    }
};

TORVIK_TEST(NamePatternTest)
#include "name_pattern_test.moc"
