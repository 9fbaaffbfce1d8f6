#include "sample/photos/captions.h"

#include "sample/car/paints.h"
#include "sample/files/rtf_writer.h"

#include <array>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

QString Pick(std::initializer_list<const char*> choices, int variant)
{
    const auto index = static_cast<std::size_t>(variant) % choices.size();
    return QString::fromLatin1(*(choices.begin() + index));
}

QString PlaceText(Place place, int variant)
{
    switch (place) {
    case Place::Coast:
        return Pick({"on the cliff road above Saltmarsh Bay", "at the lay-by of Cape Orrin",
                     "on the shore road near Tern Point"},
                    variant);
    case Place::Desert:
        return Pick({"on the long straight through the Ochre Flats", "below the mesas of Dry Lantern",
                     "at the edge of the Callow Desert"},
                    variant);
    case Place::City:
        return Pick({"on Lantern Street after the rain", "in the theatre quarter of Port Averel",
                     "under the lights of Ninth Quay"},
                    variant);
    case Place::Strip:
        return Pick({"at the start of the Millbrook drag strip",
                     "on a Sunday at Millbrook, waiting for the green light",
                     "in the staging lane at Fallow Field"},
                    variant);
    case Place::Showroom:
        return Pick({"on the polished floor of the Brandt & Sons showroom",
                     "at its first evening before the dealers", "under the lamps of the works museum"},
                    variant);
    case Place::Snow:
        return Pick({"on the first snow below Mount Hessel", "at the head of the Ravensgate Pass",
                     "in the winter trials at Lake Hessel"},
                    variant);
    case Place::Autumn:
        return Pick({"under the maples of Ridley Wood", "on the lane to the old Torvik works in October",
                     "in the park at Hollins Green"},
                    variant);
    case Place::Studio:
        break;
    }
    return u"in the studio of the works"_s;
}

QString ViewText(View view, int variant)
{
    switch (view) {
    case View::FrontLeft:
    case View::FrontRight:
        return Pick({"The long bonnet leads the eye", "Seen from the corner that the stylists liked best",
                     "A car that looks fast while it stands"},
                    variant);
    case View::Side:
    case View::SideRight:
        return Pick({"In profile the short tail shows", "The line of the flank in one sweep",
                     "Side on, the proportions are plain to see"},
                    variant);
    case View::RearLeft:
    case View::RearRight:
        return Pick({"The view that most other drivers got", "Broad haunches and a crisp tail",
                     "From behind, the lamps tell the year"},
                    variant);
    case View::High:
        return Pick(
            {"From above, the bonnet takes half of the car", "A ladder was all that this picture took"},
            variant);
    case View::LowFront:
        return Pick(
            {"Low down, at the height of the bumper", "The photographer lay on the ground for this one"},
            variant);
    case View::HeadOn:
        return Pick({"Face to face", "What the mirror showed shortly before being overtaken"}, variant);
    case View::Wheel:
        return Pick({"The wheel of the season at close range", "Wheel and tyre, cleaned for the camera"},
                    variant);
    case View::Nose:
        return Pick({"Grille, lamps and badge at close range", "The face of the model year"}, variant);
    case View::Tail:
        return Pick({"The tail lamps at close range", "Lamps, lid and number plate"}, variant);
    }
    return {};
}

QString CarText(const PlannedPhoto& photo)
{
    const Paint paint = PaintOf(photo);
    return ViewText(photo.view, photo.variant) % u": a car in "_s % paint.name % u' ' %
           PlaceText(photo.place, photo.variant) % u". "_s %
           Pick({"Owned from new by one family.", "Restored over four winters.",
                 "The tyres are of a later make.", "It has covered more than 90,000 miles.",
                 "The picture hung in the dealer's office for years.", "Only the mirrors are not original.",
                 "One of the press cars of the season."},
                photo.variant + photo.number);
}

QString TopicText(const PlannedPhoto& photo)
{
    const int n = photo.number;
    switch (photo.motif) {
    case Motif::Stamps:
        return Pick({"A sheet of six for the anniversary, issued by the island post of Averel.",
                     "The express set, perforated by hand and never sold over the counter.",
                     "First-day sheet with the works in the margin.",
                     "The proof in a single colour was thought lost.",
                     "A misprint: the blue lies two millimetres too far down."},
                    n - 1);
    case Motif::Sign:
        return Pick({"Enamelled tin from a filling station on the coast road.",
                     "Dealer's sign, made for wet weather and still bright.",
                     "A wall sign of the service department.",
                     "Reproduction of the sixties, aged by two real winters.",
                     "Garage sign with the price of an oil change that nobody believes today."},
                    n - 1);
    case Motif::DieCast:
        return Pick({"Scale 1:24, doors and bonnet open. The box is worth as much as the car.",
                     "Numbered edition of 2,500 with a chrome stand.",
                     "The wheels turn and the paint is the works' own.",
                     "Made from 132 parts, says the leaflet; we counted 131.",
                     "A first issue with the wrong wheels, much looked for.",
                     "The display case keeps the dust off."},
                    n - 1);
    case Motif::Knife:
        return Pick({"Folding knife with the car under clear resin.",
                     "The handle carries the colours of the first season.",
                     "Etched blade, and a pouch that nobody kept.",
                     "Given to dealers who sold fifty cars in a year."},
                    n - 1);
    case Motif::Cookies:
        return Pick({"Butter cookies cut in the shape of the fastback.",
                     "A tin for the holidays of 1994; the last row was always short.",
                     "The sugar icing came in three works colours."},
                    n - 1);
    case Motif::BoardGame:
        return Pick({"The family game: buy dealers, build service bays, avoid the scrapyard.",
                     "Six pewter tokens, the little coupe first of all.",
                     "The cards know every trouble that a car can have."},
                    n - 1);
    case Motif::Clay:
        return Pick({"Full-size clay, two shifts before the board came to see it.",
                     "The modellers tried two tails on one car, a different one for each side.",
                     "Clay with foil in place of chrome.",
                     "The roof was two fingers lower the next morning."},
                    n);
    case Motif::Sketch:
        return Pick({"Ideas sheet of the first autumn: everything is there but the wheels' size.",
                     "The second generation began as a doodle in a telephone book."},
                    n / 3);
    case Motif::Dashboard:
        return Pick({"Two large dials, a clock that never agreed with them, and a radio for the coast road.",
                     "The driver's place: round instruments in a padded cowl.",
                     "Everything in reach, and the horn at both thumbs."},
                    photo.variant);
    case Motif::Engine:
        return Pick({"Under the bonnet: the eight-cylinder with its blue rocker covers.",
                     "Room for two hands beside the engine, as mechanics liked to recall.",
                     "The air cleaner hides the carburettor; the hoses are new."},
                    photo.variant);
    case Motif::Badge:
        return Pick({"The sign on the wing, chromed and filled with red enamel.",
                     "A shield and a T: the badge that closes every parade.",
                     "Lettering of the year, cast in one piece."},
                    photo.variant);
    case Motif::Car:
        break;
    }
    return CarText(photo);
}

