#include "windows/movie_window.h"

namespace torvik {

namespace {

const QString movieCaptions[movieOptionCount] = {
    QStringLiteral("1967 \"Volcano\""), QStringLiteral("1969 Torvik"),   QStringLiteral("The Super Glider"),
    QStringLiteral("Q44 \"Shadows\""),  QStringLiteral("Rock and Roll"), QString()};

FormDesign DesignOfMovie()
{
    FormDesign design;
    design.Name = QStringLiteral("frmMovie");
    design.Caption = QStringLiteral("Torvik Movies");
    design.ClientWidth = 8220;
    design.ClientHeight = 4860;
    return design;
}

ControlArray<OptionButton> MakeOptions(Form& form)
{
    ControlArray<OptionButton> options(QStringLiteral("optMovie"));
    for (int index = 0; index < movieOptionCount; ++index) {
        // Without a caption an option is no wider than its ring, so that all of it can be clicked.
        const double width = movieCaptions[index].isEmpty() ? 300 : 2460;
        options.Add(index, form, Twips{5580, 240.0 + index * 480, width, 360}, movieCaptions[index]);
    }
    return options;
}

} // namespace

frmMovieControls::frmMovieControls() : Form(DesignOfMovie()), optMovie(MakeOptions(*this))
{
    PicMovie.Show(Picture::FromResource(QStringLiteral(":/assets/movie_opening.png")));
    HScroll1.Hide(); // belongs to the form but moves nothing
}

} // namespace torvik
