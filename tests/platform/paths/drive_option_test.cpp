#include "platform/paths/drive_option.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// The value of --drive.
class DriveOptionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_letter_and_a_folder_are_read_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QChar>("letter");
        QTest::addColumn<QString>("folder");
        QTest::newRow("plain") << "E=/media/disc" << QChar(u'E') << "/media/disc";
        QTest::newRow("small letter and colon") << "z:=disc" << QChar(u'Z') << "disc";
        QTest::newRow("signs in the folder") << "D=a=b:c" << QChar(u'D') << "a=b:c";
    }

    void a_letter_and_a_folder_are_read()
    {
        QFETCH(QString, text);
        const auto drive = ReadDriveOption(text);
        QVERIFY(drive.has_value());
        QTEST(drive->letter, "letter");
        QTEST(drive->folder, "folder");
    }

    void anything_else_is_refused_with_the_text_in_the_complaint()
    {
        for (const char* text : {"", "E", "E=", "C=/x", "1=/x", "EE=/x", "/media"}) {
            QVERIFY2(!ReadDriveOption(QString::fromLatin1(text)), text);
            QVERIFY(DriveOptionProblem(QString::fromLatin1(text))
                        .contains(u"\"%1\""_s.arg(QString::fromLatin1(text))));
        }
    }
};

TORVIK_APPLESS_TEST(DriveOptionTest)
#include "drive_option_test.moc"
