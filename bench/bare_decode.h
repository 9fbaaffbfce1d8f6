#pragma once

#include <QFile>
#include <QImage>
#include <QString>

#include <turbojpeg.h>

namespace torvik::bench {

/// The bare JPEG decoder: what showing a picture costs at least.
class BareDecoder {
public:
    BareDecoder() : handle_(tjInitDecompress()) {}
    ~BareDecoder() { tjDestroy(handle_); }
    BareDecoder(const BareDecoder&) = delete;
    BareDecoder& operator=(const BareDecoder&) = delete;

    /// A file of the host as large as fits into `area`: decoded at the smallest eighth that covers that, and
    /// scaled once where this is not yet the size. Null when the file is no JPEG.
    QImage Decode(const QString& path, const QSize& area) const
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return {};
        QByteArray bytes = file.readAll();
        auto* data = reinterpret_cast<unsigned char*>(bytes.data());
        const auto size = static_cast<unsigned long>(bytes.size());
        int width = 0;
        int height = 0;
        int sampling = 0;
        int space = 0;
        if (tjDecompressHeader3(handle_, data, size, &width, &height, &sampling, &space) != 0)
            return {};
        const QSize target = QSize(width, height).scaled(area, Qt::KeepAspectRatio);
        const tjscalingfactor factor = Reduction({width, height}, target);
        QImage reduced(TJSCALED(width, factor), TJSCALED(height, factor), QImage::Format_RGB32);
        if (tjDecompress2(handle_, data, size, reduced.bits(), reduced.width(),
                          static_cast<int>(reduced.bytesPerLine()), reduced.height(), TJPF_BGRX, 0) != 0)
            return {};
        return reduced.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }

private:
    /// The smallest eighth at which the picture still covers the target.
    static tjscalingfactor Reduction(const QSize& whole, const QSize& target)
    {
        tjscalingfactor best{1, 1};
        int count = 0;
        const tjscalingfactor* factors = tjGetScalingFactors(&count);
        for (int index = 0; index < count; ++index) {
            const bool covers = TJSCALED(whole.width(), factors[index]) >= target.width() &&
                                TJSCALED(whole.height(), factors[index]) >= target.height();
            if (covers && factors[index].num * best.denom < best.num * factors[index].denom)
                best = factors[index];
        }
        return best;
    }

    tjhandle handle_;
};

} // namespace torvik::bench
