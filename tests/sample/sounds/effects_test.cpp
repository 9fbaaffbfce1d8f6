#include "sample/files/in_parallel.h"
#include "sample/sounds/effects.h"
#include "support/discs/number_at.h"
#include "support/test_class.h"

#include <QHash>
#include <QSet>
#include <QtTest>

#include <cstring>

using namespace torvik;
using namespace torvik::sample;

namespace {

/// A wave file taken apart, by the rules of the format and not by the code that wrote it.
struct ReadWave {
    int format = 0;
    int channels = 0;
    int rate = 0;
    int bits = 0;
    std::vector<int> samples; ///< full scale is 32767

    double Seconds() const
    {
        return channels == 0 ? 0.0
                             : static_cast<double>(samples.size()) / static_cast<double>(channels * rate);
    }
};

ReadWave ReadWaveFile(const QByteArray& file)
{
    ReadWave wave;
    if (!file.startsWith("RIFF") || file.mid(8, 4) != "WAVE" || NumberAt(file, 4, 4) != file.size() - 8)
        return wave;
    for (qsizetype at = 12; at + 8 <= file.size();) {
        const int size = NumberAt(file, at + 4, 4);
        const qsizetype content = at + 8;
        if (file.mid(at, 4) == "fmt ") {
            wave.format = NumberAt(file, content, 2);
            wave.channels = NumberAt(file, content + 2, 2);
            wave.rate = NumberAt(file, content + 4, 4);
            wave.bits = NumberAt(file, content + 14, 2);
        } else if (file.mid(at, 4) == "data") {
            for (qsizetype i = content; i < content + size; i += wave.bits / 8) {
                const int number = NumberAt(file, i, wave.bits / 8);
                wave.samples.push_back(wave.bits == 8 ? (number - 128) * 258
                                                      : static_cast<std::int16_t>(number));
            }
        }
        at = content + size + size % 2;
    }
    return wave;
}

double LoudnessOf(const ReadWave& wave)
{
    double sum = 0;
    for (const int sample : wave.samples)
        sum += static_cast<double>(sample) * sample;
    return std::sqrt(sum / static_cast<double>(wave.samples.size())) / 32767;
}

} // namespace

class EffectsTest : public QObject {
    Q_OBJECT

private:
    QHash<QString, QByteArray> files_;

    void AddRows()
    {
        QTest::addColumn<QString>("file");
        for (const Effect& effect : SoundEffects())
            QTest::newRow(effect.file) << QString::fromLatin1(effect.file);
    }

private Q_SLOTS:
    void initTestCase()
    {
        const std::vector<Effect>& effects = SoundEffects();
        std::vector<QByteArray> made(effects.size());
        InParallel(effects.size(), [&](std::size_t i) { made[i] = MakeEffect(effects[i]); });
        for (std::size_t i = 0; i < effects.size(); ++i)
            files_.insert(QString::fromLatin1(effects[i].file), made[i]);
    }

    void the_29_sounds_of_the_buttons_are_planned_in_the_order_of_the_buttons()
    {
        const QStringList expected = {
            "backfrng.wav", "car_door.wav", "carhorns.wav", "horns.wav",     "cop-car.wav",   "taxi.wav",
            "sportcar.wav", "18wheelr.wav", "peel-out.wav", "Track2.wav",    "nascar.wav",    "racecar.wav",
            "indy-car.wav", "mcycle.wav",   "batmoble.wav", "62sellark.wav", "63sellark.wav", "selstart.wav",
            "passby.wav",   "selcar.wav",   "qr7start.wav", "motorcyc2.wav", "hot_rod.wav",   "red_lght.wav",
            "porche.wav",   "stealth.wav",  "stuck.wav",    "revnrun.wav",   "goingby.wav"};
        QStringList planned;
        for (const Effect& effect : SoundEffects())
            planned << QString::fromLatin1(effect.file);
        QCOMPARE(planned, expected);
        QCOMPARE(planned.size(), 29);
    }

    void every_file_has_the_planned_length_and_form_data() { AddRows(); }
    void every_file_has_the_planned_length_and_form()
    {
        QFETCH(QString, file);
        const ReadWave wave = ReadWaveFile(files_.value(file));
        for (const Effect& effect : SoundEffects()) {
            if (file != QLatin1String(effect.file))
                continue;
            QCOMPARE(wave.format, 1);
            QCOMPARE(wave.channels, effect.channels);
            QCOMPARE(wave.rate, effect.form.rate);
            QCOMPARE(wave.bits, effect.form.bits);
            QVERIFY(std::abs(wave.Seconds() - effect.seconds) < 0.001);
            QVERIFY(effect.seconds >= 1 && effect.seconds <= 8);
        }
    }

    void no_sound_is_cut_off_at_full_scale_or_too_faint_data() { AddRows(); }
    void no_sound_is_cut_off_at_full_scale_or_too_faint()
    {
        QFETCH(QString, file);
        const ReadWave wave = ReadWaveFile(files_.value(file));
        const auto [low, high] = std::minmax_element(wave.samples.begin(), wave.samples.end());
        const int loudest = std::max(-*low, *high);
        QVERIFY2(loudest > 28000 && loudest < 30200, qPrintable(QString::number(loudest)));
        QVERIFY2(LoudnessOf(wave) > 0.05, qPrintable(QString::number(LoudnessOf(wave))));
    }

    void every_sound_begins_and_ends_in_silence_data() { AddRows(); }
    void every_sound_begins_and_ends_in_silence()
    {
        QFETCH(QString, file);
        const ReadWave wave = ReadWaveFile(files_.value(file));
        QVERIFY(wave.samples.size() > 4);
        for (std::size_t i = 0; i < 2; ++i) {
            QVERIFY(std::abs(wave.samples[i]) < 700);
            QVERIFY(std::abs(wave.samples[wave.samples.size() - 1 - i]) < 700);
        }
    }

    void no_two_sounds_are_the_same()
    {
        QSet<QByteArray> different;
        for (const QByteArray& file : std::as_const(files_))
            different.insert(file);
        QCOMPARE(different.size(), 29);
    }

    void a_disc_of_the_time_has_stereo_sounds_and_such_with_fewer_bits_and_lower_rates()
    {
        int stereo = 0;
        int eightBits = 0;
        int lowRate = 0;
        int usual = 0;
        for (const QByteArray& file : std::as_const(files_)) {
            const ReadWave wave = ReadWaveFile(file);
            stereo += wave.channels == 2 ? 1 : 0;
            eightBits += wave.bits == 8 ? 1 : 0;
            lowRate += wave.rate == 11025 ? 1 : 0;
            usual += wave.channels == 1 && wave.bits == 16 && wave.rate == 22050 ? 1 : 0;
        }
        QVERIFY(stereo >= 3);
        QVERIFY(eightBits >= 3);
        QVERIFY(lowRate >= 2);
        QVERIFY(usual > 14);
    }

    void the_same_bytes_come_out_every_time()
    {
        for (const char* file : {"passby.wav", "taxi.wav", "horns.wav"})
            QCOMPARE(EffectNamed(file), files_.value(QString::fromLatin1(file)));
    }

    void a_sound_that_is_not_planned_cannot_be_made()
    {
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, EffectNamed("silence.wav"));
    }
};

TORVIK_APPLESS_TEST(EffectsTest)
#include "effects_test.moc"
