#include "sample/artwork/art_maker.h"

#include "sample/artwork/ad_page.h"
#include "sample/documents/figures.h"
#include "sample/files/in_parallel.h"
#include "sample/files/jpeg_file.h"

#include <QBuffer>

#include <array>
#include <functional>
#include <stdexcept>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

std::vector<SmallPicture> OnePerYear(const QString& pattern)
{
    std::vector<SmallPicture> pictures;
    for (const ModelYear& year : ModelYears())
        pictures.push_back({pattern.arg(TwoDigits(year.year)), year.year, Marque::Vollandry});
    return pictures;
}

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

QString TwoDigits(int year)
{
    return u"%1"_s.arg(year % 100, 2, 10, '0'_L1);
}

std::vector<SmallPicture> PlanEmblems()
{
    std::vector<SmallPicture> pictures = OnePerYear(u"emblems/emb%1.jpg"_s);
    pictures.push_back({u"emblems/embsb.jpg"_s, 1967, Marque::Harwell});
    pictures.push_back({u"emblems/EMBpt.jpg"_s, 1966, Marque::Prototype});
    return pictures;
}

std::vector<SmallPicture> PlanScripts()
{
    std::vector<SmallPicture> pictures = OnePerYear(u"SCRIPTS/scri%1.jpg"_s);
    pictures.push_back({u"SCRIPTS/SCRISB.jpg"_s, 1967, Marque::Harwell});
    pictures.push_back({u"SCRIPTS/SCRIpt.jpg"_s, 1966, Marque::Prototype});
    return pictures;
}

std::vector<SmallPicture> PlanClipArt()
{
    return OnePerYear(u"Clipart/%1clip.jpg"_s);
}

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
