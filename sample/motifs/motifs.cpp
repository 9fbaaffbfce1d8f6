#include "sample/motifs/motifs.h"

namespace torvik::sample {

QImage PaintMotif(const PlannedPhoto& photo)
{
    switch (photo.motif) {
    case Motif::Dashboard:
        return PaintDashboard(photo);
    case Motif::Engine:
        return PaintEngine(photo);
    case Motif::Badge:
        return PaintBadge(photo);
    case Motif::Stamps:
        return PaintStamps(photo);
    case Motif::Sign:
        return PaintSign(photo);
    case Motif::DieCast:
        return PaintDieCast(photo);
    case Motif::Knife:
        return PaintKnife(photo);
    case Motif::Cookies:
        return PaintCookies(photo);
    case Motif::BoardGame:
        return PaintBoardGame(photo);
    case Motif::Clay:
        return PaintClay(photo);
    case Motif::Sketch:
    case Motif::Car:
        break;
    }
    return PaintSketch(photo);
}

} // namespace torvik::sample
