#include "sample/artwork/art_plan.h"
#include "sample/render/painting_words.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

QImage PaintEmblem(const SmallPicture& emblem)
{
    struct Look {
        const char* name;
        QColor middle, rim;
    };
    // In the order of the marques.
    static const Look looks[] = {{"Vollandry", QColor(196, 200, 206), QColor(120, 126, 136)},
                                 {"Harwell", QColor(214, 206, 190), QColor(150, 140, 124)},
                                 {"Prototype", QColor(196, 200, 204), QColor(128, 134, 140)}};
    const Look& look = looks[static_cast<std::size_t>(emblem.marque)];
    const QSize size(200, 124);
    Relief relief(size);
    Script script("emblems");
    TeachRelief(script, relief);
    script.Set(u"marque"_s, QString::fromLatin1(look.name));
    script.Set(u"year"_s, emblem.year);
    script.Run();
    return relief.Over(SoftGround(size, look.middle, look.rim));
}

} // namespace torvik::sample
