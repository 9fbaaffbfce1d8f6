#include "picture_bytes.h"
#include "platform/failure.h"
#include "ui/media_control.h"

#include <QGuiApplication>
#include <QTest>

using namespace torvik;

namespace {

/// Half a second of silence.
QByteArray Wave()
{
    constexpr quint32 rate = 8000;
    constexpr quint32 size = rate / 2;
    QByteArray bytes = "RIFF\0\0\0\0WAVEfmt ";
    bytes.resize(44 + static_cast<int>(size));
    std::fill(bytes.begin() + 44, bytes.end(), '\x80');
    std::copy_n("RIFF", 4, bytes.begin());
    qToLittleEndian<quint32>(36 + size, bytes.data() + 4);
    std::copy_n("WAVEfmt ", 8, bytes.begin() + 8);
    qToLittleEndian<quint32>(16, bytes.data() + 16);
    qToLittleEndian<quint16>(1, bytes.data() + 20);
    qToLittleEndian<quint16>(1, bytes.data() + 22);
    qToLittleEndian<quint32>(rate, bytes.data() + 24);
    qToLittleEndian<quint32>(rate, bytes.data() + 28);
    qToLittleEndian<quint16>(1, bytes.data() + 32);
    qToLittleEndian<quint16>(8, bytes.data() + 34);
    std::copy_n("data", 4, bytes.begin() + 36);
    qToLittleEndian<quint32>(size, bytes.data() + 40);
    return bytes;
}

} // namespace

/// A media device that is driven by commands, on a machine that may have no sound at all.
class MediaControlTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void it_is_open_between_open_and_close()
    {
        MediaControl device(QStringLiteral("MMControl1"));
        QCOMPARE(device.objectName(), QStringLiteral("MMControl1"));
        device.SetDeviceType(QStringLiteral("WaveAudio"));
        device.SetFileName(folder_.Add(QStringLiteral("passby.wav"), Wave()));
        QVERIFY(!device.IsOpen());
        device.Command(QStringLiteral("open"));
        QVERIFY(device.IsOpen());
        device.Command(QStringLiteral("play"));
        QVERIFY(device.IsOpen());
        device.Command(QStringLiteral("close"));
        QVERIFY(!device.IsOpen());
    }

    void commands_come_in_any_order_and_letter_case()
    {
        MediaControl device(QStringLiteral("MMControl1"));
        device.SetFileName(folder_.Add(QStringLiteral("horns.wav"), Wave()));
        for (const char* word :
             {"play", "CLOSE", "Close", "OPEN", "Open", "Play", "PLAY", "close", "play", "close"})
            device.Command(QString::fromLatin1(word));
        QVERIFY(!device.IsOpen());
    }

    void an_unknown_word_is_failure_380()
    {
        MediaControl device(QStringLiteral("MMControl1"));
        for (const char* word : {"", "stop it", "opened"})
            QCOMPARE(ResumeNext([&] { device.Command(QString::fromLatin1(word)); }), 380);
    }

    void a_missing_or_damaged_file_stays_silent_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("missing") << QByteArray();
        QTest::newRow("text") << QByteArray("no sound at all");
        QTest::newRow("cut off") << Wave().left(60);
        QTest::newRow("header alone") << Wave().left(20);
        QTest::newRow("picture") << Encoded(FourCorners({8, 8}), "jpg");
    }

    void a_missing_or_damaged_file_stays_silent()
    {
        QFETCH(const QByteArray, bytes);
        MediaControl device(QStringLiteral("MMControl1"));
        device.SetFileName(bytes.isEmpty() ? folder_.PathOf(QStringLiteral("none.wav"))
                                           : folder_.Add(QStringLiteral("damaged.wav"), bytes));
        QCOMPARE(ResumeNext([&] {
                     device.Command(QStringLiteral("open"));
                     device.Command(QStringLiteral("play"));
                 }),
                 0);
        QCoreApplication::processEvents();
        device.Command(QStringLiteral("close"));
        QVERIFY(!device.IsOpen());
    }

    void a_drive_that_is_not_there_stays_silent()
    {
        MediaControl device(QStringLiteral("MMControl1"));
        for (const QString& path :
             {QStringLiteral("Q:\\wav\\horns.wav"), QString(), QStringLiteral("no path")}) {
            device.SetFileName(path);
            QCOMPARE(device.FileName(), path);
            QCOMPARE(ResumeNext([&] { device.Command(QStringLiteral("open")); }), 0);
            QCOMPARE(ResumeNext([&] { device.Command(QStringLiteral("play")); }), 0);
        }
    }

    void a_new_file_name_counts_from_the_next_open()
    {
        MediaControl device(QStringLiteral("MMControl1"));
        device.SetFileName(folder_.Add(QStringLiteral("a.wav"), Wave()));
        device.Command(QStringLiteral("open"));
        device.SetFileName(folder_.PathOf(QStringLiteral("none.wav")));
        device.Command(QStringLiteral("play"));
        device.Command(QStringLiteral("open"));
        QVERIFY(device.IsOpen());
    }

    void a_playing_device_may_go()
    {
        auto device = std::make_unique<MediaControl>(QStringLiteral("MMControl1"));
        device->SetFileName(folder_.Add(QStringLiteral("a.wav"), Wave()));
        device->Command(QStringLiteral("open"));
        device->Command(QStringLiteral("play"));
        QCoreApplication::processEvents();
        device.reset();
        QCoreApplication::processEvents();
        QVERIFY(device == nullptr);
    }

private:
    PictureFolder folder_;
};

int main(int argc, char** argv)
{
    qputenv("QT_MEDIA_BACKEND", "ffmpeg"); // what the program chooses
    QGuiApplication application(argc, argv);
    MediaControlTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "media_control_test.moc"
