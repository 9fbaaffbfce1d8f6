#include "program/catalogue/pictures.h"

#include "program/catalogue/topics.h"
#include "runtime/text.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr CoverPicture coverPictures[] = {
    {"\\graphics\\logo.jpg", 1600, 1600},
    {"\\clipart\\97clip.jpg", 2600, 4300},
    {"\\graphics\\bklettxt.jpg", 500, 8800},
    {"\\graphics\\quillon3.bmp", 2800, 12000},
};

QString PictureOf(const QString& title, const char* Topic::*own, const QString& stem)
{
    const Topic* topic = TopicOf(title);
    if (topic != nullptr && *(topic->*own) != '\0')
        return QLatin1String(topic->*own);
    return stem + Mid(title, 3, 2) + u".jpg"_s;
}

} // namespace

QString EmblemOf(const QString& title)
{
    return PictureOf(title, &Topic::emblem, u"\\emblems\\emb"_s);
}

QString ScriptOf(const QString& title)
{
    return PictureOf(title, &Topic::script, u"\\scripts\\scri"_s);
}

QString ClipArtOf(const QString& code)
{
    return u"\\ClipArt\\"_s + code + u"clip.jpg"_s;
}

QString AdvertisementOf(const QString& title)
{
    return u"\\ads\\"_s + Mid(title, 3, 2) + u"brto00.jpg"_s;
}

std::span<const CoverPicture> CoverPictures()
{
    return coverPictures;
}

} // namespace torvik
