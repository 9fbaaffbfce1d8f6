#include "hard_drive/copy_file.h"
#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "support/discs/file_bytes.h"
#include "support/discs/file_size_limit.h"
#include "support/each_round.h"
#include "support/ordinary_user.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/program_title.h"
#include "windows/main_window.h"
#include "windows/play_list_window.h"

#include <fcntl.h>
#include <limits>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace torvik;

/// What the copy panel shows at one moment.
struct CopyPanelReading {
    QString path;
    QString file; ///< percent and caption
    QString job;
    bool operator==(const CopyPanelReading&) const = default;
};

namespace {

QString ReadingOf(const Panel& gauge)
{
    return QString::number(gauge.FloodPercent()) + u' ' + gauge.Caption();
}

CopyPanelReading PanelNow()
{
    return {Form1->Text1.Text(), ReadingOf(Form1->ProgressGuage), ReadingOf(Form1->ProgressGuage2)};
}

/// From now on nothing can be read through the descriptors by which this process has a file open, as of a
/// medium with a scratch.
bool TearOut(const QString& file)
{
    const int unreadable = open("/proc/self/mem", O_RDONLY); // nothing is at its beginning
    bool found = false;
    for (const QFileInfo& link : QDir(u"/proc/self/fd"_s).entryInfoList(QDir::AllEntries | QDir::System)) {
        if (link.symLinkTarget() == file)
            found = dup2(unreadable, link.fileName().toInt()) >= 0;
    }
    close(unreadable);
    return found;
}

} // namespace

