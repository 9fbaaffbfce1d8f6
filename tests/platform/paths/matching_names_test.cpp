#include "platform/paths/matching_names.h"
#include "support/discs/disc_folder.h"
#include "support/test_class.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace torvik;

class MatchingNamesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void every_spelling_of_a_name_is_there_with_the_folder_of_the_host()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("Torviks"));
        for (const char* name : {"a.jpg", "A.JPG", "b.jpg", "c.rtf"})
            QVERIFY(disc.File(std::string("Torviks/") + name));
        MatchingNames matching = NamesMatching(u"E:\\TORVIKS\\*.Jpg"_s);
        QCOMPARE(matching.folder.path, std::string("/Torviks"));
        std::sort(matching.names.begin(), matching.names.end());
        QCOMPARE(matching.names, (std::vector<std::string>{"A.JPG", "a.jpg", "b.jpg"}));
    }

    void a_missing_folder_has_none()
    {
        const DiscFolder disc;
        QVERIFY(NamesMatching(u"E:\\none\\*.jpg"_s).names.empty());
    }

    void the_name_begins_after_the_last_backslash_or_slash()
    {
        QCOMPARE(BeginOfName(u"E:\\a\\b.jpg"_s), 5);
        QCOMPARE(BeginOfName(u"E:\\a/b.jpg"_s), 5);
        QCOMPARE(BeginOfName(u"b.jpg"_s), 0);
    }
};

TORVIK_TEST(MatchingNamesTest)
#include "matching_names_test.moc"
