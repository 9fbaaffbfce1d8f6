#include "platform/paths/program_folder.h"
#include "program/photo_list.h"
#include "program/program_state.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/program_end.h"
#include "windows/main_window.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace torvik;

/// The sorted list of all photos.
class PhotoListTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        state.PhotoRoot = u"G:"_s;
    }
    void cleanup() { program_.reset(); }

    void names_are_upper_cased_and_the_folder_is_spelled_its_own_way()
    {
        program_->disc.AddFile(u"TORVIKS/67a.jpg"_s, "x");
        program_->disc.AddFile(u"TORVIKS/68Bb.JpG"_s, "x");
        BuildPhotoSet();
        QCOMPARE(int(state.PhotoCount), 2);
        QCOMPARE(state.PhotoFiles(1), u"G:\\Torviks\\67A.JPG"_s);
        QCOMPARE(state.PhotoFiles(2), u"G:\\Torviks\\68BB.JPG"_s);
    }

    void one_empty_element_follows_the_last_photo()
    {
        program_->disc.AddGroup(u"67"_s, 3);
        BuildPhotoSet();
        QCOMPARE(state.PhotoFiles.Count(), 4);
        QCOMPARE(state.PhotoNumbers.Count(), 4);
        QCOMPARE(state.PhotoFiles(4), QString());
        QCOMPARE(int(state.PhotoIndex), 4);
    }

    void years_come_first_then_2000_and_2001_then_the_topics()
    {
        for (const char* prefix : {"ZZ", "A1", "99", "CW", "67", "VM", "A0", "M1"})
            program_->disc.AddGroup(QString::fromLatin1(prefix), 1);
        BuildPhotoSet();
        QStringList prefixes;
        for (int index = 1; index <= state.PhotoCount; ++index)
            prefixes.append(state.PhotoFiles(index).mid(11, 2));
        QCOMPARE(prefixes.join(u' '), u"67 99 A0 A1 CW M1 VM ZZ"_s);
    }

    void each_group_is_numbered_from_1()
    {
        program_->disc.AddGroup(u"67"_s, 3);
        program_->disc.AddGroup(u"68"_s, 2);
        BuildPhotoSet();
        QStringList numbers;
        for (int index = 1; index <= state.PhotoCount; ++index)
            numbers.append(state.PhotoNumbers(index));
        QCOMPARE(numbers.join(u' '), u"1 2 3 1 2"_s);
    }

    void the_first_photo_is_number_1_even_when_the_last_run_ended_on_its_group()
    {
        program_->disc.AddGroup(u"67"_s, 2);
        BuildPhotoSet();
        BuildPhotoSet();
        QCOMPARE(state.PreviousPrefix, u"67"_s);
        QCOMPARE(state.PhotoNumbers(1), u"1"_s);
        QCOMPARE(state.PhotoNumbers(2), u"2"_s);
    }

    void a_smaller_folder_leaves_nothing_of_the_larger_one()
    {
        program_->disc.AddGroup(u"67"_s, 5);
        BuildPhotoSet();
        program_->disc.Remove(u"Torviks/67D.JPG"_s);
        program_->disc.Remove(u"Torviks/67E.JPG"_s);
        BuildPhotoSet();
        QCOMPARE(int(state.PhotoCount), 3);
        QCOMPARE(state.PhotoFiles.Count(), 4);
        QCOMPARE(state.PhotoFiles(4), QString());
    }

    void only_photos_count()
    {
        program_->disc.AddGroup(u"67"_s, 1);
        program_->disc.AddFile(u"Torviks/67B.BMP"_s, "x");
        program_->disc.AddFile(u"Torviks/THUMBS.DB"_s, "x");
        program_->disc.AddFile(u"Torviks/folder.jpg/inside.txt"_s, "x");
        BuildPhotoSet();
        QCOMPARE(int(state.PhotoCount), 1);
    }

    void odd_names_are_kept()
    {
        program_->disc.AddFile(u"Torviks/67 long name with blanks.jpg"_s, "x");
        program_->disc.AddFile(u"Torviks/67ährenfeld.jpg"_s, "x");
        program_->disc.AddFile(u"Torviks/67снег.jpg"_s, "x");
        BuildPhotoSet();
        QCOMPARE(int(state.PhotoCount), 3);
        QCOMPARE(state.PhotoFiles(1), u"G:\\Torviks\\67 LONG NAME WITH BLANKS.JPG"_s);
        QCOMPARE(state.PhotoFiles(2), u"G:\\Torviks\\67ÄHRENFELD.JPG"_s);
        QCOMPARE(state.PhotoFiles(3), u"G:\\Torviks\\67СНЕГ.JPG"_s);
    }

    void names_that_clash_by_case_are_one_photo()
    {
        program_->disc.AddFile(u"Torviks/67a.jpg"_s, "x");
        program_->disc.AddFile(u"Torviks/67A.JPG"_s, "x");
        BuildPhotoSet();
        QCOMPARE(int(state.PhotoCount), 1);
    }

    void copies_beside_the_program_are_listed_by_its_folder()
    {
        program_->AddToProgramFolder(u"Torviks/67A.JPG"_s, "x");
        state.PhotoRoot = ProgramFolder();
        BuildPhotoSet();
        QCOMPARE(state.PhotoFiles(1), ProgramFolder() + u"\\Torviks\\67A.JPG"_s);
    }

    void an_empty_folder_keeps_the_count_and_says_nothing()
    {
        program_->disc.AddGroup(u"67"_s, 2);
        BuildPhotoSet();
        program_->disc.Remove(u"Torviks"_s);
        BuildPhotoSet();
        QCOMPARE(int(state.PhotoCount), 2);
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    void a_drive_that_is_gone_is_reported_and_retried_at_the_listing()
    {
        program_->disc.AddGroup(u"67"_s, 2);
        program_->PutDiscIn({});
        program_->messages.Answer(msgbox::answerRetry);
        program_->messages.Answer(msgbox::answerRetry);
        program_->messages.WhenAsked(
            [this] { program_->messages.WhenAsked([this] { program_->PutDiscIn(u'G'); }); });
        BuildPhotoSet();
        QCOMPARE(program_->messages.Count(), 2);
        QCOMPARE(program_->messages.Last().text,
                 u"Error number: ER037\r\n\r\n Unable to load the photo array.\r\n\r\n"
                 "Make sure that the Torvik Vollandry is in the CDROM drive."_s);
        QCOMPARE(program_->messages.Last().style, 5);
        QCOMPARE(int(state.PhotoCount), 2);
    }

    void cancel_ends_the_program()
    {
        program_->PutDiscIn({});
        bool ended = false;
        try {
            BuildPhotoSet();
        } catch (const ProgramEnd&) {
            ended = true;
        }
        QVERIFY(ended);
    }

    void the_list_holds_32766_photos_and_its_empty_element()
    {
        AddMany(32766);
        BuildPhotoSet();
        QCOMPARE(int(state.PhotoCount), 32766);
        QCOMPARE(int(state.PhotoIndex), 32767);
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    void more_photos_overflow_the_index_and_are_reported()
    {
        AddMany(32768);
        bool ended = false;
        program_->messages.Answer(msgbox::answerRetry); // and Cancel after it
        try {
            BuildPhotoSet();
        } catch (const ProgramEnd&) {
            ended = true;
        }
        QVERIFY(ended);
        QCOMPARE(program_->messages.Count(), 2);
        QVERIFY(program_->messages.Last().text.startsWith(u"Error number: ER037"_s));
    }

private:
    void AddMany(int count)
    {
        program_->disc.AddFile(u"Torviks/99000000.JPG"_s, {});
        const QString folder = program_->disc.PathOf(u"Torviks/"_s);
        for (int number = 1; number < count; ++number) {
            QFile file(folder + u"99%1.JPG"_s.arg(number, 6, 10, QLatin1Char('0')));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(PhotoListTest)
#include "photo_list_test.moc"
