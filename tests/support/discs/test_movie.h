#pragma once

#include <QByteArray>
#include <QColor>
#include <QList>
#include <QString>
#include <QStringList>

namespace torvik {

using namespace Qt::StringLiterals;

/// Movies and sounds for tests, made by the machine's own encoder.
///
/// A movie is 160 by 120 pixels, two seconds of 15 pictures each. Its upper half holds eight bars of the
/// colours `Bars`, its lower half changes with every picture. With it goes a tone of 440 hertz.
class TestMovie {
public:
    static constexpr int width = 160;
    static constexpr int height = 120;
    static constexpr int pictures = 30;
    static constexpr qint64 pictureDuration = 1'000'000 / 15; // microseconds

    static const QList<QColor>& Bars();

    /// The bytes of an AVI movie; `codecs` are the encoder's options for picture and sound.
    static QByteArray Avi(const QStringList& codecs = {u"-c:v"_s, u"mjpeg"_s, u"-q:v"_s, u"2"_s, u"-c:a"_s,
                                                       u"pcm_s16le"_s});
    /// The bytes of a WAV sound of two seconds.
    static QByteArray Wav(const QString& codec = u"pcm_s16le"_s, int rate = 22050, int channels = 1);
    /// A movie in run-length coded pictures with a palette, for which the encoder has no codec: the bars
    /// alone.
    static QByteArray RunLengthAvi();
};

} // namespace torvik
