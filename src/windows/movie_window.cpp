#include "windows/movie_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

const QString movieCaptions[movieOptionCount] = {u"1967 \"Volcano\""_s, u"1969 Torvik"_s,
                                                 u"The Super Glider"_s, u"Q44 \"Shadows\""_s,
                                                 u"Rock and Roll"_s,    QString()};

ControlArray<OptionButton> MakeOptions(Form& form)
{
    ControlArray<OptionButton> options(u"optMovie"_s);
    for (int index = 0; index < movieOptionCount; ++index) {
        // Without a caption an option is no wider than its ring, so that all of it can be clicked.
        const double width = movieCaptions[index].isEmpty() ? 300 : 2460;
        options.Add(index, form, Twips{5580, 240.0 + index * 480, width, 360}, movieCaptions[index]);
    }
    return options;
}

} // namespace

frmMovieControls::frmMovieControls()
    : Form({.name = u"frmMovie"_s, .caption = u"Torvik Movies"_s, .clientWidth = 8220, .clientHeight = 4860}),
      optMovie(MakeOptions(*this))
{
    PicMovie.Show(Picture::FromResource(u":/assets/movie_opening.png"_s));
    HScroll1.Hide(); // belongs to the form but moves nothing
}

} // namespace torvik
