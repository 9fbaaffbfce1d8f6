#include "support/discs/test_movie.h"

#include <QFile>
#include <QHash>
#include <QProcess>
#include <QTemporaryDir>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// Runs the encoder once for each kind of file and keeps what it made.
QByteArray Encoded(const QStringList& arguments, const QString& name)
{
    static QHash<QString, QByteArray> made;
    const QString key = arguments.join(u' ') + name;
    if (const auto found = made.constFind(key); found != made.constEnd())
        return *found;
    const QTemporaryDir folder;
    const QString file = folder.filePath(name);
    const int code = QProcess::execute(u"ffmpeg"_s, QStringList{u"-v"_s, u"error"_s, u"-y"_s} + arguments +
                                                        QStringList{file});
    QFile result(file);
    if (code != 0 || !result.open(QIODevice::ReadOnly))
        qFatal("ffmpeg does not make %s", qPrintable(key));
    return *made.insert(key, result.readAll());
}

QStringList Tone(int rate)
{
    return {u"-f"_s, u"lavfi"_s, u"-i"_s, u"sine=440:d=2:r=%1,volume=6"_s.arg(rate)};
}

QByteArray Number32(quint32 number)
{
    QByteArray bytes(4, Qt::Uninitialized);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

QByteArray Number16(quint16 number)
{
    QByteArray bytes(2, Qt::Uninitialized);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

QByteArray Numbers32(std::initializer_list<quint32> numbers)
{
    QByteArray bytes;
    for (const quint32 number : numbers)
        bytes += Number32(number);
    return bytes;
}

QByteArray Chunk(const char* type, const QByteArray& content)
{
    return QByteArray(type, 4) + Number32(static_cast<quint32>(content.size())) + content +
           QByteArray(content.size() % 2, '\0');
}

} // namespace

const QList<QColor>& TestMovie::Bars()
{
    static const QList<QColor> bars = {Qt::white,   Qt::yellow, Qt::cyan, Qt::green,
                                       Qt::magenta, Qt::red,    Qt::blue, Qt::black};
    return bars;
}

QByteArray TestMovie::Avi(const QStringList& codecs)
{
    QString graph;
    QString inputs;
    for (qsizetype bar = 0; bar < Bars().size(); ++bar) {
        graph += u"color=0x%1:s=20x60:r=15:d=2[b%2];"_s.arg(Bars()[bar].name().mid(1)).arg(bar);
        inputs += u"[b%1]"_s.arg(bar);
    }
    graph += inputs + u"hstack=8[top];testsrc=s=160x60:r=15:d=2:decimals=2[low];[top][low]vstack"_s;
    return Encoded(QStringList{u"-f"_s, u"lavfi"_s, u"-i"_s, graph} + Tone(22050) + codecs, u"movie.avi"_s);
}

QByteArray TestMovie::Wav(const QString& codec, int rate, int channels)
{
    return Encoded(Tone(rate) + QStringList{u"-ac"_s, QString::number(channels), u"-c:a"_s, codec},
                   u"sound.wav"_s);
}

QByteArray TestMovie::RunLengthAvi()
{
    constexpr quint32 rate = 15;
    const auto colours = static_cast<quint32>(Bars().size());
    QByteArray picture;
    for (int row = 0; row < height; ++row) {
        for (int bar = 0; bar < Bars().size(); ++bar)
            picture.append(static_cast<char>(width / Bars().size())).append(static_cast<char>(bar));
        picture.append(2, '\0');
    }
    picture.append('\0').append('\1');

    QByteArray format = Numbers32({40, width, height}) + Number16(1) + Number16(8) +
                        Numbers32({1, width * height, 0, 0, colours, colours});
    for (const QColor& bar : Bars())
        format.append(static_cast<char>(bar.blue()))
            .append(static_cast<char>(bar.green()))
            .append(static_cast<char>(bar.red()))
            .append('\0');
    const QByteArray main =
        Numbers32({1'000'000 / rate, 0, 0, 0x10, pictures, 0, 1, width * height, width, height, 0, 0, 0, 0});
    const QByteArray stream = QByteArray("vidsRLE ").left(4) + "RLE " +
                              Numbers32({0, 0, 0, 1, rate, 0, pictures, width * height, 0xffffffff, 0, 0}) +
                              Number16(width) + Number16(height);
    QByteArray content;
    QByteArray index;
    for (int number = 0; number < pictures; ++number) {
        index += "00dc" + Numbers32({0x10, static_cast<quint32>(content.size() + 4),
                                     static_cast<quint32>(picture.size())});
        content += Chunk("00dc", picture);
    }
    return Chunk(
        "RIFF", "AVI " +
                    Chunk("LIST", "hdrl" + Chunk("avih", main) +
                                      Chunk("LIST", "strl" + Chunk("strh", stream) + Chunk("strf", format))) +
                    Chunk("LIST", "movi" + content) + Chunk("idx1", index));
}

} // namespace torvik