/// The copying of one file, with the gauges of the copy panel and with the one of the play list.
class CopyFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 1);
        program_->StartBrowsing();
        state.CopyingPhotos = true;
        state.CopyRemaining = 42'000'000;
        Form1->Text1.SetText(u"before"_s);
        program_->AddToProgramFolder(u"Torviks/other.txt"_s, "x");
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
        QCOMPARE(BytesOf(program_->disc.PathOf(u"Torviks/A.JPG"_s)), content);
        QCOMPARE(state.CopyRemaining, 42'000'000 - counted);
        QCOMPARE(ReadingOf(Form1->ProgressGuage), u"100 100"_s);
        QCOMPARE(program_->messages.Count(), 0);
    }

    void both_gauges_and_the_path_follow_each_block()
    {
        QList<CopyPanelReading> seen;
        {
            const EachRound round([&] { seen.append(PanelNow()); });
            state.CopyRemaining = 21'000'000;
            Copy(MixedBytes(60'000));
        }
        const QString path = u"G:\\Torviks\\A.JPG"_s;
        // 25,000 and 50,000 of 60,000; 21,025,000 and 21,050,000 of 42,000,000.
        QCOMPARE(seen,
                 (QList<CopyPanelReading>{{path, u"42 42"_s, u"50 50"_s}, {path, u"83 83"_s, u"50 50"_s}}));
    }

    void the_whole_gauge_of_movies_counts_by_their_own_size()
    {
        state.CopyingPhotos = false;
        state.CopyRemaining = 108'025'000;
        Copy(MixedBytes(25'000));
        QCOMPARE(ReadingOf(Form1->ProgressGuage2), u"75 75"_s);
    }

    void a_file_below_a_block_leaves_the_path_and_the_whole_gauge()
    {
        Form1->ProgressGuage2.SetFloodPercent(7);
        Form1->ProgressGuage2.SetCaption(7);
        int rounds = 0;
        const EachRound round([&] { ++rounds; });
        Copy(MixedBytes(24'999));
        QCOMPARE(PanelNow(), (CopyPanelReading{u"before"_s, u"100 100"_s, u"7 7"_s}));
        QCOMPARE(rounds, 0);
    }

    void what_was_there_is_replaced_whatever_its_letter_case()
    {
        program_->AddToProgramFolder(u"Torviks/a.jpg"_s, MixedBytes(90'000));
        Copy("new");
        QCOMPARE(QDir(program_->InProgramFolder(u"Torviks"_s)).entryList({u"*.jpg"_s}),
                 QStringList{u"A.JPG"_s});
        QCOMPARE(Target(), QByteArray("new"));
    }

    void a_target_in_use_is_replaced_and_its_reader_keeps_the_old_content()
    {
        program_->AddToProgramFolder(u"Torviks/A.JPG"_s, "old");
        QFile reader(program_->InProgramFolder(u"Torviks/A.JPG"_s));
        QVERIFY(reader.open(QIODevice::ReadOnly));
        Copy("new");
        QCOMPARE(reader.readAll(), QByteArray("old"));
        QCOMPARE(Target(), QByteArray("new"));
    }

    void a_file_of_32768_blocks_overflows_the_count()
    {
        AddSparse(qint64{32'768} * 25'000);
        CopyOnly();
        AssertTold(u"Overflow"_s);
        QCOMPARE(Target(), QByteArray());
        QCOMPARE(state.CopyRemaining, 42'000'000);
    }

    void a_file_of_32767_blocks_is_counted_right()
    {
        AddSparse(qint64{32'768} * 25'000 - 1);
        const FileSizeLimit limit(50'000);
        QVERIFY(limit.IsSet());
        CopyOnly();
        AssertTold(u"Disk full"_s);
        QCOMPARE(Target().size(), 50'000);
        QCOMPARE(state.CopyRemaining, 42'000'000 - 75'000);
    }

    void a_file_beyond_the_32_bit_count_of_blocks_overflows_too()
    {
        AddSparse(qint64{1} << 43);
        CopyOnly();
        AssertTold(u"Overflow"_s);
    }

    void a_missing_source_is_told()
    {
        CopyOnly();
        AssertTold(u"File not found"_s);
        QCOMPARE(Target(), QByteArray("(no file)"));
        state.CopySource = u"G:\\none\\A.JPG"_s;
        CopyFileWithGauges();
        AssertTold(u"Path not found"_s);
    }

    void a_missing_source_leaves_the_copy_that_is_there()
    {
        program_->AddToProgramFolder(u"Torviks/A.JPG"_s, "earlier");
        CopyOnly();
        QCOMPARE(Target(), QByteArray("earlier"));
    }

    void a_source_that_may_not_be_read_is_told()
    {
        program_->disc.AddFile(u"Torviks/A.JPG"_s, MixedBytes(30'000));
        QCOMPARE(chmod(HostOf(program_->disc.Folder()), 0755), 0);
        QCOMPARE(chmod(HostOf(program_->disc.PathOf(u"Torviks/A.JPG"_s)), 0), 0);
        const OrdinaryUser user;
        QVERIFY2(OrdinaryUser::IsOne(), OrdinaryUser::isNeeded);
        CopyOnly();
        AssertTold(u"Permission denied"_s);
    }

    void a_source_that_cannot_be_read_on_in_mid_file_is_told_and_the_copy_ends_there()
    {
        program_->disc.AddFile(u"Torviks/A.JPG"_s, MixedBytes(75'000));
        const qsizetype openBefore = OpenFileCount();
        bool torn = false;
        {
            const EachRound round([&] {
                if (!std::exchange(torn, true))
                    QVERIFY2(TearOut(program_->disc.PathOf(u"Torviks/A.JPG"_s)), procIsNeeded);
            });
            CopyOnly();
        }
        AssertTold(u"Device I/O error"_s);
        QCOMPARE(ReadingOf(Form1->ProgressGuage), u"33 33"_s);
        QCOMPARE(Form1->Text1.Text(), u"G:\\Torviks\\A.JPG"_s);
        QCOMPARE(Target(), MixedBytes(25'000));
        QCOMPARE(OpenFileCount(), openBefore);
    }

    void a_source_that_ends_early_is_told_and_not_made_up()
    {
        program_->disc.AddFile(u"Torviks/A.JPG"_s, MixedBytes(100'000));
        bool cut = false;
        const EachRound round(
            [&] { cut = truncate(HostOf(program_->disc.PathOf(u"Torviks/A.JPG"_s)), 60'000) == 0; });
        CopyOnly();
        QVERIFY(cut);
        AssertTold(u"Input past end of file"_s);
        QCOMPARE(Target(), MixedBytes(50'000));
    }

    void a_full_disk_is_told_and_the_path_shows_where()
    {
        program_->disc.AddFile(u"Torviks/A.JPG"_s, MixedBytes(100'000));
        const FileSizeLimit limit(60'000);
        QVERIFY(limit.IsSet());
        CopyOnly();
        AssertTold(u"Disk full"_s);
        QCOMPARE(Form1->Text1.Text(), u"G:\\Torviks\\A.JPG"_s);
        QCOMPARE(Target(), MixedBytes(60'000));
    }

    void a_disk_that_is_full_at_the_rest_is_told()
    {
        program_->disc.AddFile(u"Torviks/A.JPG"_s, MixedBytes(30'000));
        const FileSizeLimit limit(25'000);
        QVERIFY(limit.IsSet());
        CopyOnly();
        AssertTold(u"Disk full"_s);
    }

    void a_failed_copy_holds_neither_file()
    {
        program_->disc.AddFile(u"Torviks/A.JPG"_s, MixedBytes(100'000));
        const qsizetype before = OpenFileCount();
        const FileSizeLimit limit(60'000);
        for (int time = 0; time < 5; ++time)
            CopyOnly();
        QCOMPARE(program_->messages.Count(), 5);
        QCOMPARE(OpenFileCount(), before);
    }

    void a_folder_that_may_not_be_written_to_is_told()
    {
        program_->disc.AddFile(u"Torviks/A.JPG"_s, "new");
        program_->AddToProgramFolder(u"Torviks/A.JPG"_s, "old");
        for (const QString& folder : {program_->disc.Folder(), program_->InProgramFolder({}),
                                      program_->InProgramFolder(u"Torviks"_s)})
            QCOMPARE(chmod(HostOf(folder), 0755), 0);
        {
            const OrdinaryUser user;
            QVERIFY2(OrdinaryUser::IsOne(), OrdinaryUser::isNeeded);
            CopyOnly();
            AssertTold(u"Permission denied"_s);
            state.CopyTarget = ProgramFolder() + u"\\Torviks\\B.JPG"_s;
            CopyFileWithGauges();
            AssertTold(u"Permission denied"_s);
        }
        QCOMPARE(Target(), QByteArray("old"));
    }

    void a_target_folder_that_is_missing_is_told()
    {
        program_->disc.AddFile(u"Torviks/A.JPG"_s, "new");
        state.CopySource = u"G:\\Torviks\\A.JPG"_s;
        state.CopyTarget = ProgramFolder() + u"\\none\\A.JPG"_s;
        CopyFileWithGauges();
        AssertTold(u"Path not found"_s);
    }

    void a_folder_in_the_place_of_the_target_is_told()
    {
        program_->AddToProgramFolder(u"Torviks/A.JPG/inside"_s, "x");
        Copy("new");
        AssertTold(u"Path/File access error"_s);
    }

    void a_source_that_is_the_target_is_never_written()
    {
        program_->disc.AddFile(u"Torviks/A.JPG"_s, "precious");
        state.CopySource = u"G:\\Torviks\\A.JPG"_s;
        state.CopyTarget = u"G:\\TORVIKS\\a.jpg"_s;
        CopyFileWithGauges();
        AssertTold(u"Path/File access error"_s);
        QCOMPARE(BytesOf(program_->disc.PathOf(u"Torviks/A.JPG"_s)), QByteArray("precious"));
    }

    void more_than_the_jobs_size_leaves_the_gauge_full_and_is_copied()
    {
        state.CopyRemaining = 30'000;
        const QByteArray content = MixedBytes(600'000);
        Copy(content);
        QCOMPARE(program_->messages.Count(), 0);
        QCOMPARE(ReadingOf(Form1->ProgressGuage2), u"100 100"_s);
        QCOMPARE(state.CopyRemaining, -570'000);
        QCOMPARE(Target(), content);
    }

    void a_count_that_leaves_32_bits_overflows()
    {
        state.CopyRemaining = std::numeric_limits<std::int32_t>::min() + 24'999;
        Copy(MixedBytes(25'000));
        AssertTold(u"Overflow"_s);
    }

    void what_other_windows_write_into_the_record_does_not_lead_astray()
    {
        const EachRound round([] {
            state.CopySource = u"nonsense"_s;
            state.CopyTarget = u"nonsense"_s;
        });
        Copy(MixedBytes(100'000));
        QCOMPARE(Target(), MixedBytes(100'000));
        QCOMPARE(Form1->Text1.Text(), u"G:\\Torviks\\A.JPG"_s);
    }

    void the_small_gauge_follows_blocks_of_1000_bytes_without_a_caption()
    {
        program_->disc.AddFile(u"Torviks/A.JPG"_s, MixedBytes(3'500));
        QStringList seen;
        const EachRound round([&] { seen.append(ReadingOf(frmSSPhoto->ProgressGuage)); });
        frmSSPhoto->ProgressGuage.SetCaption(u"own"_s);
        CopySmall();
        // 28.57, 57.14 and 85.71 percent; no 100 at the end.
        QCOMPARE(seen, (QStringList{u"29 own"_s, u"57 own"_s, u"86 own"_s}));
        QCOMPARE(frmSSPhoto->ProgressGuage.FloodPercent(), 86);
        QCOMPARE(Target(), MixedBytes(3'500));
        QCOMPARE(PanelNow().path, u"before"_s);
        QCOMPARE(state.CopyRemaining, 42'000'000);
    }

    void whole_blocks_of_1000_bytes_end_at_100()
    {
        program_->disc.AddFile(u"Torviks/A.JPG"_s, MixedBytes(4'000));
        CopySmall();
        QCOMPARE(frmSSPhoto->ProgressGuage.FloodPercent(), 100);
        QCOMPARE(Target(), MixedBytes(4'000));
    }

    void a_file_below_1000_bytes_never_moves_the_small_gauge()
    {
        program_->disc.AddFile(u"Torviks/A.JPG"_s, MixedBytes(999));
        frmSSPhoto->ProgressGuage.SetFloodPercent(33);
        CopySmall();
        QCOMPARE(frmSSPhoto->ProgressGuage.FloodPercent(), 33);
        QCOMPARE(Target(), MixedBytes(999));
    }

    void a_small_copy_of_32768_blocks_overflows()
    {
        AddSparse(qint64{32'768} * 1'000);
        CopySmall();
        AssertTold(u"Overflow"_s);
    }

    void a_small_copy_that_fails_is_told_and_holds_neither_file()
    {
        program_->disc.AddFile(u"Torviks/A.JPG"_s, MixedBytes(5'000));
        const qsizetype before = OpenFileCount();
        const FileSizeLimit limit(2'000);
        CopySmall();
        AssertTold(u"Disk full"_s);
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

    QByteArray Target() const { return BytesOf(program_->InProgramFolder(u"Torviks/A.JPG"_s)); }

    /// A file of that length that takes no room.
    void AddSparse(qint64 size)
    {
        program_->disc.AddFile(u"Torviks/A.JPG"_s, {});
        QCOMPARE(truncate(HostOf(program_->disc.PathOf(u"Torviks/A.JPG"_s)), size), 0);
    }

    void Copy(const QByteArray& content)
    {
        program_->disc.AddFile(u"Torviks/A.JPG"_s, content);
        CopyOnly();
    }

    void CopyOnly()
    {
        state.CopySource = u"G:\\Torviks\\A.JPG"_s;
        state.CopyTarget = ProgramFolder() + u"\\Torviks\\A.JPG"_s;
        CopyFileWithGauges();
    }

    static void CopySmall()
    {
        CopyFileWithGauge(u"G:\\Torviks\\A.JPG"_s, ProgramFolder() + u"\\Torviks\\A.JPG"_s,
                          frmSSPhoto->ProgressGuage);
    }

    /// The last box was the plain one with this text, and it was one only.
    void AssertTold(const QString& text)
    {
        QCOMPARE(program_->messages.Count(), 1);
        const MessageRequest box = program_->messages.Last();
        QCOMPARE(box.text, text);
        QCOMPARE(box.style, msgbox::ok);
        QCOMPARE(box.title, applicationTitle);
        program_->messages.Clear();
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(CopyFileTest)
#include "copy_file_test.moc"
