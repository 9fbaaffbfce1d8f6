#include "sample/artwork/art_maker.h"

#include "sample/artwork/ad_layouts.h"
#include "sample/artwork/art_plan.h"
#include "sample/files/in_parallel.h"
#include "sample/files/jpeg_file.h"

#include <QBuffer>

#include <array>
#include <functional>
#include <stdexcept>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

QByteArray BmpBytes(const QImage& picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!picture.convertToFormat(QImage::Format_RGB888).save(&buffer, "BMP"))
        throw std::runtime_error("A picture cannot be encoded as a bitmap.");
    return bytes;
}

void MakeEach(const QString& disc, const std::vector<SmallPicture>& pictures,
              const std::function<QImage(const SmallPicture&)>& paint)
{
    InParallel(pictures.size(), [&](std::size_t i) {
        WriteFile(disc + u'/' + pictures[i].file, JpegBytes(paint(pictures[i]), 92));
    });
}

} // namespace

void MakeEmblems(const QString& disc)
{
    MakeEach(disc, PlanEmblems(), PaintEmblem);
}

void MakeScripts(const QString& disc)
{
    MakeEach(disc, PlanScripts(), PaintScript);
}

void MakeClipArt(const QString& disc)
{
    MakeEach(disc, PlanClipArt(), PaintClipArt);
}

void MakeAds(const QString& disc)
{
    const std::vector<PlannedAd>& ads = PlanAds();
    InParallel(ads.size(), [&](std::size_t i) {
        WriteFile(disc + u'/' + ads[i].File(), JpegBytes(PaintAd(ads[i]), 74));
    });
}

void MakeBookletArt(const QString& disc)
{
    const QString folder = disc + u"/graphics/"_s;
    const std::array<std::function<void()>, 3> pictures = {
        [&] { WriteFile(folder + u"logo.jpg"_s, JpegBytes(PaintBookletLogo(), 92)); },
        [&] { WriteFile(folder + u"bklettxt.jpg"_s, JpegBytes(PaintBookletTitle(), 92)); },
        [&] { WriteFile(folder + u"quillon3.bmp"_s, BmpBytes(PaintPublisherMark())); }};
    InParallel(pictures.size(), [&](std::size_t i) { pictures[i](); });
}

} // namespace torvik::sample
