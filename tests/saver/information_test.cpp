#include "saver/information.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// What the saver tells of itself.
class InformationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void it_names_folder_delay_and_the_way_to_change_them()
    {
        QCOMPARE(InformationText({15000, u"C:\\opt\\torvik\\ssTorviks\\"_s}),
                 u"The Torvik Vollandry Screen Saver\r\n\r\n"
                 "Photos:  C:\\opt\\torvik\\ssTorviks\\\r\n"
                 "Delay:  15 seconds\r\n\r\n"
                 "To choose other photos or another delay, start The Torvik Vollandry 2001\r\n"
                 "and select Install Screen saver under the File menu.\r\n\r\n"
                 "To see the photos now, start Torvik2001.scr with /s."_s);
    }

    void a_folder_that_was_never_chosen_and_a_single_second_have_words_of_their_own()
    {
        const QString text = InformationText({1000, QString()});
        QVERIFY(text.contains(u"Photos:  none chosen yet\r\nDelay:  1 second\r\n"_s));
    }
};

TORVIK_APPLESS_TEST(InformationTest)
#include "information_test.moc"
