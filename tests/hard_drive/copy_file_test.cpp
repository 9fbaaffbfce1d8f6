#include "hard_drive/copy_file.h"
#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "support/each_round.h"
#include "support/file_bytes.h"
#include "support/file_size_limit.h"
#include "support/ordinary_user.h"
#include "support/program.h"
#include "ui/application.h"
#include "windows/main_window.h"
#include "windows/play_list_window.h"

#include <QTest>

#include <limits>
#include <sys/stat.h>
#include <unistd.h>

using namespace torvik;

namespace {

/// What the copy panel shows at one moment.
struct Reading {
    QString Path;
    QString File; ///< percent and caption
    QString Job;
    bool operator==(const Reading&) const = default;
};

QString ReadingOf(const Panel& gauge)
{
    return QString::number(gauge.FloodPercent()) + u' ' + gauge.Caption();
}

Reading PanelNow()
{
    return {Form1->Text1.Text(), ReadingOf(Form1->ProgressGuage), ReadingOf(Form1->ProgressGuage2)};
}

} // namespace

/// The copying of one file, with the gauges of the copy panel and with the one of the play list.
class CopyFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->Disc.AddGroup(QStringLiteral("67"), 1);
        program_->StartBrowsing();
        state.CopyingPhotos = true;
        state.CopyRemaining = 42'000'000;
        Form1->Text1.SetText(QStringLiteral("before"));
        program_->AddToProgramFolder(QStringLiteral("Torviks/other.txt"), "x");
    }
    void cleanup() { program_.reset(); }

    void a_file_is_copied_byte_for_byte_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("counted");
        QTest::newRow("empty") << 0 << 0;
        QTest::newRow("one byte") << 1 << 0;
        QTest::newRow("just below a block") << 24'999 << 0;
        QTest::newRow("one block") << 25'000 << 25'000;
        QTest::newRow("three blocks") << 75'000 << 75'000;
        QTest::newRow("three blocks and a rest") << 99'999 << 75'000;
    }
    void a_file_is_copied_byte_for_byte()
    {
        QFETCH(int, size);
        QFETCH(int, counted);
        const QByteArray content = MixedBytes(size);
        Copy(content);
        QCOMPARE(Target(), content);
        QCOMPARE(BytesOf(program_->Disc.PathOf(QStringLiteral("Torviks/A.JPG"))), content);
        QCOMPARE(state.CopyRemaining, 42'000'000 - counted);
        QCOMPARE(ReadingOf(Form1->ProgressGuage), QStringLiteral("100 100"));
        QCOMPARE(program_->Messages.Count(), 0);
    }

    void both_gauges_and_the_path_follow_each_block()
    {
        QList<Reading> seen;
        {
            const EachRound round([&] { seen.append(PanelNow()); });
            state.CopyRemaining = 21'000'000;
            Copy(MixedBytes(60'000));
        }
        const QString path = QStringLiteral("G:\\Torviks\\A.JPG");
        // 25,000 and 50,000 of 60,000; 21,025,000 and 21,050,000 of 42,000,000.
        QCOMPARE(seen, (QList<Reading>{{path, QStringLiteral("42 42"), QStringLiteral("50 50")},
                                       {path, QStringLiteral("83 83"), QStringLiteral("50 50")}}));
    }

    void the_whole_gauge_of_movies_counts_by_their_own_size()
    {
        state.CopyingPhotos = false;
        state.CopyRemaining = 108'025'000;
        Copy(MixedBytes(25'000));
        QCOMPARE(ReadingOf(Form1->ProgressGuage2), QStringLiteral("75 75"));
    }

    void a_file_below_a_block_leaves_the_path_and_the_whole_gauge()
    {
        Form1->ProgressGuage2.SetFloodPercent(7);
        Form1->ProgressGuage2.SetCaption(7);
        int rounds = 0;
        const EachRound round([&] { ++rounds; });
        Copy(MixedBytes(24'999));
        QCOMPARE(PanelNow(),
                 (Reading{QStringLiteral("before"), QStringLiteral("100 100"), QStringLiteral("7 7")}));
        QCOMPARE(rounds, 0);
    }

    void what_was_there_is_replaced_whatever_its_letter_case()
    {
        program_->AddToProgramFolder(QStringLiteral("Torviks/a.jpg"), MixedBytes(90'000));
        Copy("new");
        QCOMPARE(
            QDir(program_->InProgramFolder(QStringLiteral("Torviks"))).entryList({QStringLiteral("*.jpg")}),
            QStringList{QStringLiteral("A.JPG")});
        QCOMPARE(Target(), QByteArray("new"));
    }

    void a_target_in_use_is_replaced_and_its_user_keeps_what_he_reads()
    {
        program_->AddToProgramFolder(QStringLiteral("Torviks/A.JPG"), "old");
        QFile user(program_->InProgramFolder(QStringLiteral("Torviks/A.JPG")));
        QVERIFY(user.open(QIODevice::ReadOnly));
        Copy("new");
        QCOMPARE(user.readAll(), QByteArray("old"));
        QCOMPARE(Target(), QByteArray("new"));
    }

    void a_file_of_32768_blocks_overflows_the_count()
    {
        AddSparse(qint64{32'768} * 25'000);
        CopyOnly();
        AssertTold(QStringLiteral("Overflow"));
        QCOMPARE(Target(), QByteArray());
        QCOMPARE(state.CopyRemaining, 42'000'000);
    }

    void a_file_of_32767_blocks_is_counted_right()
    {
        AddSparse(qint64{32'768} * 25'000 - 1);
        const FileSizeLimit limit(50'000);
        QVERIFY(limit.IsSet());
        CopyOnly();
        AssertTold(QStringLiteral("Disk full"));
        QCOMPARE(Target().size(), 50'000);
        QCOMPARE(state.CopyRemaining, 42'000'000 - 75'000);
    }

    void a_file_beyond_the_32_bit_count_of_blocks_overflows_too()
    {
        AddSparse(qint64{1} << 43);
        CopyOnly();
        AssertTold(QStringLiteral("Overflow"));
    }

    void a_missing_source_is_told()
    {
        CopyOnly();
        AssertTold(QStringLiteral("File not found"));
        QCOMPARE(Target(), QByteArray("(no file)"));
        state.CopySource = QStringLiteral("G:\\none\\A.JPG");
        CopyFileWithGauges();
        AssertTold(QStringLiteral("Path not found"));
    }

    void a_missing_source_leaves_the_copy_that_is_there()
    {
        program_->AddToProgramFolder(QStringLiteral("Torviks/A.JPG"), "earlier");
        CopyOnly();
        QCOMPARE(Target(), QByteArray("earlier"));
    }

    void a_source_that_may_not_be_read_is_told()
    {
        program_->Disc.AddFile(QStringLiteral("Torviks/A.JPG"), MixedBytes(30'000));
        QCOMPARE(chmod(HostOf(program_->Disc.Folder()), 0755), 0);
        QCOMPARE(chmod(HostOf(program_->Disc.PathOf(QStringLiteral("Torviks/A.JPG"))), 0), 0);
        const OrdinaryUser user;
        QVERIFY(OrdinaryUser::IsOne());
        CopyOnly();
        AssertTold(QStringLiteral("Permission denied"));
    }

    void a_source_that_ends_early_is_told_and_not_made_up()
    {
        program_->Disc.AddFile(QStringLiteral("Torviks/A.JPG"), MixedBytes(100'000));
        bool cut = false;
        const EachRound round([&] {
            cut = truncate(HostOf(program_->Disc.PathOf(QStringLiteral("Torviks/A.JPG"))), 60'000) == 0;
        });
        CopyOnly();
        QVERIFY(cut);
        AssertTold(QStringLiteral("Input past end of file"));
        QCOMPARE(Target(), MixedBytes(50'000));
    }

    void a_full_disk_is_told_and_the_path_shows_where()
    {
        program_->Disc.AddFile(QStringLiteral("Torviks/A.JPG"), MixedBytes(100'000));
        const FileSizeLimit limit(60'000);
        QVERIFY(limit.IsSet());
        CopyOnly();
        AssertTold(QStringLiteral("Disk full"));
        QCOMPARE(Form1->Text1.Text(), QStringLiteral("G:\\Torviks\\A.JPG"));
        QCOMPARE(Target(), MixedBytes(60'000));
    }

    void a_disk_that_is_full_at_the_rest_is_told()
    {
        program_->Disc.AddFile(QStringLiteral("Torviks/A.JPG"), MixedBytes(30'000));
        const FileSizeLimit limit(25'000);
        QVERIFY(limit.IsSet());
        CopyOnly();
        AssertTold(QStringLiteral("Disk full"));
    }

    void a_failed_copy_holds_neither_file()
    {
        program_->Disc.AddFile(QStringLiteral("Torviks/A.JPG"), MixedBytes(100'000));
        const qsizetype before = OpenFileCount();
        const FileSizeLimit limit(60'000);
        for (int time = 0; time < 5; ++time)
            CopyOnly();
        QCOMPARE(program_->Messages.Count(), 5);
        QCOMPARE(OpenFileCount(), before);
    }

    void a_folder_that_may_not_be_written_to_is_told()
    {
        program_->Disc.AddFile(QStringLiteral("Torviks/A.JPG"), "new");
        program_->AddToProgramFolder(QStringLiteral("Torviks/A.JPG"), "old");
        for (const QString& folder : {program_->Disc.Folder(), program_->InProgramFolder({}),
                                      program_->InProgramFolder(QStringLiteral("Torviks"))})
            QCOMPARE(chmod(HostOf(folder), 0755), 0);
        {
            const OrdinaryUser user;
            QVERIFY(OrdinaryUser::IsOne());
            CopyOnly();
            AssertTold(QStringLiteral("Permission denied"));
            state.CopyTarget = ProgramFolder() + QStringLiteral("\\Torviks\\B.JPG");
            CopyFileWithGauges();
            AssertTold(QStringLiteral("Permission denied"));
        }
        QCOMPARE(Target(), QByteArray("old"));
    }

    void a_target_folder_that_is_missing_is_told()
    {
        program_->Disc.AddFile(QStringLiteral("Torviks/A.JPG"), "new");
        state.CopySource = QStringLiteral("G:\\Torviks\\A.JPG");
        state.CopyTarget = ProgramFolder() + QStringLiteral("\\none\\A.JPG");
        CopyFileWithGauges();
        AssertTold(QStringLiteral("Path not found"));
    }

    void a_folder_in_the_place_of_the_target_is_told()
    {
        program_->AddToProgramFolder(QStringLiteral("Torviks/A.JPG/inside"), "x");
        Copy("new");
        AssertTold(QStringLiteral("Path/File access error"));
    }

    void a_source_that_is_the_target_is_never_written()
    {
        program_->Disc.AddFile(QStringLiteral("Torviks/A.JPG"), "precious");
        state.CopySource = QStringLiteral("G:\\Torviks\\A.JPG");
        state.CopyTarget = QStringLiteral("G:\\TORVIKS\\a.jpg");
        CopyFileWithGauges();
        AssertTold(QStringLiteral("Path/File access error"));
        QCOMPARE(BytesOf(program_->Disc.PathOf(QStringLiteral("Torviks/A.JPG"))), QByteArray("precious"));
    }

    void more_than_the_jobs_size_leaves_the_gauge_full_and_is_copied()
    {
        state.CopyRemaining = 30'000;
        const QByteArray content = MixedBytes(600'000);
        Copy(content);
        QCOMPARE(program_->Messages.Count(), 0);
        QCOMPARE(ReadingOf(Form1->ProgressGuage2), QStringLiteral("100 100"));
        QCOMPARE(state.CopyRemaining, -570'000);
        QCOMPARE(Target(), content);
    }

    void a_count_that_leaves_32_bits_overflows()
    {
        state.CopyRemaining = std::numeric_limits<std::int32_t>::min() + 24'999;
        Copy(MixedBytes(25'000));
        AssertTold(QStringLiteral("Overflow"));
    }

    void what_other_windows_write_into_the_record_does_not_lead_astray()
    {
        const EachRound round([] {
            state.CopySource = QStringLiteral("nonsense");
            state.CopyTarget = QStringLiteral("nonsense");
        });
        Copy(MixedBytes(100'000));
        QCOMPARE(Target(), MixedBytes(100'000));
        QCOMPARE(Form1->Text1.Text(), QStringLiteral("G:\\Torviks\\A.JPG"));
    }

    void the_small_gauge_follows_blocks_of_1000_bytes_without_a_caption()
    {
        program_->Disc.AddFile(QStringLiteral("Torviks/A.JPG"), MixedBytes(3'500));
        QStringList seen;
        const EachRound round([&] { seen.append(ReadingOf(frmSSPhoto->ProgressGuage)); });
        frmSSPhoto->ProgressGuage.SetCaption(QStringLiteral("own"));
        CopySmall();
        // 28.57, 57.14 and 85.71 percent; no 100 at the end.
        QCOMPARE(seen,
                 (QStringList{QStringLiteral("29 own"), QStringLiteral("57 own"), QStringLiteral("86 own")}));
        QCOMPARE(frmSSPhoto->ProgressGuage.FloodPercent(), 86);
        QCOMPARE(Target(), MixedBytes(3'500));
        QCOMPARE(PanelNow().Path, QStringLiteral("before"));
        QCOMPARE(state.CopyRemaining, 42'000'000);
    }

    void whole_blocks_of_1000_bytes_end_at_100()
    {
        program_->Disc.AddFile(QStringLiteral("Torviks/A.JPG"), MixedBytes(4'000));
        CopySmall();
        QCOMPARE(frmSSPhoto->ProgressGuage.FloodPercent(), 100);
        QCOMPARE(Target(), MixedBytes(4'000));
    }

    void a_file_below_1000_bytes_never_moves_the_small_gauge()
    {
        program_->Disc.AddFile(QStringLiteral("Torviks/A.JPG"), MixedBytes(999));
        frmSSPhoto->ProgressGuage.SetFloodPercent(33);
        CopySmall();
        QCOMPARE(frmSSPhoto->ProgressGuage.FloodPercent(), 33);
        QCOMPARE(Target(), MixedBytes(999));
    }

    void a_small_copy_of_32768_blocks_overflows()
    {
        AddSparse(qint64{32'768} * 1'000);
        CopySmall();
        AssertTold(QStringLiteral("Overflow"));
    }

    void a_small_copy_that_fails_is_told_and_holds_neither_file()
    {
        program_->Disc.AddFile(QStringLiteral("Torviks/A.JPG"), MixedBytes(5'000));
        const qsizetype before = OpenFileCount();
        const FileSizeLimit limit(2'000);
        CopySmall();
        AssertTold(QStringLiteral("Disk full"));
        QCOMPARE(OpenFileCount(), before);
        QCOMPARE(frmSSPhoto->ProgressGuage.FloodPercent(), 60);
    }

private:
    static const char* HostOf(const QString& path)
    {
        static QByteArray bytes;
        bytes = QFile::encodeName(path);
        return bytes.constData();
    }

    QByteArray Target() const { return BytesOf(program_->InProgramFolder(QStringLiteral("Torviks/A.JPG"))); }

    /// A file of that length that takes no room.
    void AddSparse(qint64 size)
    {
        program_->Disc.AddFile(QStringLiteral("Torviks/A.JPG"), {});
        QCOMPARE(truncate(HostOf(program_->Disc.PathOf(QStringLiteral("Torviks/A.JPG"))), size), 0);
    }

    void Copy(const QByteArray& content)
    {
        program_->Disc.AddFile(QStringLiteral("Torviks/A.JPG"), content);
        CopyOnly();
    }

    void CopyOnly()
    {
        state.CopySource = QStringLiteral("G:\\Torviks\\A.JPG");
        state.CopyTarget = ProgramFolder() + QStringLiteral("\\Torviks\\A.JPG");
        CopyFileWithGauges();
    }

    static void CopySmall()
    {
        CopyFileWithGauge(QStringLiteral("G:\\Torviks\\A.JPG"),
                          ProgramFolder() + QStringLiteral("\\Torviks\\A.JPG"), frmSSPhoto->ProgressGuage);
    }

    /// The last box was the plain one with this text, and it was one only.
    void AssertTold(const QString& text)
    {
        QCOMPARE(program_->Messages.Count(), 1);
        const MessageRequest box = program_->Messages.Last();
        QCOMPARE(box.Text, text);
        QCOMPARE(box.Style, msgbox::ok);
        QCOMPARE(box.Title, applicationTitle);
        program_->Messages.Clear();
    }

    std::unique_ptr<Program> program_;
};

QTEST_MAIN(CopyFileTest)
#include "copy_file_test.moc"
