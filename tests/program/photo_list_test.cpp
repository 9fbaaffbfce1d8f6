#include "platform/paths/program_folder.h"
#include "program/photo_list.h"
#include "program/program_state.h"
#include "support/program.h"
#include "ui/forms/program_end.h"
#include "windows/main_window.h"

#include <QFile>
#include <QTest>

using namespace torvik;

/// The sorted list of all photos.
class PhotoListTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        state.PhotoRoot = QStringLiteral("G:");
    }
    void cleanup() { program_.reset(); }

    void names_are_upper_cased_and_the_folder_is_spelled_its_own_way()
    {
        program_->Disc.AddFile(QStringLiteral("TORVIKS/67a.jpg"), "x");
        program_->Disc.AddFile(QStringLiteral("TORVIKS/68Bb.JpG"), "x");
        BuildPhotoSet();
        QCOMPARE(int(state.PhotoCount), 2);
        QCOMPARE(state.PhotoFiles(1), QStringLiteral("G:\\Torviks\\67A.JPG"));
        QCOMPARE(state.PhotoFiles(2), QStringLiteral("G:\\Torviks\\68BB.JPG"));
    }

    void one_empty_element_follows_the_last_photo()
    {
        program_->Disc.AddGroup(QStringLiteral("67"), 3);
        BuildPhotoSet();
        QCOMPARE(state.PhotoFiles.Count(), 4);
        QCOMPARE(state.PhotoNumbers.Count(), 4);
        QCOMPARE(state.PhotoFiles(4), QString());
        QCOMPARE(int(state.PhotoIndex), 4);
    }

    void years_come_first_then_2000_and_2001_then_the_topics()
    {
        for (const char* prefix : {"ZZ", "A1", "99", "CW", "67", "VM", "A0", "M1"})
            program_->Disc.AddGroup(QString::fromLatin1(prefix), 1);
        BuildPhotoSet();
        QStringList prefixes;
        for (int index = 1; index <= state.PhotoCount; ++index)
            prefixes.append(state.PhotoFiles(index).mid(11, 2));
        QCOMPARE(prefixes.join(u' '), QStringLiteral("67 99 A0 A1 CW M1 VM ZZ"));
    }

    void each_group_is_numbered_from_1()
    {
        program_->Disc.AddGroup(QStringLiteral("67"), 3);
        program_->Disc.AddGroup(QStringLiteral("68"), 2);
        BuildPhotoSet();
        QStringList numbers;
        for (int index = 1; index <= state.PhotoCount; ++index)
            numbers.append(state.PhotoNumbers(index));
        QCOMPARE(numbers.join(u' '), QStringLiteral("1 2 3 1 2"));
    }

    void the_first_photo_is_number_1_even_when_the_last_run_ended_on_its_group()
    {
        program_->Disc.AddGroup(QStringLiteral("67"), 2);
        BuildPhotoSet();
        BuildPhotoSet();
        QCOMPARE(state.PreviousPrefix, QStringLiteral("67"));
        QCOMPARE(state.PhotoNumbers(1), QStringLiteral("1"));
        QCOMPARE(state.PhotoNumbers(2), QStringLiteral("2"));
    }

    void a_smaller_folder_leaves_nothing_of_the_larger_one()
    {
        program_->Disc.AddGroup(QStringLiteral("67"), 5);
        BuildPhotoSet();
        program_->Disc.Remove(QStringLiteral("Torviks/67D.JPG"));
        program_->Disc.Remove(QStringLiteral("Torviks/67E.JPG"));
        BuildPhotoSet();
        QCOMPARE(int(state.PhotoCount), 3);
        QCOMPARE(state.PhotoFiles.Count(), 4);
        QCOMPARE(state.PhotoFiles(4), QString());
    }

    void only_photos_count()
    {
        program_->Disc.AddGroup(QStringLiteral("67"), 1);
        program_->Disc.AddFile(QStringLiteral("Torviks/67B.BMP"), "x");
        program_->Disc.AddFile(QStringLiteral("Torviks/THUMBS.DB"), "x");
        program_->Disc.AddFile(QStringLiteral("Torviks/folder.jpg/inside.txt"), "x");
        BuildPhotoSet();
        QCOMPARE(int(state.PhotoCount), 1);
    }

    void odd_names_are_kept()
    {
        program_->Disc.AddFile(QStringLiteral("Torviks/67 long name with blanks.jpg"), "x");
        program_->Disc.AddFile(QStringLiteral("Torviks/67ährenfeld.jpg"), "x");
        program_->Disc.AddFile(QStringLiteral("Torviks/67снег.jpg"), "x");
        BuildPhotoSet();
        QCOMPARE(int(state.PhotoCount), 3);
        QCOMPARE(state.PhotoFiles(1), QStringLiteral("G:\\Torviks\\67 LONG NAME WITH BLANKS.JPG"));
        QCOMPARE(state.PhotoFiles(2), QStringLiteral("G:\\Torviks\\67ÄHRENFELD.JPG"));
        QCOMPARE(state.PhotoFiles(3), QStringLiteral("G:\\Torviks\\67СНЕГ.JPG"));
    }

    void names_that_clash_by_case_are_one_photo()
    {
        program_->Disc.AddFile(QStringLiteral("Torviks/67a.jpg"), "x");
        program_->Disc.AddFile(QStringLiteral("Torviks/67A.JPG"), "x");
        BuildPhotoSet();
        QCOMPARE(int(state.PhotoCount), 1);
    }

    void copies_beside_the_program_are_listed_by_its_folder()
    {
        program_->AddToProgramFolder(QStringLiteral("Torviks/67A.JPG"), "x");
        state.PhotoRoot = ProgramFolder();
        BuildPhotoSet();
        QCOMPARE(state.PhotoFiles(1), ProgramFolder() + QStringLiteral("\\Torviks\\67A.JPG"));
    }

    void an_empty_folder_keeps_the_count_and_says_nothing()
    {
        program_->Disc.AddGroup(QStringLiteral("67"), 2);
        BuildPhotoSet();
        program_->Disc.Remove(QStringLiteral("Torviks"));
        BuildPhotoSet();
        QCOMPARE(int(state.PhotoCount), 2);
        QVERIFY(program_->Messages.Shown().isEmpty());
    }

    void a_drive_that_is_gone_is_reported_and_retried_at_the_listing()
    {
        program_->Disc.AddGroup(QStringLiteral("67"), 2);
        program_->PutDiscIn({});
        program_->Messages.Answer(msgbox::answerRetry);
        program_->Messages.Answer(msgbox::answerRetry);
        program_->Messages.WhenAsked(
            [this] { program_->Messages.WhenAsked([this] { program_->PutDiscIn(u'G'); }); });
        BuildPhotoSet();
        QCOMPARE(program_->Messages.Count(), 2);
        QCOMPARE(program_->Messages.Last().Text,
                 QStringLiteral("Error number: ER037\r\n\r\n Unable to load the photo array.\r\n\r\n"
                                "Make sure that the Torvik Vollandry is in the CDROM drive."));
        QCOMPARE(program_->Messages.Last().Style, 5);
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
        QVERIFY(program_->Messages.Shown().isEmpty());
    }

    void more_photos_overflow_the_index_and_are_reported()
    {
        AddMany(32768);
        bool ended = false;
        program_->Messages.Answer(msgbox::answerRetry); // and Cancel after it
        try {
            BuildPhotoSet();
        } catch (const ProgramEnd&) {
            ended = true;
        }
        QVERIFY(ended);
        QCOMPARE(program_->Messages.Count(), 2);
        QVERIFY(program_->Messages.Last().Text.startsWith(QStringLiteral("Error number: ER037")));
    }

private:
    void AddMany(int count)
    {
        program_->Disc.AddFile(QStringLiteral("Torviks/99000000.JPG"), {});
        const QString folder = program_->Disc.PathOf(QStringLiteral("Torviks/"));
        for (int number = 1; number < count; ++number) {
            QFile file(folder + QStringLiteral("99%1.JPG").arg(number, 6, 10, QLatin1Char('0')));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
    }

    std::unique_ptr<Program> program_;
};

QTEST_MAIN(PhotoListTest)
#include "photo_list_test.moc"
