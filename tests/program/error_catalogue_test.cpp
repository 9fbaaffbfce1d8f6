#include "program/program_state.h"
#include "program/report_error.h"
#include "support/browsing_fixture.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

const QString discHint = u"\r\n\r\nMake sure that the Torvik Vollandry is in the CDROM drive."_s;

} // namespace

/// The box that comes up for each code, to the blank.
class ErrorCatalogueTest : public BrowsingFixture {
    Q_OBJECT

private Q_SLOTS:
    void every_code_has_its_text_its_box_and_its_hint_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("retry");
        QTest::addColumn<bool>("hint");
        const auto ok = [](const char* code, const char* text) {
            QTest::newRow(code) << QString::fromLatin1(text) << false << true;
        };
        const auto retry = [](const char* code, const char* text) {
            QTest::newRow(code) << QString::fromLatin1(text) << true << true;
        };
        const auto bare = [](const char* code, const char* text) {
            QTest::newRow(code) << QString::fromLatin1(text) << false << false;
        };
        retry("ER001", " Unable to detect the Torvik Vollandry CDROM.");
        ok("ER002", " Unable to load  Description  for year selected.");
        ok("ER003", " Unable to load Intel Video driver install software.");
        for (const char* code : {"ER004", "ER005", "ER006", "ER007", "ER008", "ER009", "ER010", "ER025",
                                 "ER026", "ER027", "ER028", "ER029", "ER030", "ER031"})
            ok(code, " Unable to load the text file.");
        ok("ER011", " Unable to load Slide Show photo.");
        ok("ER012", " Unable to load photo.");
        for (const char* code : {"ER013", "ER014", "ER015", "ER016", "ER017", "ER018", "ER039"})
            ok(code, " Unable to load Slide Show photo.");
        ok("ER020", " Error loading text file.");
        ok("ER021", " Unable to load  Script  for year selected.");
        ok("ER022", " Unable to load  Emblem  for year selected.");
        ok("ER023", " Torvik photo not found for year selected.");
        ok("ER024", " Torvik clip art not found for year selected.");
        ok("ER033", " Unable to load 'Postage Stamps' text file.");
        bare("ER034", " You must select both a Start Year and an End Year. ");
        ok("ER035", " Torvik clip art not found for year selected.");
        bare("ER036", " 'TO' year may not be earlier than 'FROM' year.");
        retry("ER037", " Unable to load the photo array.");
        ok("ER038", " Unable to load the 'Sound Effects' file.");
        ok("ER040", " Unable to load file for printing.");
        ok("ER041", " Unable to load  Rear Emblem for year selected.");
        ok("ER042", " Unable to load  Side Emblem for year selected.");
        ok("ER043", "  ");
        ok("ER044", " Unable to load Torvik Ad.");
        ok("ER045", " Unable to load Torvik Movie.");
        for (const char* code : {"ER046", "ER047", "ER048", "ER051"})
            ok(code, " ");
        ok("ER049", " Unable to find Screen Saver.");
        ok("ER050", " Unable to load 'Identification Guide' text file.");
        ok("ER052", " Unable to load 'Install Screen Saver Help' text file.");
        ok("ER053", " Unable to load 'Contributions' text file.");
        ok("ER054", "       ");
        retry("ER055", " Unable to detect the Torvik Vollandry CDROM.");
        ok("ER056", " Unable to load 'What's New' text file.");
    }

    void every_code_has_its_text_its_box_and_its_hint()
    {
        QFETCH(QString, text);
        QFETCH(bool, retry);
        QFETCH(bool, hint);
        const QString code = QString::fromLatin1(QTest::currentDataTag());
        const MessageRequest box = BoxOf(code);
        QCOMPARE(box.text, u"Error number: "_s + code + u"\r\n\r\n"_s + text + (hint ? discHint : QString()));
        QCOMPARE(box.style, retry ? 5 : 16);
        QCOMPARE(box.title, u"The Torvik Vollandry"_s);
    }

    void a_code_outside_the_catalogue_has_an_empty_text()
    {
        for (const QString& code : {u"ER019"_s, u"ER057"_s, u"ER999"_s, QString()}) {
            const MessageRequest box = BoxOf(code);
            QCOMPARE(box.text, u"Error number: "_s + code + u"\r\n\r\n"_s + discHint);
            QCOMPARE(box.style, 16);
        }
    }

    void the_sound_file_loses_its_first_five_characters()
    {
        state.SoundFile = u"E:\\wav\\1969.wav"_s;
        QCOMPARE(BoxOf(u"ER032"_s).text,
                 u"Error number: ER032\r\n\r\n Unable to load sound file: v\\1969.wav"_s + discHint);
        QCOMPARE(int(state.LoopIndex), 10);
    }

private:
    MessageRequest BoxOf(const QString& code)
    {
        program_->messages.Answer(msgbox::answerRetry);
        state.ErrorCode = code;
        ReportError();
        return program_->messages.Last();
    }
};

TORVIK_TEST(ErrorCatalogueTest)
#include "error_catalogue_test.moc"
