#include "sample/disc_maker.h"

#include "sample/files/in_parallel.h"
#include "sample/files/jpeg_file.h"
#include "sample/motifs/motifs.h"
#include "sample/movies/cards.h"
#include "sample/movies/movie_plan.h"
#include "sample/photos/captions.h"
#include "sample/sounds/effects.h"
#include "sample/titles/title_art.h"

#include <QBuffer>

#include <algorithm>
#include <stdexcept>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

constexpr int photoQuality = 74; // a disc of less than 60 MiB, and the grain of the film still to be seen

void MakePhoto(const QString& disc, const PlannedPhoto& photo)
{
    QImage picture = TakePhoto(photo);
    QByteArray bytes;
    if (photo.storing == Storing::TurnedWithTag)
        bytes = WithTurnTag(JpegBytes(picture.transformed(QTransform().rotate(-90)), photoQuality));
    else
        bytes = JpegBytes(picture, photoQuality);
    WriteFile(disc + u"/Torviks/"_s + photo.file, bytes);
}

void WritePng(const QString& path, const QImage& picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!picture.save(&buffer, "PNG"))
        throw std::runtime_error("The artwork cannot be encoded.");
    WriteFile(path, bytes);
}

} // namespace

void MakePhotos(const QString& disc)
{
    std::vector<PlannedPhoto> photos = PlanPhotos();
    // The large ones first, so that no worker is left alone with one at the end.
    std::stable_sort(photos.begin(), photos.end(), [](const PlannedPhoto& a, const PlannedPhoto& b) {
        return a.size.width() * a.size.height() > b.size.width() * b.size.height();
    });
    InParallel(photos.size(), [&](std::size_t i) { MakePhoto(disc, photos[i]); });
}

void MakeCaptions(const QString& disc)
{
    const QString folder = disc + u"/RichText/"_s;
    for (const PlannedPhoto& photo : PlanPhotos()) {
        const Caption caption = CaptionOf(photo);
        WriteFile(folder + caption.file, caption.text);
    }
    for (const Caption& note : PlanNotes())
        WriteFile(folder + note.file, note.text);
}

void MakeOpeningPicture(const QString& disc, const QString& program)
{
    const QByteArray bytes = JpegBytes(PaintOpening({1280, 776}), 88);
    WriteFile(disc + u"/graphics/ClassicTorviks.jpg"_s, bytes);
    WriteFile(program + u"/graphics/ClassicTorviks.jpg"_s, bytes);
}

void MakeSounds(const QString& disc)
{
    const std::vector<Effect>& effects = SoundEffects();
    InParallel(effects.size(), [&](std::size_t i) {
        WriteFile(disc + u"/wav/"_s + QLatin1String(effects[i].file), MakeEffect(effects[i]));
    });
}

void MakeMovies(const QString& disc)
{
    for (const MoviePlan& plan : Movies())
        WriteFile(disc + u"/movies/"_s + QLatin1String(plan.file), MakeMovie(plan));
}

void MakePassBySound(const QString& program)
{
    WriteFile(program + u"/passby.wav"_s, EffectNamed("passby.wav"));
}

void MakeAssets(const QString& folder)
{
    WritePng(folder + u"/splash.png"_s, PaintSplash(1));
    WritePng(folder + u"/splash@2x.png"_s, PaintSplash(2));
    WritePng(folder + u"/icon.png"_s, PaintIcon(256));
    WritePng(folder + u"/movie_opening.png"_s, PaintMovieOpening({320, 217}));
    WriteFile(folder + u"/slide_show.jpg"_s, JpegBytes(PaintSlideShow({1568, 972}), 88));
}

void MakeIcons(const QString& folder)
{
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512})
        WritePng(folder + u"/%1.png"_s.arg(size), PaintIcon(size));
}

} // namespace torvik::sample
