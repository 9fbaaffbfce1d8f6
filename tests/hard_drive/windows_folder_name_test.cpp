#include "hard_drive/windows_folder_name.h"
#include "platform/paths/drives.h"
#include "platform/paths/program_folder.h"
#include "support/failure_of.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// The Windows folder as the installation of the saver knows it.
class WindowsFolderNameTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { before_ = qgetenv("XDG_DATA_HOME"); }
    void cleanup() { qputenv("XDG_DATA_HOME", before_); }

    void a_folder_without_a_blank_is_taken_whole()
    {
        PutDataInto(u"home"_s);
        QCOMPARE(WindowsFolderName(), WindowsFolder());
        QVERIFY(WindowsFolderName().endsWith(u"\\home\\torvik2001\\windows"_s));
    }

    void a_folder_with_blanks_is_taken_whole_without_a_blank_in_its_name()
    {
        PutDataInto(u"my own home"_s);
        const QString whole = WindowsFolder();
        QVERIFY(whole.endsWith(u"\\my own home\\torvik2001\\windows"_s));
        QVERIFY(!WindowsFolderName().contains(u' '));
        QCOMPARE(WindowsFolderName().size(), whole.size());
        QCOMPARE(HostPath(WindowsFolderName()), HostPath(whole));
    }

    void an_answer_is_cut_two_characters_before_its_first_blank_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("cut");
        QTest::newRow("none: the zero character after it goes") << u"C:\\WINDOWS"_s << u"C:\\WINDOWS"_s;
        QTest::newRow("one") << u"C:\\my windows"_s << u"C:\\m"_s;
        QTest::newRow("several") << u"C:\\a b c"_s << u"C:\\"_s;
        QTest::newRow("at the end") << u"C:\\win "_s << u"C:\\wi"_s;
        QTest::newRow("empty") << QString() << QString();
    }
    void an_answer_is_cut_two_characters_before_its_first_blank()
    {
        QFETCH(QString, answer);
        QFETCH(QString, cut);
        QCOMPARE(CutOutOfBuffer(answer), cut);
    }

    void an_answer_that_begins_with_a_blank_is_a_failure()
    {
        QCOMPARE(FailureOf([] { CutOutOfBuffer(u" C:"_s); }), failure::invalidCall);
    }

    void the_longest_folder_that_leaves_a_blank_in_the_buffer_is_taken_whole()
    {
        PutDataOfLength(253);
        QCOMPARE(WindowsFolderName().size(), 253);
        QCOMPARE(WindowsFolderName(), WindowsFolder());
    }

    void a_folder_that_fills_the_buffer_or_does_not_fit_is_a_failure()
    {
        PutDataOfLength(254);
        QCOMPARE(FailureOf([] { WindowsFolderName(); }), failure::invalidCall);
        PutDataOfLength(255);
        QCOMPARE(FailureOf([] { WindowsFolderName(); }), failure::invalidCall);
    }

private:
    void PutDataInto(const QString& folder)
    {
        qputenv("XDG_DATA_HOME", folder_.filePath(folder).toLocal8Bit());
    }

    /// A data folder by which the Windows folder's drive path gets this many characters.
    void PutDataOfLength(qsizetype wanted)
    {
        PutDataInto(u"x"_s);
        const qsizetype missing = wanted - WindowsFolder().size();
        QVERIFY(missing > 2);
        const QString half(missing / 2 - 1, u'y');
        const QString rest(missing - half.size() - 1, u'z');
        PutDataInto(u"x"_s + half + u'/' + rest);
        QCOMPARE(WindowsFolder().size(), wanted);
    }

    QTemporaryDir folder_;
    QByteArray before_;
};

TORVIK_GUILESS_TEST(WindowsFolderNameTest)
#include "windows_folder_name_test.moc"
