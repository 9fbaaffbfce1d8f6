#include "platform/files/disk_space.h"
#include "support/browsing_fixture.h"
#include "support/discs/file_bytes.h"
#include "support/each_round.h"
#include "support/test_class.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// What tells the copy of the photos and that of the movies apart, from the menu to the last word.
class CopyJobTest : public BrowsingFixture {
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { SetDiskMeter({}); }

    void each_copy_has_its_texts_its_folder_and_its_gauge_data()
    {
        QTest::addColumn<bool>("photos");
        QTest::addColumn<QString>("heading");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("percent"); // of the whole job, after 864 blocks of 25,000 bytes
        QTest::addColumn<QString>("done");
        QTest::newRow("photos") << true << u"Copy photos from CD-ROM to hard drive"_s << u"Copy Photos"_s
                                << u"Torviks/99LARGE.JPG"_s << 51 << u"Photos successfully copied!\r\n"_s;
        QTest::newRow("movies") << false << u"Copy Movies from CD-ROM to hard drive"_s << u"Copy Movies"_s
                                << u"movies/LARGE.AVI"_s << 5 << u"Movies successfully copied!\r\n"_s;
    }

    void each_copy_has_its_texts_its_folder_and_its_gauge()
    {
        QFETCH(bool, photos);
        QFETCH(QString, heading);
        QFETCH(QString, button);
        QFETCH(QString, file);
        QFETCH(int, percent);
        QFETCH(QString, done);
        SetDiskMeter([](const QString&) { return DiskClusters{8, 512, 1'000'000, 2'000'000}; });
        const QByteArray content(21'600'000, 'x');
        program_->disc.AddFile(file, content);
        (photos ? Form1->mnuCopy : Form1->mnuCopyMovies).Click.Fire();
        QCOMPARE(Form1->Label2.Caption(), heading);
        QCOMPARE(Form1->cmdCopy.Caption(), button);

        int most = 0;
        {
            const EachRound round([&] {
                if (program_->messages.Count() == 0)
                    most = Form1->ProgressGuage2.FloodPercent();
            });
            program_->Click(Form1->cmdCopy);
        }
        QCOMPARE(BytesOf(program_->InProgramFolder(file)), content);
        QCOMPARE(most, percent);
        QCOMPARE(program_->messages.Last().text, done);
    }
};

TORVIK_TEST(CopyJobTest)
#include "copy_job_test.moc"
