#include "platform/folders/case_insensitive_lookup.h"
#include "support/discs/disc_folder.h"
#include "support/failure_of.h"
#include "support/test_class.h"

using namespace torvik;

class PathLookupTest : public QObject {
    Q_OBJECT

    static std::string Find(const DiscFolder& disc, const std::string& path)
    {
        const std::string found = SpellingOnHost(disc.Host(), disc.Host(path));
        return found.substr(disc.Host().size() + 1);
    }

private Q_SLOTS:
    void init() { ForgetFolders(); }

    void letter_case_is_ignored_in_every_component()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("Torviks") && disc.Folder("Torviks/Sub") && disc.File("Torviks/Sub/67a.Jpg"));
        for (const char* path : {"Torviks/Sub/67a.Jpg", "TORVIKS/Sub/67a.Jpg", "torviks/SUB/67A.JPG",
                                 "Torviks/Sub/67A.JPG", "Torviks/sub/67a.Jpg"})
            QCOMPARE(Find(disc, path), std::string("Torviks/Sub/67a.Jpg"));
    }

    void the_exact_name_wins()
    {
        const DiscFolder disc;
        for (const char* name : {"a.jpg", "A.jpg", "A.JPG"})
            QVERIFY(disc.File(name));
        for (const char* name : {"a.jpg", "A.jpg", "A.JPG"})
            QCOMPARE(Find(disc, name), std::string(name));
        QCOMPARE(Find(disc, "a.JPG"), std::string("A.JPG"));
    }

    void the_exact_folder_wins_even_when_the_file_is_in_the_other()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("Sub") && disc.Folder("SUB") && disc.File("SUB/a.jpg"));
        QCOMPARE(Find(disc, "Sub/a.jpg"), std::string("Sub/a.jpg"));
        QCOMPARE(Find(disc, "sub/A.JPG"), std::string("SUB/a.jpg"));
    }

    void what_does_not_exist_stays_as_written()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("Torviks"));
        QCOMPARE(Find(disc, "TORVIKS/New.JPG"), std::string("Torviks/New.JPG"));
        QCOMPARE(Find(disc, "TORVIKS/New/Deep.JPG"), std::string("Torviks/New/Deep.JPG"));
        QCOMPARE(Find(disc, "Nothing/New.JPG"), std::string("Nothing/New.JPG"));
    }

    void below_a_file_nothing_exists()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("File.txt"));
        QCOMPARE(Find(disc, "FILE.TXT/a"), std::string("File.txt/a"));
    }

    void links_are_followed_and_a_dangling_one_does_not_exist()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("real") && disc.File("real/a.jpg") && disc.Link("real", "Photos"));
        QCOMPARE(Find(disc, "PHOTOS/A.JPG"), std::string("Photos/a.jpg"));
        QVERIFY(disc.Link("gone", "B.JPG") && disc.File("b.jpg"));
        QCOMPARE(Find(disc, "B.JPG"), std::string("b.jpg"));
        QVERIFY(disc.Link("c.jpg", "C.JPG") && disc.Link("C.JPG", "c.jpg"));
        QCOMPARE(Find(disc, "C.jpg"), std::string("C.jpg"));
    }

    void a_change_of_the_folder_is_seen_at_once()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("a.jpg"));
        QCOMPARE(Find(disc, "A.JPG"), std::string("a.jpg"));
        QVERIFY(disc.File("A.jpg"));
        QCOMPARE(Find(disc, "A.JPG"), std::string("A.jpg"));
        QVERIFY(disc.Remove("A.jpg") && disc.Remove("a.jpg"));
        QCOMPARE(Find(disc, "A.JPG"), std::string("A.JPG"));
        QVERIFY(disc.File("a.JPG"));
        QCOMPARE(Find(disc, "A.JPG"), std::string("a.JPG"));
    }

    void a_folder_that_was_renamed_is_found_again()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("Torviks") && disc.File("Torviks/a.jpg"));
        QCOMPARE(Find(disc, "TORVIKS/A.JPG"), std::string("Torviks/a.jpg"));
        QCOMPARE(rename(disc.Host("Torviks").c_str(), disc.Host("torvikS").c_str()), 0);
        QCOMPARE(Find(disc, "TORVIKS/A.JPG"), std::string("torvikS/a.jpg"));
    }

    void names_that_the_program_made_itself_are_found()
    {
        const DiscFolder disc;
        for (int i = 0; i < 300; ++i) {
            const std::string name = "Copy" + std::to_string(i) + ".jpg";
            QCOMPARE(Find(disc, name), name);
            QVERIFY(disc.File(name));
            NameAdded(disc.Host(name));
            QCOMPARE(Find(disc, "COPY" + std::to_string(i) + ".JPG"), name);
        }
    }

    void hostile_names_are_found_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("blanks") << QByteArray("  My Photo .jpg ") << QByteArray("  MY photo .JPG ");
        QTest::newRow("umlauts") << QByteArray("Größe.jpg") << QByteArray("GRÖSSE.JPG");
        QTest::newRow("Cyrillic") << QByteArray("Ёлка.jpg") << QByteArray("ёЛКА.jpg");
        QTest::newRow("255 bytes") << QByteArray(255, 'a') << QByteArray(255, 'A');
        QTest::newRow("no UTF-8") << QByteArray("f\xFC\xFF.jpg") << QByteArray("F\xFC\xFF.JPG");
        QTest::newRow("backslash") << QByteArray("a\\b.jpg") << QByteArray("A\\B.JPG");
        QTest::newRow("line end") << QByteArray("a\nb.jpg") << QByteArray("A\nB.JPG");
    }
    void hostile_names_are_found()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, written);
        const DiscFolder disc;
        QVERIFY(disc.File(name.toStdString()));
        QCOMPARE(Find(disc, written.toStdString()), name.toStdString());
    }

    void a_name_too_long_for_any_file_stays_as_written()
    {
        const DiscFolder disc;
        const std::string name(256, 'a');
        QCOMPARE(Find(disc, name), name);
        const std::string path = "b/" + std::string(9000, 'a');
        QCOMPARE(Find(disc, path), path);
    }

    void a_root_that_is_gone_is_no_device()
    {
        DiscFolder disc;
        QVERIFY(disc.File("a.jpg"));
        QCOMPARE(Find(disc, "A.JPG"), std::string("a.jpg"));
        disc.Vanish();
        QCOMPARE(FailureOf([&] { Find(disc, "A.JPG"); }), failure::deviceUnavailable);
        QCOMPARE(FailureOf([&] { Find(disc, "a.jpg"); }), failure::deviceUnavailable);
        QCOMPARE(FailureOf([&] { Find(disc, "Sub/Deep/a.jpg"); }), failure::deviceUnavailable);
        QCOMPARE(FailureOf([&] { SpellingOnHost(disc.Host(), disc.Host()); }), failure::deviceUnavailable);
    }

    void the_root_of_the_host_is_the_empty_text()
    {
        QCOMPARE(SpellingOnHost({}, "/USR"), std::string("/usr"));
        QCOMPARE(SpellingOnHost({}, {}), std::string());
    }

    void thirty_thousand_files_are_found_in_any_case()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("Torviks"));
        const auto name = [](const char* stem, int i, const char* end) {
            return stem + std::to_string(i) + end;
        };
        for (int i = 0; i < 30000; ++i)
            QVERIFY(disc.File(name("Torviks/Tor", i, ".jpg")));
        for (const int i : {0, 1, 12345, 29999})
            QCOMPARE(Find(disc, name("TORVIKS/TOR", i, ".JPG")), name("Torviks/Tor", i, ".jpg"));
        QCOMPARE(Find(disc, "TORVIKS/TOR30000.JPG"), std::string("Torviks/TOR30000.JPG"));
    }
};

TORVIK_TEST(PathLookupTest)
#include "case_insensitive_lookup_test.moc"