QString Heading(const PlannedPhoto& photo)
{
    for (const Topic& topic : Topics()) {
        if (topic.prefix == photo.prefix)
            return topic.title % u", no. "_s % QString::number(photo.number);
    }
    return QString::number(photo.year) % u" Torvik Vollandry"_s;
}

QString NoteText(const PlannedPhoto& photo)
{
    switch (photo.motif) {
    case Motif::Stamps:
        return Pick({"Issued 1 June, three colours, 40 x 26 mm. Catalogue value: a cup of tea.",
                     "Printed in sheets of six; 80,000 were sold in the first week.",
                     "The margin names the engraver in letters of half a millimetre."},
                    photo.number);
    case Motif::Sign:
        return Pick({"Tin, 30 x 40 cm, four holes. Colours burned in at 800 degrees.",
                     "Embossed steel, baked finish, made to be screwed to a barn."},
                    photo.number);
    case Motif::DieCast:
        return Pick({"Zinc body, 19 cm long, 620 grams. Bonnet, doors and boot open.",
                     "Hand-polished; the steering turns the front wheels.",
                     "Sold by post in twelve instalments."},
                    photo.number);
    case Motif::Knife:
        return Pick({"Blade 7 cm, stainless; bolster gold-plated. Comes with a zipped pouch.",
                     "Length open 16 cm. The medallion is struck, not cast."},
                    photo.number);
    case Motif::BoardGame:
        return Pick({"Two to six players from eight years on; an evening, rarely less.",
                     "Board 50 x 50 cm, 28 deeds, 32 cards, six tokens, two dice."},
                    photo.number);
    case Motif::Clay:
    case Motif::Sketch:
        return Pick({"Project X-4. Wheelbase 2.74 m, height still open. Shown to the board in May.",
                     "The tail lamps were kept, the roof was not.",
                     "Scrapped after the viewing; only this print remains."},
                    photo.number);
    default:
        break;
    }
    return Pick({"Engine 5.8 litres, 330 bhp at 5,400 revolutions, four gears, 0 to 60 mph in 5.7 s.",
                 "One of 1,804 made. Stripes, louvres and lip came as one parcel.",
                 "Weight 1,510 kg. The springs are a third harder than the standard ones."},
                photo.number);
}

} // namespace

Caption CaptionOf(const PlannedPhoto& photo)
{
    return {photo.Stem().toLower() % u".rtf"_s, ShortDocument(Heading(photo), TopicText(photo))};
}

std::vector<Caption> PlanNotes()
{
    std::vector<Caption> notes;
    for (const PlannedPhoto& photo : PlanPhotos()) {
        for (const Topic& topic : Topics()) {
            if (topic.prefix != photo.prefix || topic.notePrefixLow.isEmpty())
                continue;
            const QString& prefix = photo.number < 5 ? topic.notePrefixLow : topic.notePrefixHigh;
            notes.push_back({prefix % QString::number(photo.number * 2) % u".rtf"_s,
                             ShortDocument(Heading(photo), NoteText(photo))});
        }
    }
    // The art print has no photos of its own; its notes go by the number that is still on show.
    const std::array<const char*, 6> prints = {
        "The print shows the first car before the gate of the works, in the rain of its first morning.",
        "Mercer drew the car from memory and got the mirrors wrong; he left them so.",
        "Edition of 500, signed in pencil below the left front wheel.",
        "The sky took eleven colours, the car only four.",
        "A remarque of the badge stands in the margin of the first fifty sheets.",
        "The original hangs in the canteen of the works."};
    for (std::size_t i = 0; i < prints.size(); ++i) {
        notes.push_back({u"glsj0%1.rtf"_s.arg((i + 1) * 2),
                         ShortDocument(u"Arlen Mercer Art Print"_s, QString::fromLatin1(prints[i]))});
    }
    return notes;
}

} // namespace torvik::sample
