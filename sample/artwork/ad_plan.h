#pragma once

#include "sample/geometry/lettering.h"
#include "sample/photos/photo_plan.h"

#include <QColor>
#include <QSize>
#include <QString>
#include <QStringList>

#include <vector>

namespace torvik::sample {

/// How a page is divided.
enum class AdLayout {
    PictureOverText, ///< picture above, headline and three columns below: the sixties
    FullPicture,     ///< the picture fills the page, words stand in the sky and on a band
    Stripes,         ///< coloured paper, broad stripes, a rounded picture: the seventies
    Grid,            ///< rules, tables and narrow letters: the eighties
    Spread           ///< a page on its side: picture left, words right
};

/// An advertisement: what it shows and how it is set.
struct PlannedAd {
    int year = 1967;
    AdLayout layout = AdLayout::PictureOverText;
    View view = View::FrontLeft;
    Place place = Place::Coast;
    QString paint; ///< a name of the year's colour card
    QColor paper;
    QColor ink;
    QColor accent;
    Type headline;
    Type body;

    /// "ads/67brto00.jpg".
    QString File() const;
    /// The pages of a spread lie on their side; the viewer shows them so.
    QSize Size() const;
};

/// One for each year but 2001, whose advertisement has not been released.
const std::vector<PlannedAd>& PlanAds();

/// The words of an advertisement.
struct AdCopy {
    QString headline;
    QString lead; ///< one or two sentences that stand by themselves
    QStringList paragraphs;
};

/// The words for a year, with its figures put in. Throws std::out_of_range for a year without an
/// advertisement and std::runtime_error for a figure that the year does not have.
AdCopy AdCopyOf(int year);

} // namespace torvik::sample
