#include "platform/system/settings_store.h"
#include "saver/saver_settings.h"
#include "support/test_class.h"
#include "ui/forms/program_title.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

// The names as the saver has always looked for them.
const QString application = u"SCRNSAVE: The Torvik Vollandry 2001"_s;

void Store(const char* key, const QString& text)
{
    SaveSetting(application, u"Settings"_s, QString::fromLatin1(key), text);
}

void Forget()
{
    QFile::remove(qEnvironmentVariable("XDG_CONFIG_HOME") + u'/' + application + u".ini"_s);
}

} // namespace

/// The two settings that the saver reads.
class SaverSettingsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { Forget(); }
    void cleanup() { Forget(); }

    void the_application_is_the_title_with_a_word_in_front()
    {
        QCOMPARE(application, u"SCRNSAVE: "_s + applicationTitle);
    }

    void what_the_installation_wrote_is_read()
    {
        Store("Interval", u"15"_s);
        Store("TorviksDir", u"C:\\opt\\torvik\\ssTorviks\\"_s);
        const SaverSettings read = ReadSaverSettings();
        QCOMPARE(read.interval, 15000);
        QCOMPARE(read.folder, u"C:\\opt\\torvik\\ssTorviks\\"_s);
    }

    void before_the_installation_there_is_no_folder_and_a_calm_interval()
    {
        const SaverSettings read = ReadSaverSettings();
        QCOMPARE(read.interval, 5000);
        QCOMPARE(read.folder, QString());
    }

    void an_interval_is_brought_within_its_bounds_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("milliseconds");
        const auto row = [](const char* text, int milliseconds) {
            QTest::newRow(text) << QString::fromLatin1(text) << milliseconds;
        };
        row("1", 1000);
        row("60", 60000);
        row("2.5", 2500);
        row(" 7 ", 7000);
        row("0", 1000);
        row("-3", 1000);
        row("0.001", 1000);
        row("100000", 3'600'000);
        row("1e300", 3'600'000);
        row("1e999", 5000); // more than the machine can hold
        row("", 5000);
        row("soon", 5000);
        row("nan", 5000);
        row("3 seconds", 5000);
    }

    void an_interval_is_brought_within_its_bounds()
    {
        QFETCH(QString, text);
        Store("Interval", text);
        QTEST(ReadSaverSettings().interval, "milliseconds");
    }

    void a_folder_without_a_closing_backslash_gets_one()
    {
        Store("TorviksDir", u"E:\\Torviks"_s);
        QCOMPARE(ReadSaverSettings().folder, u"E:\\Torviks\\"_s);
        Store("TorviksDir", u"E:\\Torviks/"_s);
        QCOMPARE(ReadSaverSettings().folder, u"E:\\Torviks/"_s);
    }

    void a_file_that_is_no_settings_file_counts_as_none()
    {
        QFile file(qEnvironmentVariable("XDG_CONFIG_HOME") + u'/' + application + u".ini"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(5000, '\xff') + "[Settings\n=\n\n%%%=3");
        file.close();
        QCOMPARE(ReadSaverSettings().interval, 5000);
        QCOMPARE(ReadSaverSettings().folder, QString());
    }
};

TORVIK_GUILESS_TEST(SaverSettingsTest)
#include "saver_settings_test.moc"
