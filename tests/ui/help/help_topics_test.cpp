#include "rtf/rtf_reader.h"
#include "support/test_class.h"
#include "ui/help/help_topics.h"

#include <QTextDocument>

using namespace Qt::StringLiterals;
using namespace torvik;

/// The topics of a help file.
class HelpTopicsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void headings_with_a_bookmark_are_topics()
    {
        QTextDocument document;
        rtf::ReadRichText(
            "{\\rtf1 {\\*\\bkmkstart start}\\b The start{\\*\\bkmkend start}\\b0\\par Words.\\par "
            "{\\*\\bkmkstart start-keys}Its keys{\\*\\bkmkend start-keys}\\par More words.\\par "
            "{\\*\\bkmkstart print}Printing{\\*\\bkmkend print}\\par}",
            document);
        const std::vector<HelpTopic> topics = TopicsOf(document);
        QCOMPARE(topics.size(), std::size_t{3});
        QCOMPARE(topics[0].anchor, u"start"_s);
        QCOMPARE(topics[0].title, u"The start"_s);
        QCOMPARE(topics[0].level, 1);
        QCOMPARE(topics[1].anchor, u"start-keys"_s);
        QCOMPARE(topics[1].title, u"Its keys"_s);
        QCOMPARE(topics[1].level, 2);
        QCOMPARE(topics[2].title, u"Printing"_s);
        QCOMPARE(topics[2].level, 1);
    }

    void a_text_without_bookmarks_has_none()
    {
        QTextDocument document;
        rtf::ReadRichText("{\\rtf1 Words.\\par More.\\par}", document);
        QVERIFY(TopicsOf(document).empty());
        QVERIFY(TopicsOf(QTextDocument()).empty());
    }
};

TORVIK_TEST(HelpTopicsTest)
#include "help_topics_test.moc"
