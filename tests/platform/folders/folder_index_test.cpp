#include "platform/folders/folder_index.h"
#include "support/discs/disc_folder.h"
#include "support/test_class.h"

using namespace torvik;
using namespace std::chrono_literals;

class FolderIndexTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_stamp_that_is_old_by_the_clock_is_settled()
    {
        FolderStamp stamp;
        stamp.written.tv_sec = stamp.altered.tv_sec = 1000;
        QVERIFY(IsSettled(stamp, 1010, 0ms));
        QVERIFY(!IsSettled(stamp, 1000, 0ms));
        QVERIFY(!IsSettled(stamp, 1002, 0ms)); // a medium may count in steps of two seconds
        QVERIFY(!IsSettled(stamp, 1003, 0ms)); // 999.999 and 1002.001 are so written too
        QVERIFY(IsSettled(stamp, 1004, 0ms));
    }

    void the_later_of_both_times_counts()
    {
        FolderStamp stamp;
        stamp.written.tv_sec = 10;
        stamp.altered.tv_sec = 1000;
        QVERIFY(!IsSettled(stamp, 1001, 0ms));
    }

    void a_stamp_of_the_future_settles_by_being_seen()
    {
        FolderStamp stamp;
        stamp.written.tv_sec = stamp.altered.tv_sec = 5000;
        QVERIFY(!IsSettled(stamp, 1000, 0ms));
        QVERIFY(!IsSettled(stamp, 1000, 2000ms));
        QVERIFY(IsSettled(stamp, 1000, 3000ms));
    }

    void an_index_of_a_folder_that_has_just_changed_holds_for_no_stamp()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("a"));
        const FolderIndex index(disc.Host(), nullptr);
        QVERIFY(!index.HoldsFor(*StampOf(disc.Host())));
    }

    void an_index_of_a_folder_at_rest_holds_for_its_own_stamp_alone()
    {
        const std::string folder = "/usr";
        const FolderIndex index(folder, nullptr);
        FolderStamp stamp = *StampOf(folder);
        QVERIFY(index.HoldsFor(stamp));
        ++stamp.written.tv_nsec;
        QVERIFY(!index.HoldsFor(stamp));
        --stamp.written.tv_nsec;
        ++stamp.number;
        QVERIFY(!index.HoldsFor(stamp));
    }

    void a_name_that_the_program_has_added_is_believed_for_the_moment()
    {
        const DiscFolder disc;
        FolderIndex index(disc.Host(), nullptr);
        QVERIFY(disc.File("New.txt"));
        index.Add(disc.Host(), "New.txt");
        QVERIFY(index.HoldsFor(*StampOf(disc.Host())));
        QCOMPARE(index.Find(disc.Host(), "NEW.TXT"), std::string("New.txt"));
    }

    void a_change_by_others_after_the_own_one_is_seen()
    {
        const DiscFolder disc;
        FolderIndex index(disc.Host(), nullptr);
        QVERIFY(disc.File("New.txt"));
        index.Add(disc.Host(), "New.txt");
        QVERIFY(disc.Folder("folder"));
        FolderStamp later = *StampOf(disc.Host());
        ++later.written.tv_nsec; // however coarse the clock of this file system is
        QVERIFY(!index.HoldsFor(later));
    }

    void a_folder_that_is_not_there_has_neither_stamp_nor_names()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("file"));
        QVERIFY(!StampOf(disc.Host("missing")));
        QVERIFY(!StampOf(disc.Host("file")));
        const FolderIndex index(disc.Host("missing"), nullptr);
        QCOMPARE(index.Find(disc.Host("missing"), "a"), std::string());
        QVERIFY(!index.HoldsFor(*StampOf(disc.Host())));
    }

    void of_several_spellings_the_first_in_binary_order_is_found()
    {
        const DiscFolder disc;
        for (const char* name : {"photo.jpg", "Photo.JPG", "PHOTO.jpg"})
            QVERIFY(disc.File(name));
        const FolderIndex index(disc.Host(), nullptr);
        QCOMPARE(index.Find(disc.Host(), "pHoTo.jPg"), std::string("PHOTO.jpg"));
    }

    void a_link_counts_while_it_leads_somewhere()
    {
        const DiscFolder disc;
        QVERIFY(disc.Link("target", "LINK"));
        QVERIFY(disc.File("link"));
        const FolderIndex index(disc.Host(), nullptr);
        QCOMPARE(index.Find(disc.Host(), "Link"), std::string("link"));
        QVERIFY(disc.File("target"));
        QCOMPARE(index.Find(disc.Host(), "Link"), std::string("LINK"));
    }
};

TORVIK_TEST(FolderIndexTest)
#include "folder_index_test.moc"
