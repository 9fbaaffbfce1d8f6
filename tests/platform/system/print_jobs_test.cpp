#include "platform/system/print_jobs.h"
#include "runtime/failure.h"
#include "support/test_class.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace torvik;

/// Names and ends of the files that print jobs become.
class PrintJobsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void numbers_begin_at_one_and_fill_the_first_gap()
    {
        const QTemporaryDir folder;
        QCOMPARE(NextJobFile(folder.path()), folder.filePath(u"job-1.pdf"_s));
        Write(folder.filePath(u"job-1.pdf"_s), "x");
        Write(folder.filePath(u"job-3.pdf"_s), "x");
        QCOMPARE(NextJobFile(folder.path()), folder.filePath(u"job-2.pdf"_s));
        Write(folder.filePath(u"job-2.pdf"_s), "x");
        QCOMPARE(NextJobFile(folder.path()), folder.filePath(u"job-4.pdf"_s));
    }

    void a_missing_folder_is_made_and_one_that_cannot_be_is_a_failure()
    {
        const QTemporaryDir folder;
        QVERIFY(!NextJobFile(folder.filePath(u"a/b"_s)).isEmpty());
        QVERIFY(QDir(folder.filePath(u"a/b"_s)).exists());
        Write(folder.filePath(u"file"_s), "x");
        QCOMPARE(ResumeNext([&] { NextJobFile(folder.filePath(u"file/under"_s)); }), failure::pathNotFound);
    }

    void a_relative_folder_counts_from_the_current_one()
    {
        const QTemporaryDir folder;
        const QString before = QDir::currentPath();
        QDir::setCurrent(folder.path());
        const QString file = NextJobFile(u"out"_s);
        QDir::setCurrent(before);
        QVERIFY(QDir::isAbsolutePath(file));
        QVERIFY(file.endsWith(u"/out/job-1.pdf"_s));
    }

    void a_whole_file_ends_with_its_mark_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("whole");
        QTest::newRow("whole") << QByteArray("%PDF-1.4\nmuch\n%%EOF\n") << true;
        QTest::newRow("without the last line end") << QByteArray("%PDF-1.4\nmuch\n%%EOF") << true;
        QTest::newRow("longer than what is looked at") << QByteArray(5000, 'x') + "\n%%EOF\n" << true;
        QTest::newRow("cut short") << QByteArray("%PDF-1.4\nmuch") << false;
        QTest::newRow("the mark in the middle") << "%%EOF\n" + QByteArray(5000, 'x') << false;
        QTest::newRow("empty") << QByteArray() << false;
    }
    void a_whole_file_ends_with_its_mark()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, whole);
        const QTemporaryDir folder;
        Write(folder.filePath(u"job.pdf"_s), content);
        QCOMPARE(IsWholeJobFile(folder.filePath(u"job.pdf"_s)), whole);
    }

    void a_missing_file_is_not_whole() { QVERIFY(!IsWholeJobFile(u"/nowhere/job.pdf"_s)); }

    void a_whole_job_takes_its_name()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(u"job-1.pdf"_s);
        QVERIFY(UnfinishedJobFile(file) != file);
        Write(UnfinishedJobFile(file), "%PDF-1.4\nmuch\n%%EOF\n");
        QVERIFY(KeepJobFile(file));
        QVERIFY(QFile::exists(file));
        QVERIFY(!QFile::exists(UnfinishedJobFile(file)));
    }

    void a_job_that_is_cut_short_takes_no_name_and_is_dropped()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(u"job-1.pdf"_s);
        Write(UnfinishedJobFile(file), "%PDF-1.4\nmuch");
        QVERIFY(!KeepJobFile(file));
        QVERIFY(!QFile::exists(file));
        DropJobFile(file);
        QVERIFY(!QFile::exists(UnfinishedJobFile(file)));
    }

    void a_job_never_takes_a_name_from_another_file()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(u"job-1.pdf"_s);
        Write(file, "kept");
        Write(UnfinishedJobFile(file), "%PDF-1.4\n%%EOF\n");
        QVERIFY(!KeepJobFile(file));
        QFile kept(file);
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), QByteArray("kept"));
    }

private:
    static void Write(const QString& path, const QByteArray& content)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write a file of the test");
    }
};

TORVIK_GUILESS_TEST(PrintJobsTest)
#include "print_jobs_test.moc"
