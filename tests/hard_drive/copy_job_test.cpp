#include "hard_drive/copy_job.h"
#include "program/program_state.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

class CopyJobTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { state = ProgramState(); }

    void photos_have_their_own_sizes_folder_and_texts()
    {
        state.CopyingPhotos = true;
        const CopyJob& job = PresentCopyJob();
        QCOMPARE(job.Heading, u"Copy photos from CD-ROM to hard drive"_s);
        QCOMPARE(job.Button, u"Copy Photos"_s);
        QCOMPARE(job.Folder, u"\\Torviks\\"_s);
        QCOMPARE(job.Done, u"Photos successfully copied!\r\n"_s);
        QCOMPARE(job.RoomDemanded, 38'000'000);
        QCOMPARE(job.Size, 42'000'000);
    }

    void movies_have_their_own_sizes_folder_and_texts()
    {
        state.CopyingPhotos = false;
        const CopyJob& job = PresentCopyJob();
        QCOMPARE(job.Heading, u"Copy Movies from CD-ROM to hard drive"_s);
        QCOMPARE(job.Button, u"Copy Movies"_s);
        QCOMPARE(job.Folder, u"\\movies\\"_s);
        QCOMPARE(job.Done, u"Movies successfully copied!\r\n"_s);
        QCOMPARE(job.RoomDemanded, 470'000'000);
        QCOMPARE(job.Size, 432'000'000);
    }
};

TORVIK_TEST(CopyJobTest)
#include "copy_job_test.moc"
