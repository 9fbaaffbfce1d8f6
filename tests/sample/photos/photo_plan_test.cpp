#include "sample/photos/captions.h"
#include "sample/photos/photo_plan.h"
#include "support/test_class.h"

#include <QRegularExpression>
#include <QSet>
#include <QtTest>

using namespace torvik::sample;
using namespace Qt::StringLiterals;

class PhotoPlanTest : public QObject {
    Q_OBJECT

private:
    std::vector<PlannedPhoto> plan_ = PlanPhotos();

    int CountOf(const QString& prefix) const
    {
        int count = 0;
        for (const PlannedPhoto& photo : plan_)
            count += photo.prefix == prefix ? 1 : 0;
        return count;
    }

private Q_SLOTS:
    void every_file_name_is_an_upper_case_8_3_name_that_begins_with_its_prefix()
    {
        const QRegularExpression name(u"^[0-9A-Z]{2}[A-Z]+[0-9]+\\.JPG$"_s);
        for (const PlannedPhoto& photo : plan_) {
            QVERIFY2(name.match(photo.file).hasMatch(), qPrintable(photo.file));
            QCOMPARE(photo.file.size(), 12);
            QCOMPARE(photo.file.left(2), photo.prefix);
        }
    }

    void no_two_photos_have_the_same_name()
    {
        QSet<QString> names;
        for (const PlannedPhoto& photo : plan_)
            names.insert(photo.file);
        QCOMPARE(static_cast<std::size_t>(names.size()), plan_.size());
    }

    void the_plan_is_in_the_order_of_the_names_and_numbers_each_group_from_one()
    {
        QString before;
        QString prefix;
        int number = 0;
        for (const PlannedPhoto& photo : plan_) {
            QVERIFY2(before < photo.file, qPrintable(photo.file));
            number = photo.prefix == prefix ? number + 1 : 1;
            QCOMPARE(photo.number, number);
            before = photo.file;
            prefix = photo.prefix;
        }
    }

    void the_years_come_before_the_topics_and_2000_after_1999()
    {
        QCOMPARE(PrefixOfYear(1967), u"67"_s);
        QCOMPARE(PrefixOfYear(1999), u"99"_s);
        QCOMPARE(PrefixOfYear(2000), u"A0"_s);
        QCOMPARE(PrefixOfYear(2001), u"A1"_s);
        QCOMPARE(plan_.front().prefix, u"67"_s);
        for (const Topic& topic : Topics())
            QVERIFY2(topic.prefix > PrefixOfYear(2001), qPrintable(topic.prefix));
    }

    void each_of_the_35_years_has_five_to_seven_photos()
    {
        QSet<int> counts;
        for (int year = 1967; year <= 2001; ++year) {
            const int count = CountOf(PrefixOfYear(year));
            QVERIFY2(count >= 5 && count <= 7, qPrintable(QString::number(year)));
            counts.insert(count);
        }
        QCOMPARE(counts.size(), 3);
    }

    void every_topic_has_at_least_three_photos_and_those_with_two_kinds_of_note_names_reach_both()
    {
        const QStringList expected = {"CW", "M1", "M3", "MS", "PT", "SB", "TD",
                                      "TE", "TF", "US", "VC", "VM", "ZZ"};
        QStringList found;
        for (const Topic& topic : Topics()) {
            found << topic.prefix;
            QVERIFY2(CountOf(topic.prefix) >= 3, qPrintable(topic.prefix));
        }
        QCOMPARE(found, expected);
        QVERIFY(CountOf(u"PT"_s) >= 6);
        QVERIFY(CountOf(u"M1"_s) >= 6);
    }

    void every_photo_has_a_caption_under_its_own_name()
    {
        QSet<QString> files;
        for (const PlannedPhoto& photo : plan_) {
            const Caption caption = CaptionOf(photo);
            QCOMPARE(caption.file, QString(photo.file.left(8).toLower() + u".rtf"_s));
            QVERIFY(caption.text.startsWith("{\\rtf1"));
            QCOMPARE(caption.text.count('{') - caption.text.count("\\{"),
                     caption.text.count('}') - caption.text.count("\\}"));
            QVERIFY2(caption.text.size() > 200, qPrintable(caption.file));
            files.insert(caption.file);
        }
        QCOMPARE(static_cast<std::size_t>(files.size()), plan_.size());
    }

    void notes_are_named_after_twice_the_number_of_the_photo()
    {
        QSet<QString> files;
        for (const Caption& note : PlanNotes())
            files.insert(note.file);
        for (const char* name :
             {"pt002.rtf", "pt008.rtf", "pt010.rtf", "pt012.rtf", "m1002.rtf", "m1008.rtf", "m1010.rtf",
              "glsj02.rtf", "glsj010.rtf", "vck002.rtf", "vms02.rtf", "vms010.rtf", "zz002.rtf", "zz010.rtf",
              "tek002.rtf", "tfm002.rtf", "tdm008.rtf", "tdm010.rtf"})
            QVERIFY2(files.contains(QString::fromLatin1(name)), name);
    }

    void the_cookies_have_no_notes()
    {
        for (const Caption& note : PlanNotes())
            QVERIFY2(!note.file.startsWith(u"usa"_s), qPrintable(note.file));
    }

    void notes_and_captions_never_share_a_name()
    {
        QSet<QString> files;
        for (const PlannedPhoto& photo : plan_)
            files.insert(CaptionOf(photo).file);
        for (const Caption& note : PlanNotes())
            QVERIFY2(!files.contains(note.file), qPrintable(note.file));
    }

    void unusual_pictures_are_there_one_large_one_upright_and_one_stored_on_its_side()
    {
        int large = 0;
        int upright = 0;
        int turned = 0;
        for (const PlannedPhoto& photo : plan_) {
            const bool portrait = photo.size.height() > photo.size.width();
            large += photo.size == QSize(4000, 3000) && photo.year == 1985 ? 1 : 0;
            upright += portrait && photo.storing == Storing::Upright ? 1 : 0;
            turned += portrait && photo.storing == Storing::TurnedWithTag ? 1 : 0;
            QVERIFY(photo.size.width() >= 900 && photo.size.height() >= 776);
        }
        QCOMPARE(large, 1);
        QCOMPARE(upright, 1);
        QCOMPARE(turned, 1);
    }
};

TORVIK_APPLESS_TEST(PhotoPlanTest)
#include "photo_plan_test.moc"
